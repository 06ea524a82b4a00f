#pragma once
// Reading vcdxbuild's --gui output. Each line is an element of its own:
//   <log level="information">finished ok, image created with 1879 sectors [00:25:04]</log>
//   <progress operation="scan" id="sequence-00" position="6972" size="692552" />
// The message text is written as it is, unescaped, so a file name with "&", "<" or even
// "</log>" in it makes a line that is no valid XML. The reader therefore goes by the fixed
// frame of each line and never by XML rules: the text is whatever stands between the
// opening tag and the "</log>" that ends the line. A message that holds line ends spans
// lines and is joined again. Lines of any other kind (help, version) pass as they are.

#include <functional>
#include <optional>
#include <string>

namespace authoring {

struct GuiEvent {
    enum class Kind { Log, Progress, Plain };
    Kind kind = Kind::Plain;
    std::string level;      // Log: the level as the tool named it ("information", ...)
    std::string text;       // Log: the message; Plain: the line
    std::string operation;  // Progress: "scan", "extract", "write"
    std::string id;         // Progress: the item, empty for "write"
    long long position = 0;
    long long size = 0;
};

using GuiEventSink = std::function<void(const GuiEvent&)>;

class GuiLogReader {
public:
    explicit GuiLogReader(GuiEventSink sink) : sink_(std::move(sink)) {}
    // Takes one line of output, without its line end.
    void Feed(const std::string& line);
    // The output has ended: a message still open is handed over as far as it came.
    void Finish();

private:
    void Flush();
    // Hands the open message over once its text ends in "</log>", without that tag.
    void CloseIfEnded();
    GuiEventSink sink_;
    std::optional<GuiEvent> open_;  // a message whose "</log>" has not come yet
};

// The line that VCDImager 0.7 printed for a message: "   INFO: ...", "++ WARN: ...",
// "**ERROR: ...", "--DEBUG: ...", "!ASSERT: ..."; a level of no known name is a warning.
std::string LegacyLogLine(const std::string& level, const std::string& text);

}  // namespace authoring
