#include "tools/adapters/reading/descriptor_comment.h"

#include "platform/replace_file.h"

#include <fcntl.h>
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
    const bool wasRead = fd >= 0 && ReadWhole(fd, &xml);
    if (fd >= 0)
        close(fd);
    if (!wasRead) {
        *error = "cannot read " + path + ": " + ErrnoText();
        return false;
    }
    const std::optional<std::string> changed = WithUserArguments(xml, toolArgs, userArgs);
    if (!changed)
        return true;
    if (const int failure = torvane::ReplaceFileContents(path, *changed)) {
        *error = "cannot replace " + path + ": " + std::strerror(failure);
        return false;
    }
    return true;
}

}  // namespace reading
