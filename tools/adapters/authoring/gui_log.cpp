#include "tools/adapters/authoring/gui_log.h"

#include <cstdlib>

namespace authoring {

namespace {

constexpr char kLogOpen[] = "<log level=\"";
constexpr char kLogClose[] = "</log>";
constexpr char kProgressOpen[] = "<progress ";
constexpr char kProgressClose[] = "/>";

bool StartsWith(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

bool EndsWith(const std::string& text, const std::string& suffix) {
    return text.size() >= suffix.size() &&
           text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

bool IsElementStart(const std::string& line) {
    return StartsWith(line, kLogOpen) || StartsWith(line, kProgressOpen);
}

// The text of attribute `name` (with its leading blank and `="`), or "" when absent.
// With `last`, the last such attribute counts: an id may hold anything before it.
std::string Attribute(const std::string& line, const std::string& name, bool last) {
    const std::string key = " " + name + "=\"";
    const std::size_t at = last ? line.rfind(key) : line.find(key);
    if (at == std::string::npos)
        return {};
    const std::size_t from = at + key.size();
    const std::size_t to = line.find('"', from);
    return line.substr(from, to == std::string::npos ? std::string::npos : to - from);
}

// The id ends where the fixed attributes that follow it begin.
std::string IdOf(const std::string& line) {
    const std::string key = " id=\"";
    const std::size_t at = line.find(key);
    if (at == std::string::npos)
        return {};
    const std::size_t from = at + key.size();
    const std::size_t to = line.rfind("\" position=\"");
    return to == std::string::npos || to < from ? std::string() : line.substr(from, to - from);
}

GuiEvent ProgressOf(const std::string& line) {
    GuiEvent event;
    event.kind = GuiEvent::Kind::Progress;
    event.operation = Attribute(line, "operation", false);
    event.id = IdOf(line);
    event.position = std::atoll(Attribute(line, "position", true).c_str());
    event.size = std::atoll(Attribute(line, "size", true).c_str());
    return event;
}

GuiEvent PlainOf(const std::string& line) {
    GuiEvent event;
    event.text = line;
    return event;
}

// The level and the text behind the opening tag; nullopt when the frame is broken.
std::optional<GuiEvent> LogStartOf(const std::string& line) {
    const std::size_t levelStart = sizeof kLogOpen - 1;
    const std::size_t levelEnd = line.find('"', levelStart);
    if (levelEnd == std::string::npos || line.compare(levelEnd, 2, "\">") != 0)
        return std::nullopt;
    GuiEvent event;
    event.kind = GuiEvent::Kind::Log;
    event.level = line.substr(levelStart, levelEnd - levelStart);
    event.text = line.substr(levelEnd + 2);
    return event;
}

}  // namespace

void GuiLogReader::Flush() {
    if (open_)
        sink_(*open_);
    open_.reset();
}

void GuiLogReader::CloseIfEnded() {
    if (!EndsWith(open_->text, kLogClose))
        return;
    open_->text.resize(open_->text.size() - (sizeof kLogClose - 1));
    Flush();
}

void GuiLogReader::Feed(const std::string& line) {
    if (open_ && !IsElementStart(line)) {
        open_->text += "\n" + line;
        CloseIfEnded();
        return;
    }
    Flush();
    if (StartsWith(line, kLogOpen))
        open_ = LogStartOf(line);
    if (open_) {
        CloseIfEnded();
        return;
    }
    const bool progress = StartsWith(line, kProgressOpen) && EndsWith(line, kProgressClose);
    sink_(progress ? ProgressOf(line) : PlainOf(line));
}

void GuiLogReader::Finish() {
    Flush();
}

std::string LegacyLogLine(const std::string& level, const std::string& text) {
    if (level == "information")
        return "   INFO: " + text;
    if (level == "debug")
        return "--DEBUG: " + text;
    if (level == "error")
        return "**ERROR: " + text;
    if (level == "assertion")
        return "!ASSERT: " + text;
    return "++ WARN: " + text;
}

}  // namespace authoring
