#include "tools/adapters/authoring/log_tool.h"

#include "tools/adapters/authoring/log_output.h"
#include "tools/adapters/authoring/tool_path.h"

#include <cstdlib>

namespace authoring {

void RequireToolForLog(const std::string& adapterName, const std::string& tool) {
    const std::string reason = MissingToolReason(tool);
    if (reason.empty())
        return;
    ReportFailure(adapterName, reason);
    std::exit(1);
}

int ConcludeRun(const std::string& adapterName, const std::string& toolName, const ToolEnd& end) {
    if (end.Succeeded())
        return 0;
    ReportFailure(adapterName, toolName + " " + end.Describe());
    return end.exitCode > 0 ? end.exitCode : 1;
}

}  // namespace authoring
