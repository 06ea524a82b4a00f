#pragma once
// Runs a tool whose messages and progress go to standard error (ffmpeg): they reach the
// console unchanged, and its message lines also the adapter's standard output, the log.
// A progress report, which ends in a lone carriage return to be written over, stays off
// the log.

#include <string>
#include <vector>

namespace maker {

// Runs `program` with `args` and returns its wait status, or -1 when it could not start.
// `lastLine` receives the tool's last message line that is not empty.
int RunRelayingErrors(const std::string& program, const std::vector<std::string>& args,
                      std::string* lastLine);

}  // namespace maker
