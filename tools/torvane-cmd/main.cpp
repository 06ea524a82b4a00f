// torvane-cmd SCRIPT: runs a job script in the console it is started in.

#include "tools/torvane-cmd/fd_output.h"
#include "tools/torvane-cmd/hang_up.h"
#include "tools/torvane-cmd/interpreter.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>

namespace {

constexpr int kStatusUsage = 2;
constexpr std::size_t kReadSize = 65536;

// Reads the whole file; false (with errno set) if it cannot be read.
bool ReadScript(const char* path, std::string& text) {
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    char buffer[kReadSize];
    ssize_t got;
    while ((got = read(fd, buffer, sizeof buffer)) != 0) {
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const int error = errno;
            close(fd);
            errno = error;
            return false;
        }
        text.append(buffer, static_cast<std::size_t>(got));
    }
    close(fd);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        jobscript::WriteError("usage: torvane-cmd SCRIPT\r\n");
        return kStatusUsage;
    }
    std::string script;
    if (!ReadScript(argv[1], script)) {
        jobscript::WriteError(std::string("torvane-cmd: cannot read ") + argv[1] + ": " +
                              std::strerror(errno) + "\r\n");
        return kStatusUsage;
    }
    // An interrupt key typed while a tool runs ends the tool, not the script: the script
    // goes on to its end, so the job's end is still seen. Each program gets the usual
    // effect back before it starts.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGQUIT, SIG_IGN);
    jobscript::WatchForHangUp();
    return jobscript::RunScript(script);
}
