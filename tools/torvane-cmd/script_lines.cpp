#include "tools/torvane-cmd/script_lines.h"

namespace jobscript {

std::vector<std::string> SplitScriptLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::size_t textEnd = end;
        if (textEnd > start && text[textEnd - 1] == '\r' && end < text.size())
            --textEnd;
        lines.push_back(text.substr(start, textEnd - start));
        start = end + 1;
    }
    return lines;
}

bool IsBlankLine(const std::string& line) {
    return line.find_first_not_of(" \t") == std::string::npos;
}

}  // namespace jobscript
