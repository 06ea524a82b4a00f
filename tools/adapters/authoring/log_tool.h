#pragma once
// The frame of the adapters whose standard output is the job's log (vcdxbuild.exe,
// vcdxgen.exe, vcdimager.exe): a tool that is missing or fails is reported in the log and
// on the console, and the adapter exits non-zero.

#include "tools/adapters/authoring/tool_capture.h"

#include <string>

namespace authoring {

// Ends the adapter with status 1, after the report, unless `tool` can be run.
void RequireToolForLog(const std::string& adapterName, const std::string& tool);

// The adapter's exit status once `toolName` ended as `end`: 0 on success; otherwise the
// failure is reported and the tool's own status (or 1) is returned.
int ConcludeRun(const std::string& adapterName, const std::string& toolName, const ToolEnd& end);

}  // namespace authoring
