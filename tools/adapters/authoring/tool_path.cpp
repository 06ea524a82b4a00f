#include "tools/adapters/authoring/tool_path.h"

#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace authoring {

std::string MissingToolReason(const std::string& tool) {
    if (access(tool.c_str(), X_OK) == 0)
        return {};
    return "cannot run " + tool + " (" + std::strerror(errno) +
           "); it comes with the vcdimager package";
}

void RequireTool(const std::string& adapterName, const std::string& tool) {
    const std::string reason = MissingToolReason(tool);
    if (!reason.empty())
        adapter::Fail(adapterName, reason);
}

void ExecTool(const std::string& adapterName, const std::string& tool,
              const std::vector<std::string>& args) {
    RequireTool(adapterName, tool);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(tool.c_str()));
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    std::fflush(nullptr);
    execv(tool.c_str(), argv.data());
    adapter::Fail(adapterName, "cannot start " + tool + ": " + std::strerror(errno));
}

std::vector<std::string> Arguments(int argc, char** argv) {
    return std::vector<std::string>(argv + 1, argv + argc);
}

}  // namespace authoring
