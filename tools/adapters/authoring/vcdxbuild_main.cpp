// vcdxbuild.exe: Debian's vcdxbuild with the arguments as given, its log in the form of
// VCDImager 0.7 (build_run.h).

#include "tools/adapters/authoring/build_run.h"
#include "tools/adapters/authoring/tool_path.h"

int main(int argc, char** argv) {
    using namespace authoring;
    return RunGuiBuild("vcdxbuild.exe", AuthoringToolPath("vcdxbuild"), Arguments(argc, argv));
}
