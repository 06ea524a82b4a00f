#pragma once
// The interpreter of a job script: runs its lines one after the other, as the command
// interpreter would, and no more.

#include <string>

namespace jobscript {

// Runs every line of `scriptText`. Echo starts on. Returns the exit status, 0.
int RunScript(const std::string& scriptText);

}  // namespace jobscript
