#pragma once
// Runs one of Debian's tools and hands the adapter each line of its standard output as it
// comes. Standard input and error stay the adapter's, so the tool's own messages still
// reach the console.

#include <functional>
#include <string>
#include <vector>

namespace authoring {

// How the tool ended.
struct ToolEnd {
    bool started = false;
    int exitCode = -1;  // its exit status, when it exited
    int signal = 0;     // the signal that ended it, or 0
    bool Succeeded() const { return started && signal == 0 && exitCode == 0; }
    // "could not be started", "ended with status 1", "was ended by signal 11 (...)".
    std::string Describe() const;
};

// Sees each line of the tool's output without its line end ("\n", or "\r\n").
using LineSink = std::function<void(const std::string& line)>;

// Runs `program` with `args`; a last line without a line end is handed over too. The
// relay ends when the tool ends, even if a process it left behind still holds its output.
// The tool is ended when the adapter dies, so that it never runs on unseen.
ToolEnd RunCaptured(const std::string& program, const std::vector<std::string>& args,
                    const LineSink& sink);

// Splits the complete lines off the front of `pending` into `sink`; with `atEnd`, what
// remains is a line too. Pure, so that the splitting can be tested byte by byte.
void TakeLines(std::string& pending, const LineSink& sink, bool atEnd);

}  // namespace authoring
