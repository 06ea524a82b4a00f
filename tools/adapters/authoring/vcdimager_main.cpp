// vcdimager.exe: Debian's vcdimager with the MPEG files named in "@list.txt". Its last
// line is already "finished ok, image created with N sectors [MM:SS:FF] (B bytes)", but
// it prints no INFO lines, whatever its switches, so that line would stand alone in the
// log; the adapter names each listed file in an INFO line ahead of it.

#include "tools/adapters/authoring/list_tool.h"
#include "tools/adapters/authoring/tool_path.h"

int main(int argc, char** argv) {
    return authoring::RunListTool("vcdimager.exe", "vcdimager",
                                  authoring::AuthoringToolPath("vcdimager"), argc, argv, true);
}
