#pragma once
// Where a reading adapter finds Debian's tool, and the helper it preloads into it.

#include "tools/adapters/common/adapter_support.h"

#include <string>

namespace reading {

// A test build of the adapters looks for the tools in a folder of the test's own.
inline std::string ReadingToolPath(const std::string& name) {
#ifdef TORVANE_READING_TOOL_DIR
    return std::string(TORVANE_READING_TOOL_DIR) + name;
#else
    return adapter::RealToolPath(name);
#endif
}

// The folder of the running adapter.
std::string AdapterFolder();

// Fails the adapter unless `tool` can be run.
void RequireTool(const std::string& adapterName, const std::string& tool);

// Links the reading helper (mode2_view.cpp, log_level.cpp), which lies beside the adapter, into the
// private folder, whose path the dynamic loader can take (see private_folder.cpp); returns the
// link. Fails the adapter when the helper is missing.
std::string LinkReadingHelper(const std::string& adapterName);

}  // namespace reading
