#pragma once
// Argument files: an argument "@FILE" stands for the paths that FILE holds, one a line,
// each in double quotes, lines separated by CR LF. The tools of Debian know no such
// argument, so the adapters expand it before they run them.

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace authoring {

// The entries of an argument file's text. Lines end in LF, a CR before it is dropped; a
// line that begins with a double quote holds the text up to the next double quote (or the
// line's end), any other line is taken as it stands. Empty entries are skipped. A UTF-8
// byte-order mark at the start is no part of the first entry.
std::vector<std::string> ArgFileEntries(const std::string& text);

// Reads a file whole; nullopt with errno set when it cannot be read.
using FileReader = std::function<std::optional<std::string>(const std::string& path)>;

struct ListedFile {
    std::string listFile;  // the argument file, as named behind the "@"
    std::string path;      // the entry, as handed to the tool
};

struct Expansion {
    std::vector<std::string> args;
    std::vector<ListedFile> listed;  // every entry taken from an argument file, in order
    std::string error;               // empty when every argument file was read
};

// `args` with each argument that begins with "@" replaced by the entries of the file
// named behind it. An entry that begins with "-" gets "./" in front, so that the tool
// takes it for a file and not for a switch.
Expansion ExpandArgFiles(const std::vector<std::string>& args, const FileReader& read);

// Reads the file at `path` whole, as raw bytes.
std::optional<std::string> ReadFileBytes(const std::string& path);

}  // namespace authoring
