#pragma once
// A full disk without root: while it lives, a write that would make a file of this process
// larger than `bytes` fails with EFBIG (SIGXFSZ is ignored, so the process goes on).

#include <sys/resource.h>
#include <csignal>

namespace torvane::test {

class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &saved_);
        savedSignal_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = saved_;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, savedSignal_);
    }

private:
    rlimit saved_{};
    void (*savedSignal_)(int) = nullptr;
};

}  // namespace torvane::test
