#pragma once
// Where an authoring adapter finds Debian's tool.

#include "tools/adapters/common/adapter_support.h"

#include <string>
#include <vector>

namespace authoring {

namespace {

// A test build of an adapter looks for the tools in a folder of the test's own. Only the
// adapters' main files call this, and hand the path on, so the shared code is the same
// in both builds.
inline std::string AuthoringToolPath(const std::string& name) {
#ifdef TORVANE_AUTHORING_TOOL_DIR
    return std::string(TORVANE_AUTHORING_TOOL_DIR) + name;
#else
    return adapter::RealToolPath(name);
#endif
}

}  // namespace

// Why `tool` cannot be run, or "" when it can.
std::string MissingToolReason(const std::string& tool);

// Fails the adapter with a clear message on standard error unless `tool` can be run.
void RequireTool(const std::string& adapterName, const std::string& tool);

// Replaces the adapter by `tool` with `args`, so the tool's exit status, output and
// signals are the adapter's own. Fails the adapter when the tool cannot be started.
[[noreturn]] void ExecTool(const std::string& adapterName, const std::string& tool,
                           const std::vector<std::string>& args);

// The command-line arguments after the program name.
std::vector<std::string> Arguments(int argc, char** argv);

}  // namespace authoring
