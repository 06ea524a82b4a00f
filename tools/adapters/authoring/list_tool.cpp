#include "tools/adapters/authoring/list_tool.h"

#include "tools/adapters/authoring/arg_files.h"
#include "tools/adapters/authoring/log_output.h"
#include "tools/adapters/authoring/log_tool.h"
#include "tools/adapters/authoring/tool_path.h"

namespace authoring {

int RunListTool(const std::string& adapterName, const std::string& toolName,
                const std::string& toolPath, int argc, char** argv, bool announceListed) {
    RequireToolForLog(adapterName, toolPath);
    const Expansion expansion = ExpandArgFiles(Arguments(argc, argv), ReadFileBytes);
    if (!expansion.error.empty()) {
        ReportFailure(adapterName, expansion.error);
        return 1;
    }
    if (announceListed) {
        for (const ListedFile& file : expansion.listed)
            WriteLogLine("   INFO: MPEG file from " + file.listFile + ": " + file.path);
    }
    const ToolEnd end = RunCaptured(toolPath, expansion.args, WriteLogLine);
    return ConcludeRun(adapterName, toolName, end);
}

}  // namespace authoring
