// vcdxbuild.exe: Debian's vcdxbuild prints no INFO lines of its own, but in its --gui
// mode it tells every message and the progress as elements; they become the log lines of
// VCDImager 0.7 on standard output and a progress line on the console. The last line of a
// good build is "   INFO: finished ok, image created with N sectors [MM:SS:FF]".

#include "tools/adapters/authoring/build_log.h"
#include "tools/adapters/authoring/log_output.h"
#include "tools/adapters/authoring/log_tool.h"
#include "tools/adapters/authoring/tool_path.h"

#include <unistd.h>

namespace {

constexpr char kAdapter[] = "vcdxbuild.exe";

void ToConsole(const std::string& text) {
    if (!text.empty())
        (void)!write(STDERR_FILENO, text.data(), text.size());
}

}  // namespace

int main(int argc, char** argv) {
    using namespace authoring;
    const std::string tool = AuthoringToolPath("vcdxbuild");
    RequireToolForLog(kAdapter, tool);
    std::vector<std::string> args{"--gui", "--progress"};
    for (const std::string& arg : Arguments(argc, argv))
        args.push_back(arg);
    BuildLogTranslator translator(WriteLogLine, ToConsole);
    const ToolEnd end =
        RunCaptured(tool, args, [&](const std::string& line) { translator.Line(line); });
    translator.Finish();
    return ConcludeRun(kAdapter, "vcdxbuild", end);
}
