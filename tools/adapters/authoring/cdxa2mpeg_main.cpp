// cdxa2mpeg.exe: Debian's cdxa2mpeg already takes the input and the output path as its two
// arguments, so the name runs it unchanged.

#include "tools/adapters/authoring/tool_path.h"

int main(int argc, char** argv) {
    authoring::ExecTool("cdxa2mpeg.exe", authoring::AuthoringToolPath("cdxa2mpeg"),
                        authoring::Arguments(argc, argv));
}
