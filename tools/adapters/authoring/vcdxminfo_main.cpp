// vcdxminfo.exe: Debian's vcdxminfo already reports what the MPEG inspector reads, so the
// name runs it unchanged.

#include "tools/adapters/authoring/tool_path.h"

int main(int argc, char** argv) {
    authoring::ExecTool("vcdxminfo.exe", authoring::AuthoringToolPath("vcdxminfo"),
                        authoring::Arguments(argc, argv));
}
