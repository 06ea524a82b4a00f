#include "tools/adapters/authoring/build_run.h"

#include "tools/adapters/authoring/build_log.h"
#include "tools/adapters/authoring/log_output.h"
#include "tools/adapters/authoring/log_tool.h"

#include <unistd.h>

namespace authoring {

namespace {

void ToConsole(const std::string& text) {
    if (!text.empty())
        (void)!write(STDERR_FILENO, text.data(), text.size());
}

}  // namespace

int RunGuiBuild(const std::string& adapterName, const std::string& tool,
                const std::vector<std::string>& args) {
    RequireToolForLog(adapterName, tool);
    std::vector<std::string> toolArgs{"--gui", "--progress"};
    toolArgs.insert(toolArgs.end(), args.begin(), args.end());
    BuildLogTranslator translator(WriteLogLine, ToConsole);
    const ToolEnd end =
        RunCaptured(tool, toolArgs, [&](const std::string& line) { translator.Line(line); });
    translator.Finish();
    return ConcludeRun(adapterName, "vcdxbuild", end);
}

}  // namespace authoring
