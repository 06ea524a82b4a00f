#include "tools/torvane-cmd/command_line.h"

#include "tools/torvane-cmd/crt_args.h"

#include <algorithm>
#include <cctype>

namespace jobscript {

namespace {

constexpr char kBlanks[] = " \t";

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// True if `text` starts with `word` in any case.
bool StartsWithWord(const std::string& text, const std::string& word) {
    if (text.size() < word.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(text[i])) != word[i])
            return false;
    }
    return true;
}

// True if `text` is `word` alone or `word` followed by a blank or tab.
bool IsCommandWord(const std::string& text, const std::string& word) {
    return StartsWithWord(text, word) && (text.size() == word.size() || IsBlank(text[word.size()]));
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Lowered(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// `rest` is what follows "echo" and its one separator (blank or tab).
ScriptCommand ClassifyEchoArgument(const std::string& rest) {
    const std::string word = Lowered(Trimmed(rest));
    if (word.empty())
        return {LineKind::EchoState, std::string()};
    if (word == "on")
        return {LineKind::EchoOn, std::string()};
    if (word == "off")
        return {LineKind::EchoOff, std::string()};
    return {LineKind::EchoText, rest};
}

// The first ">" outside double quotes. Quotes are counted as the command interpreter counts
// them, each one opening or closing, before the program's own rules apply to its arguments.
std::size_t FindRedirection(const std::string& line) {
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"')
            quoted = !quoted;
        else if (line[i] == '>' && !quoted)
            return i;
    }
    return std::string::npos;
}

// The end of the word at `start`: after its closing quote if it is quoted (the end of the
// text if the quote is never closed), else at the next blank or tab.
std::size_t WordEnd(const std::string& text, std::size_t start) {
    if (start < text.size() && text[start] == '"') {
        const std::size_t close = text.find('"', start + 1);
        return close == std::string::npos ? text.size() : close + 1;
    }
    return std::min(text.find_first_of(kBlanks, start), text.size());
}

bool IsQuoted(const std::string& word) {
    return !word.empty() && word[0] == '"';
}

// A word as WordEnd cuts it, without its quotes.
std::string Unquoted(const std::string& word) {
    if (!IsQuoted(word))
        return word;
    const bool closed = word.size() > 1 && word.back() == '"';
    return word.substr(1, word.size() - (closed ? 2 : 1));
}

// Reads the program's word from `head` and returns the position after it.
std::size_t ReadProgramWord(const std::string& head, ProgramLine& parsed) {
    const std::size_t start = std::min(head.find_first_not_of(kBlanks), head.size());
    const std::size_t end = WordEnd(head, start);
    parsed.word = head.substr(start, end - start);
    parsed.program = Unquoted(parsed.word);
    if (IsQuoted(parsed.word)) {
        const std::size_t kept = parsed.program.find_last_not_of(" .");
        parsed.program.erase(kept == std::string::npos ? 0 : kept + 1);
    }
    return end;
}

// Reads the target word after the ">" (or ">>") at `pos`.
void ReadTarget(const std::string& line, std::size_t pos, ProgramLine& parsed) {
    ++pos;
    parsed.output = OutputTarget::Truncate;
    if (pos < line.size() && line[pos] == '>') {
        parsed.output = OutputTarget::Append;
        ++pos;
    }
    pos = line.find_first_not_of(kBlanks, pos);
    if (pos == std::string::npos) {
        parsed.missingTarget = true;
        return;
    }
    parsed.target = Unquoted(line.substr(pos, WordEnd(line, pos) - pos));
}

}  // namespace

ScriptCommand ClassifyLine(const std::string& line) {
    const std::size_t start = line.find_first_not_of(kBlanks);
    const std::string text = start == std::string::npos ? std::string() : line.substr(start);
    if (StartsWithWord(text, "echo")) {
        if (text.size() == 4)
            return {LineKind::EchoState, std::string()};
        if (text[4] == '.')
            return {LineKind::EchoText, text.substr(5)};
        if (IsBlank(text[4]))
            return ClassifyEchoArgument(text.substr(5));
    }
    if (IsCommandWord(text, "cls"))
        return {LineKind::Cls, std::string()};
    if (IsCommandWord(text, "pause"))
        return {LineKind::Pause, std::string()};
    return {LineKind::Program, std::string()};
}

ProgramLine ParseProgramLine(const std::string& line) {
    ProgramLine parsed;
    const std::size_t redirection = FindRedirection(line);
    const std::string head = line.substr(0, redirection);
    const std::size_t argsStart = ReadProgramWord(head, parsed);
    parsed.args = SplitCrtArguments(head.substr(argsStart));
    if (redirection != std::string::npos)
        ReadTarget(line, redirection, parsed);
    return parsed;
}

}  // namespace jobscript
