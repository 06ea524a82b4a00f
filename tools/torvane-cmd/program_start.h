#pragma once
// Running the program of a script line: its output file, finding it, starting it, waiting
// for it. Failures get the command interpreter's messages on standard error, and the
// script goes on; the program's exit status is not looked at.

#include "tools/torvane-cmd/command_line.h"

#include <string>

namespace jobscript {

// The file to run for `name`. A name with a slash is taken as it stands; a bare name is
// looked up in the current directory first, then in each folder of PATH, and must be an
// executable file. Empty when nothing is found.
std::string FindProgram(const std::string& name);

// Opens the output file, finds and starts the program, and waits until it ends. The
// program shares the terminal and the process group of the script, so that hanging up the
// terminal ends it too.
void RunProgram(const ProgramLine& line);

}  // namespace jobscript
