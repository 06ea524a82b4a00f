#pragma once
// vcdxrip records the arguments it was given in a comment at the head of the descriptor.
// Where the adapter hands it a stand-in for the user's image (a cue sheet in its private
// folder, gone after the run), that comment is made to name the user's own arguments, so
// that the descriptor reads as if the user's image had been ripped as given.

#include <optional>
#include <string>
#include <vector>

namespace reading {

// The arguments as vcdxrip writes them into its comment: joined by blanks, every "--"
// written "-=", as a comment may not hold "--".
std::string CommentArguments(const std::vector<std::string>& args);

// `xml` with the arguments `toolArgs` at the end of its first comment replaced by
// `userArgs`, all else kept byte for byte; nullopt when that comment does not end in them.
std::optional<std::string> WithUserArguments(const std::string& xml,
                                             const std::vector<std::string>& toolArgs,
                                             const std::vector<std::string>& userArgs);

// Puts `userArgs` in place of `toolArgs` in the comment of the descriptor at `path`. The
// new text goes into a file beside it that is renamed over it, so a failure leaves the
// descriptor whole. A missing descriptor, or one without that comment, is left alone. False,
// with the reason in `error`, when the descriptor could not be read or replaced.
bool PutUserArguments(const std::string& path, const std::vector<std::string>& toolArgs,
                      const std::vector<std::string>& userArgs, std::string* error);

}  // namespace reading
