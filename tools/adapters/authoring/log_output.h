#pragma once
// The adapters' standard output is the job's log, which is read by CR LF pairs: every
// line goes out with CR LF, and a line end inside a message becomes CR LF as well.

#include <string>

namespace authoring {

// Writes `line` and CR LF to standard output; each LF inside `line` becomes CR LF.
void WriteLogLine(const std::string& line);

// `line` with every LF (and a CR before it) turned into CR LF, and CR LF behind it.
std::string AsLogLine(const std::string& line);

// Reports a failure: "**ERROR: <message>" in the log, so that its last line cannot be
// taken for success, and "<adapter>: <message>" on standard error, on the console.
void ReportFailure(const std::string& adapterName, const std::string& message);

}  // namespace authoring
