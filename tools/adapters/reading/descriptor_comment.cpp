#include "tools/adapters/reading/descriptor_comment.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace reading {

namespace {

const std::string kCommentStart = "<!--";
const std::string kCommentEnd = " -->";

std::string ErrnoText() {
    return std::strerror(errno);
}

bool ReadWhole(int fd, std::string* text) {
    char buffer[65536];
    for (;;) {
        const ssize_t got = read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        if (got == 0)
            return true;
        text->append(buffer, static_cast<std::size_t>(got));
    }
}

bool WriteWhole(int fd, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t put = write(fd, text.data() + done, text.size() - done);
        if (put < 0 && errno == EINTR)
            continue;
        if (put < 0)
            return false;
        done += static_cast<std::size_t>(put);
    }
    return true;
}

// Writes `text` into a new file beside `path`, with `mode`, and renames it over `path`.
bool ReplaceWith(const std::string& path, const std::string& text, mode_t mode,
                 std::string* error) {
    std::string temporary = path + ".XXXXXX";
    const int fd = mkstemp(temporary.data());
    if (fd < 0) {
        *error = "cannot write beside " + path + ": " + ErrnoText();
        return false;
    }
    const bool written = fchmod(fd, mode) == 0 && WriteWhole(fd, text) && fsync(fd) == 0;
    const int writeErrno = errno;
    if (close(fd) != 0 || !written || rename(temporary.c_str(), path.c_str()) != 0) {
        *error = "cannot replace " + path + ": " + std::strerror(written ? errno : writeErrno);
        unlink(temporary.c_str());
        return false;
    }
    return true;
}

}  // namespace

std::string CommentArguments(const std::vector<std::string>& args) {
    std::string joined;
    for (const std::string& arg : args)
        joined += (joined.empty() ? "" : " ") + arg;
    for (std::size_t at = joined.find("--"); at != std::string::npos;
         at = joined.find("--", at + 2))
        joined[at + 1] = '=';
    return joined;
}

std::optional<std::string> WithUserArguments(const std::string& xml,
                                             const std::vector<std::string>& toolArgs,
                                             const std::vector<std::string>& userArgs) {
    const std::size_t start = xml.find(kCommentStart);
    const std::size_t end = start == std::string::npos ? start : xml.find(kCommentEnd, start);
    const std::string written = " " + CommentArguments(toolArgs);
    if (end == std::string::npos || end < start + kCommentStart.size() + written.size() ||
        xml.compare(end - written.size(), written.size(), written) != 0)
        return std::nullopt;
    std::string result = xml;
    result.replace(end - written.size(), written.size(), " " + CommentArguments(userArgs));
    return result;
}

bool PutUserArguments(const std::string& path, const std::vector<std::string>& toolArgs,
                      const std::vector<std::string>& userArgs, std::string* error) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0 && errno == ENOENT)
        return true;
    std::string xml;
    struct stat info {};
    const bool wasRead = fd >= 0 && fstat(fd, &info) == 0 && ReadWhole(fd, &xml);
    if (fd >= 0)
        close(fd);
    if (!wasRead) {
        *error = "cannot read " + path + ": " + ErrnoText();
        return false;
    }
    const std::optional<std::string> changed = WithUserArguments(xml, toolArgs, userArgs);
    return !changed || ReplaceWith(path, *changed, info.st_mode & 07777, error);
}

}  // namespace reading
