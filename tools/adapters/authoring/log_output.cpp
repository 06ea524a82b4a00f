#include "tools/adapters/authoring/log_output.h"

#include <cstdio>

namespace authoring {

std::string AsLogLine(const std::string& line) {
    std::string out;
    out.reserve(line.size() + 2);
    for (char c : line) {
        if (c == '\n') {
            if (!out.empty() && out.back() == '\r')
                out.pop_back();
            out += "\r\n";
        } else {
            out += c;
        }
    }
    return out + "\r\n";
}

// Through stdio: the log is a file, read once the job has ended, so its lines may wait
// in the buffer, and a long build costs a write per buffer instead of one per line.
void WriteLogLine(const std::string& line) {
    const std::string text = AsLogLine(line);
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void ReportFailure(const std::string& adapterName, const std::string& message) {
    WriteLogLine("**ERROR: " + message);
    std::fflush(stdout);
    std::fprintf(stderr, "%s: %s\n", adapterName.c_str(), message.c_str());
}

}  // namespace authoring
