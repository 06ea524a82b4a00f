#include "tools/torvane-cmd/crt_args.h"

namespace jobscript {

namespace {

bool IsSeparator(char c) {
    return c == ' ' || c == '\t';
}

// Reads one argument starting at `pos` (not a separator) and leaves `pos` after it.
std::string ReadArgument(const std::string& text, std::size_t& pos) {
    std::string arg;
    bool quoted = false;
    while (pos < text.size()) {
        std::size_t backslashes = 0;
        while (pos < text.size() && text[pos] == '\\') {
            ++backslashes;
            ++pos;
        }
        const bool atQuote = pos < text.size() && text[pos] == '"';
        bool copyQuote = atQuote;
        if (atQuote && backslashes % 2 == 0) {
            if (quoted && pos + 1 < text.size() && text[pos + 1] == '"') {
                ++pos;  // "" inside a quoted run: the second quote is copied
            } else {
                copyQuote = false;
                quoted = !quoted;
            }
        }
        arg.append(atQuote ? backslashes / 2 : backslashes, '\\');
        if (pos >= text.size() || (!quoted && IsSeparator(text[pos])))
            break;
        if (!atQuote || copyQuote)
            arg += text[pos];
        ++pos;
    }
    return arg;
}

}  // namespace

std::vector<std::string> SplitCrtArguments(const std::string& text) {
    std::vector<std::string> args;
    std::size_t pos = 0;
    for (;;) {
        while (pos < text.size() && IsSeparator(text[pos]))
            ++pos;
        if (pos >= text.size())
            return args;
        args.push_back(ReadArgument(text, pos));
    }
}

}  // namespace jobscript
