#include "tools/adapters/authoring/arg_files.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace authoring {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

std::string EntryOfLine(const std::string& line) {
    if (line.empty() || line[0] != '"')
        return line;
    const std::size_t close = line.find('"', 1);
    return line.substr(1, close == std::string::npos ? std::string::npos : close - 1);
}

std::string AsFileArgument(const std::string& entry) {
    return entry[0] == '-' ? "./" + entry : entry;
}

}  // namespace

std::vector<std::string> ArgFileEntries(const std::string& text) {
    std::vector<std::string> entries;
    std::size_t start = text.compare(0, 3, kByteOrderMark) == 0 ? 3 : 0;
    while (start <= text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        std::string entry = EntryOfLine(line);
        if (!entry.empty())
            entries.push_back(std::move(entry));
        start = end + 1;
    }
    return entries;
}

Expansion ExpandArgFiles(const std::vector<std::string>& args, const FileReader& read) {
    Expansion result;
    for (const std::string& arg : args) {
        if (arg.empty() || arg[0] != '@') {
            result.args.push_back(arg);
            continue;
        }
        const std::string path = arg.substr(1);
        const std::optional<std::string> text = read(path);
        if (!text) {
            result.error = "cannot read the list file \"" + path + "\": " + std::strerror(errno);
            return result;
        }
        for (const std::string& entry : ArgFileEntries(*text)) {
            result.args.push_back(AsFileArgument(entry));
            result.listed.push_back({path, result.args.back()});
        }
    }
    return result;
}

std::optional<std::string> ReadFileBytes(const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    std::string text;
    char buffer[16384];
    for (;;) {
        const ssize_t got = read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const int error = errno;
            close(fd);
            errno = error;
            return std::nullopt;
        }
        if (got == 0)
            break;
        text.append(buffer, static_cast<std::size_t>(got));
    }
    close(fd);
    return text;
}

}  // namespace authoring
