#pragma once
// What vcdxbuild.exe makes of vcdxbuild's --gui output: each log message becomes the line
// that VCDImager 0.7 wrote into the job's log, the progress goes to the console only, and
// errors are shown on the console as well, where the user watches the build.

#include "tools/adapters/authoring/gui_log.h"
#include "tools/adapters/authoring/progress_meter.h"

#include <functional>
#include <string>

namespace authoring {

using TextSink = std::function<void(const std::string& text)>;

class BuildLogTranslator {
public:
    // `log` takes whole log lines, without line end; `console` takes raw terminal text.
    BuildLogTranslator(TextSink log, TextSink console);
    // One line of the tool's output, without its line end.
    void Line(const std::string& line);
    // The output has ended.
    void Finish();

private:
    void Event(const GuiEvent& event);
    TextSink log_;
    TextSink console_;
    ProgressMeter meter_;
    GuiLogReader reader_;
};

}  // namespace authoring
