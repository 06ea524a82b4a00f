#include "platform/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdlib>

namespace torvane {

namespace {

// Short writes and interrupted writes go on where they stopped; a full disk or a file size
// limit ends them with its errno.
int WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = write(fd, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR)
            continue;
        if (put < 0)
            return errno;
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return 0;
}

mode_t ModeFor(const std::string& path) {
    struct stat target;
    if (stat(path.c_str(), &target) == 0)
        return target.st_mode & 07777;
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// A symbolic link stays a link: the file it leads to is the one replaced, in its own
// folder, so that the rename never crosses a file system.
std::string ResolvedTarget(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    if (!real)
        return path;
    std::string target(real);
    free(real);
    return target;
}

}  // namespace

int ReplaceFileContents(const std::string& given_path, std::string_view bytes) {
    const std::string path = ResolvedTarget(given_path);
    std::string temporary = path + ".XXXXXX";
    const int fd = mkstemp(temporary.data());
    if (fd < 0)
        return errno;
    int error = fchmod(fd, ModeFor(path)) == 0 ? 0 : errno;
    if (!error)
        error = WriteAll(fd, bytes);
    // Every byte on the disk before the old file goes: a buffered success is no success.
    if (!error && fsync(fd) != 0)
        error = errno;
    if (close(fd) != 0 && !error)
        error = errno;
    if (!error && rename(temporary.c_str(), path.c_str()) != 0)
        error = errno;
    if (error)
        unlink(temporary.c_str());
    return error;
}

}  // namespace torvane
