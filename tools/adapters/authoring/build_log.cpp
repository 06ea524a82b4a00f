#include "tools/adapters/authoring/build_log.h"

namespace authoring {

BuildLogTranslator::BuildLogTranslator(TextSink log, TextSink console)
    : log_(std::move(log)),
      console_(std::move(console)),
      reader_([this](const GuiEvent& event) { Event(event); }) {}

void BuildLogTranslator::Line(const std::string& line) {
    reader_.Feed(line);
}

void BuildLogTranslator::Finish() {
    reader_.Finish();
    console_(meter_.Close());
}

void BuildLogTranslator::Event(const GuiEvent& event) {
    switch (event.kind) {
        case GuiEvent::Kind::Progress:
            console_(meter_.Update(event));
            return;
        case GuiEvent::Kind::Plain:
            log_(event.text);
            return;
        case GuiEvent::Kind::Log:
            break;
    }
    const std::string line = LegacyLogLine(event.level, event.text);
    log_(line);
    if (event.level == "error" || event.level == "assertion")
        console_(meter_.Close() + line + "\n");
}

}  // namespace authoring
