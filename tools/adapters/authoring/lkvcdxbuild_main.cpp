// lkvcdxbuild.exe: stands in for the lkVCDImager fork's lkvcdxbuild, which exists for
// Windows only. It takes the fork's switches (lk_build_args.h) and builds with Debian's
// vcdxbuild, its log in the form the dialog reads (build_run.h).

#include "tools/adapters/authoring/build_run.h"
#include "tools/adapters/authoring/lk_build_args.h"
#include "tools/adapters/authoring/tool_path.h"

int main(int argc, char** argv) {
    using namespace authoring;
    constexpr char kAdapter[] = "lkvcdxbuild.exe";
    std::string error;
    const auto args = VcdxbuildArgsOfLk(Arguments(argc, argv), &error);
    if (!args)
        adapter::Fail(kAdapter, error);
    return RunGuiBuild(kAdapter, AuthoringToolPath("vcdxbuild"), *args);
}
