#pragma once
// vcdxgen.exe and vcdimager.exe: the "@FILE" arguments are expanded into the paths that
// the file lists, the real tool runs with them, and its output goes into the job's log
// with CR LF line ends.

#include <string>

namespace authoring {

// Runs Debian's `toolName`, found at `toolPath`, for the adapter `adapterName`; returns
// the exit status. With
// `announceListed`, a line "   INFO: MPEG file from LIST: PATH" for every listed file
// goes into the log ahead of the tool's output.
int RunListTool(const std::string& adapterName, const std::string& toolName,
                const std::string& toolPath, int argc, char** argv, bool announceListed);

}  // namespace authoring
