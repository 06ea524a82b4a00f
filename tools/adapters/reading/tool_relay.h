#pragma once
// Runs one of Debian's tools with our log-level helper preloaded and relays its standard
// output line by line. Every line goes out ending in CR LF, as the job's log is read by
// CR LF pairs; its text may be looked at and changed on the way. Standard error and input
// stay the adapter's.

#include <functional>
#include <string>
#include <vector>

namespace reading {

// How the tool ended.
struct ToolEnd {
    int exitCode = -1;  // its exit status, when it exited
    int signal = 0;     // the signal that ended it, or 0
    bool Succeeded() const { return signal == 0 && exitCode == 0; }
    // "ended with status 1", "was ended by signal 11 (Segmentation fault)".
    std::string Describe() const;
};

// Sees each line as the tool printed it, without its line end, before it is written.
using LineFilter = std::function<void(std::string& line)>;

// Runs `program` with `args`; `preload` is put first in the tool's LD_PRELOAD.
ToolEnd RunRelayed(const std::string& program, const std::vector<std::string>& args,
                   const std::string& preload, const LineFilter& filter);

// Writes `line` and CR LF to standard output.
void WriteLine(const std::string& line);

// Replaces every occurrence of `from` (not empty) in `text` with `to`.
void ReplaceAll(std::string& text, const std::string& from, const std::string& to);

}  // namespace reading
