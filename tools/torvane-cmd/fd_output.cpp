#include "tools/torvane-cmd/fd_output.h"

#include <unistd.h>
#include <cerrno>

namespace jobscript {

void WriteAll(int fd, const std::string& text) {
    const char* data = text.data();
    std::size_t size = text.size();
    while (size > 0) {
        const ssize_t put = write(fd, data, size);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return;
        data += put;
        size -= static_cast<std::size_t>(put);
    }
}

void WriteOut(const std::string& text) {
    WriteAll(STDOUT_FILENO, text);
}

void WriteError(const std::string& text) {
    WriteAll(STDERR_FILENO, text);
}

}  // namespace jobscript
