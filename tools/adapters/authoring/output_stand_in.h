#pragma once
// A file that the tool writes in place of the user's output, beside it, and that replaces
// the output only once the tool has succeeded. Until then the output keeps what it held:
// a tool that opens its output before it has read its input would otherwise empty it on
// a wrong input, and destroy the input when both are the same file. The stand-in goes on
// every way out of the adapter that leaves it a chance: a normal exit, a failure, and the
// signals that end it when its console is dropped.

#include <string>

namespace authoring {

// Makes the stand-in, empty, in the folder of `output`; its path, or empty with the
// reason in `error`.
std::string MakeOutputStandIn(const std::string& output, std::string* error);

// Puts the stand-in in the place of `output`, with the permissions that a new file gets.
// False, with the reason in `error`, when it is empty or cannot be moved; it is removed.
bool ReplaceOutputByStandIn(const std::string& output, std::string* error);

// Removes the stand-in, if any.
void DropOutputStandIn();

}  // namespace authoring
