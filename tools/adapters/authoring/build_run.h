#pragma once
// A build by Debian's vcdxbuild in its --gui mode, whose messages and progress become the
// log lines of VCDImager 0.7 on standard output and a progress line on the console. The
// last line of a good build is "   INFO: finished ok, image created with N sectors
// [MM:SS:FF]". Shared by vcdxbuild.exe and lkvcdxbuild.exe.

#include <string>
#include <vector>

namespace authoring {

// Runs `tool` with `args` behind --gui --progress; returns the adapter's exit status.
int RunGuiBuild(const std::string& adapterName, const std::string& tool,
                const std::vector<std::string>& args);

}  // namespace authoring
