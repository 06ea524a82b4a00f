#pragma once
// Hands a user's BIN file to libcdio, which reads a BIN only through a cue sheet of the
// same name beside it, and only in 2352-byte sectors. The adapter writes a cue sheet of
// its own into its private folder, with the tracks that the disc's ENTRIES file gives,
// and never writes beside the user's file; the BIN is reached through a link there.
//
// An image of 2336-byte sectors is expanded into its 2352-byte form first. That copy is
// as large as the image, so it has no name: it is unlinked as soon as it is made and
// reached through the adapter's open descriptor, and goes with the adapter however the
// adapter ends.

#include <optional>
#include <string>
#include <vector>

namespace reading {

struct ImageView {
    std::string cueFile;  // the cue sheet to give the tool
    // Paths in the private folder that the tool's messages may name; each stands for the
    // user's file.
    std::vector<std::string> standIns;
};

// The view of `binFile` read in sectors of 2336 bytes (`sector2336`) or of 2352. Needs
// the private folder. Nullopt, with what went wrong in `error`, when the file cannot be
// read or its 2352-byte form cannot be written.
std::optional<ImageView> PresentBinImage(const std::string& binFile, bool sector2336,
                                         std::string* error);

}  // namespace reading
