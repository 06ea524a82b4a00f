// vcdxrip.exe: takes a (S)VCD image apart with Debian's vcdxrip, in the current directory.
// The descriptor goes to --output-file=, the media files into the current directory, and
// the report to standard output, where vcdxrip's own INFO lines (raised by our log-level
// helper) end in "   INFO: done" on success only. A BIN needs no cue sheet beside it,
// and may have 2336-byte sectors (--sector-2336); an NRG image, and a disc in a CD drive
// (--cdrom-device=), are read as they are. The
// descriptor's comment names the arguments given here, not those given to the tool.

#include "tools/adapters/common/adapter_support.h"
#include "tools/adapters/reading/descriptor_comment.h"
#include "tools/adapters/reading/image_view.h"
#include "tools/adapters/reading/private_folder.h"
#include "tools/adapters/reading/reading_args.h"
#include "tools/adapters/reading/tool_path.h"
#include "tools/adapters/reading/tool_relay.h"

namespace {

using namespace reading;

constexpr char kName[] = "vcdxrip.exe";
const std::vector<std::string> kSwitches = {
    "-v", "-q", "--no-ext-psd", "--norip", "--nofiles", "--nosequences", "--nosegments"};
const std::vector<std::string> kOptions = {
    "--bin-file=", "--nrg-file=", "--cdrom-device=", "--output-file="};

ReadingArgs ParseOrFail(int argc, char** argv) {
    std::string error;
    const auto args = ParseReadingArgs({argv + 1, argv + argc}, kSwitches, kOptions, &error);
    if (!args)
        adapter::Fail(kName, error);
    if (args->binFile.empty() + args->nrgFile.empty() + args->device.empty() != 2)
        adapter::Fail(kName, "give one source: --bin-file=, --nrg-file= or --cdrom-device=");
    return *args;
}

// The source switch for the tool; `standIns` gets the paths that stand for the image.
std::string SourceSwitch(const ReadingArgs& args, std::vector<std::string>* standIns) {
    if (!args.nrgFile.empty())
        return "--nrg-file=" + args.nrgFile;
    if (!args.device.empty())
        return "--cdrom-device=" + args.device;
    std::string error;
    const auto view = PresentBinImage(args.binFile, args.sector2336, &error);
    if (!view)
        adapter::Fail(kName, error);
    *standIns = view->standIns;
    return "--cue-file=" + view->cueFile;
}

}  // namespace

int main(int argc, char** argv) {
    const ReadingArgs args = ParseOrFail(argc, argv);
    const std::string tool = ReadingToolPath("vcdxrip");
    RequireTool(kName, tool);
    MakePrivateFolder(kName);
    const std::string helper = LinkReadingHelper(kName);

    std::vector<std::string> toolArgs = args.switches;
    if (!args.outputFile.empty())
        toolArgs.push_back("--output-file=" + args.outputFile);
    std::vector<std::string> standIns;
    toolArgs.push_back(SourceSwitch(args, &standIns));
    // An NRG image and a disc state their own sector size; the switch is handed on as given.
    if (args.binFile.empty() && args.sector2336)
        toolArgs.push_back("--sector-2336");

    const ToolEnd end = RunRelayed(tool, toolArgs, helper, [&](std::string& line) {
        for (const std::string& standIn : standIns)
            ReplaceAll(line, standIn, args.binFile);
    });
    std::string error;
    const std::string descriptor = args.outputFile.empty() ? "videocd.xml" : args.outputFile;
    const bool commentPut = PutUserArguments(descriptor, toolArgs, {argv + 1, argv + argc}, &error);
    if (!end.Succeeded())
        adapter::Fail(kName, tool + " " + end.Describe());
    if (!commentPut)
        adapter::Fail(kName, error);
    return 0;
}
