// vcddebug.exe: the report on a (S)VCD image from Debian's vcd-info, on standard output.
// The image is a BIN, read in the sector size in force (2352 bytes, or 2336 with
// --sector-2336), with no need of a cue sheet beside it. When it cannot be read as a
// (S)VCD in that sector size, vcd-info crashing included, the report holds
// "++ WARN: INFO.SVD: signature not found"; otherwise a line like "VCD 2.0 detected".

#include "tools/adapters/common/adapter_support.h"
#include "tools/adapters/reading/image_view.h"
#include "tools/adapters/reading/private_folder.h"
#include "tools/adapters/reading/reading_args.h"
#include "tools/adapters/reading/tool_path.h"
#include "tools/adapters/reading/tool_relay.h"

#include <algorithm>

namespace {

using namespace reading;

constexpr char kName[] = "vcddebug.exe";
constexpr char kUnreadable[] = "++ WARN: INFO.SVD: signature not found";
constexpr char kDetected[] = " detected";
// vcd-info's full report is its default: -v asks for nothing more.
const std::vector<std::string> kSwitches = {"-v", "-q"};

ReadingArgs ParseOrFail(int argc, char** argv) {
    std::string error;
    const auto args = ParseReadingArgs({argv + 1, argv + argc}, kSwitches, {"--bin-file="}, &error);
    if (!args)
        adapter::Fail(kName, error);
    if (args->binFile.empty())
        adapter::Fail(kName, "give the image with --bin-file=");
    return *args;
}

bool EndsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const ReadingArgs args = ParseOrFail(argc, argv);
    const std::string tool = ReadingToolPath("vcd-info");
    RequireTool(kName, tool);
    MakePrivateFolder(kName);
    const std::string helper = LinkReadingHelper(kName);

    std::string error;
    const auto view = PresentBinImage(args.binFile, args.sector2336, &error);
    if (!view) {
        WriteLine(kUnreadable);
        adapter::Fail(kName, error);
    }
    std::vector<std::string> toolArgs;
    const auto& switches = args.switches;
    if (std::find(switches.begin(), switches.end(), "-q") != switches.end())
        toolArgs.push_back("-q");
    toolArgs.push_back("--cue-file=" + view->cueFile);

    bool detected = false;
    bool warned = false;
    const ToolEnd end = RunRelayed(tool, toolArgs, helper, [&](std::string& line) {
        for (const std::string& standIn : view->standIns)
            ReplaceAll(line, standIn, args.binFile);
        detected = detected || EndsWith(line, kDetected);
        warned = warned || line.find(kUnreadable) != std::string::npos;
    });
    if ((!detected || end.signal != 0) && !warned)
        WriteLine(kUnreadable);
    if (!end.Succeeded())
        adapter::Fail(kName, tool + " " + end.Describe());
    return 0;
}
