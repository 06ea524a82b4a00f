#pragma once
// The one way the program and its tool adapters put a file on disk for the user: the new
// content goes into a new file beside the target, is flushed to the disk, and only then
// takes the target's place by a rename. On any failure the old file is whole and the new
// one is gone.

#include <string>
#include <string_view>

namespace torvane {

// Returns 0, or the errno value of the step that failed. A replaced file keeps its
// permissions; a new one gets those a newly created file gets.
int ReplaceFileContents(const std::string& path, std::string_view bytes);

}  // namespace torvane
