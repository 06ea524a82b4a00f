// cdxa2mpeg.exe: Debian's cdxa2mpeg, which takes the input and the output path as its two
// arguments, writing into a stand-in for the output (output_stand_in.h). The tool opens
// its output before it reads its input, and on a file that is no RIFF/CDXA file it writes
// nothing and still ends with status 0: the output is replaced only by an MPEG stream.

#include "tools/adapters/authoring/output_stand_in.h"
#include "tools/adapters/authoring/tool_capture.h"
#include "tools/adapters/authoring/tool_path.h"

namespace {

constexpr char kName[] = "cdxa2mpeg.exe";

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args = authoring::Arguments(argc, argv);
    if (args.size() != 2 || args[0].empty() || args[1].empty())
        adapter::Fail(kName, "give the input and the output path");
    const std::string& output = args[1];
    const std::string tool = authoring::AuthoringToolPath("cdxa2mpeg");
    authoring::RequireTool(kName, tool);

    std::string error;
    const std::string standIn = authoring::MakeOutputStandIn(output, &error);
    if (standIn.empty())
        adapter::Fail(kName, error);
    const int status = adapter::RunTool(tool, {args[0], standIn});
    if (status != 0) {
        authoring::DropOutputStandIn();
        // RunTool's status: 128 + the signal for a tool that a signal ended, -1 for none.
        const authoring::ToolEnd end{status >= 0, status > 128 ? -1 : status,
                                     status > 128 ? status - 128 : 0};
        adapter::Fail(kName, tool + " " + end.Describe() + "; " + output + " is left as it was");
    }
    if (!authoring::ReplaceOutputByStandIn(output, &error))
        adapter::Fail(kName, error + " (is " + args[0] + " a file copied off a disc?)");
    return 0;
}
