// vcdxgen.exe: Debian's vcdxgen with the MPEG files named in "@list.txt". Nothing goes
// into the log ahead of the tool's own output, which begins with its success line.

#include "tools/adapters/authoring/list_tool.h"
#include "tools/adapters/authoring/tool_path.h"

int main(int argc, char** argv) {
    return authoring::RunListTool("vcdxgen.exe", "vcdxgen", authoring::AuthoringToolPath("vcdxgen"),
                                  argc, argv, false);
}
