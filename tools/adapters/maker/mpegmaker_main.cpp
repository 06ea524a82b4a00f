// mpegmaker.exe TARGET FILTER INPUT OUTPUT: Debian's ffmpeg turns INPUT into the MPEG stream
// of its target ("pal-vcd", "ntsc-svcd", ...), with FILTER as its video filter, writing into
// a stand-in for OUTPUT (output_stand_in.h): OUTPUT is replaced only once ffmpeg has
// succeeded and written something, so a file that cannot be converted leaves no half-written
// stream, and an older one stands as it was. Standard output is the log: ffmpeg's messages,
// then "**ERROR: " and the reason on failure, or VCDXMINFO's report on the stream made.

#include "tools/adapters/authoring/output_stand_in.h"
#include "tools/adapters/authoring/tool_path.h"
#include "tools/adapters/maker/error_relay.h"

#include <sys/wait.h>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr char kName[] = "mpegmaker.exe";

// The reason, on the log and on the console, and the end of the adapter.
[[noreturn]] void FailInLog(const std::string& reason) {
    std::printf("**ERROR: %s\n", reason.c_str());
    std::fflush(stdout);
    authoring::DropOutputStandIn();
    adapter::Fail(kName, reason);
}

std::string EndWords(int status) {
    if (status < 0)
        return "ffmpeg could not be started";
    if (WIFSIGNALED(status))
        return "ffmpeg was ended by signal " + std::to_string(WTERMSIG(status));
    return "ffmpeg ended with status " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args = authoring::Arguments(argc, argv);
    if (args.size() != 4 || args[2].empty() || args[3].empty())
        FailInLog("give the target, the video filter, the input and the output path");
    const std::string& output = args[3];
    const std::string ffmpeg = authoring::AuthoringToolPath("ffmpeg");
    if (const std::string missing = authoring::MissingToolReason(ffmpeg); !missing.empty())
        FailInLog(missing);

    std::string error;
    const std::string standIn = authoring::MakeOutputStandIn(output, &error);
    if (standIn.empty())
        FailInLog(error);
    // "file:" keeps a name from being read as a protocol or an option, whatever it holds.
    std::string lastLine;
    const int status =
        maker::RunRelayingErrors(ffmpeg,
                                 {"-hide_banner", "-nostdin", "-y", "-i", "file:" + args[2],
                                  "-target", args[0], "-vf", args[1], "file:" + standIn},
                                 &lastLine);
    if (status != 0)
        FailInLog((lastLine.empty() ? EndWords(status) : lastLine) + "; " + output +
                  " is left as it was");
    if (!authoring::ReplaceOutputByStandIn(output, &error))
        FailInLog(error);
    // The check of the stream made, as the inspector of MPEG files reads it.
    std::fflush(stdout);
    adapter::RunTool(authoring::AuthoringToolPath("vcdxminfo"), {"-i", output});
    return 0;
}
