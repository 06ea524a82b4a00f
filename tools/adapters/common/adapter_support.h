#pragma once
// What every adapter needs: run the real tool, and fail with a clear message.
// Plain C++ and POSIX: an adapter starts fast and depends on nothing but libc.

#include <string>
#include <vector>

namespace adapter {

// Where Debian installs the real tools.
std::string RealToolPath(const std::string& name);

// Runs `program` with `args`; standard input, output and error are inherited.
// Returns the tool's exit status, 128 + the signal number if a signal ended it, or -1
// (after a message on standard error) if it could not be started.
int RunTool(const std::string& program, const std::vector<std::string>& args);

// In a child the adapter `adapter` has just forked: the child ends with the adapter, `fd`
// becomes its `target` (standard output or error), and `program` runs with `args`. A
// program that cannot start is said on standard error; the child exits with 127.
[[noreturn]] void ExecToolChild(const std::string& program, const std::vector<std::string>& args,
                                int fd, int target, int adapter);

// Prints "<adapter>: <message>" on standard error and exits with status 1.
[[noreturn]] void Fail(const std::string& adapterName, const std::string& message);

}  // namespace adapter
