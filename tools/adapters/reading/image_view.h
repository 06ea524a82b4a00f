#pragma once
// Hands a user's BIN file to libcdio, which reads a BIN only through a cue sheet of the
// same name beside it, and only in 2352-byte sectors. The adapter writes a cue sheet of
// its own into its private folder, with the tracks that the disc's ENTRIES file gives,
// and never writes beside the user's file; the BIN is reached through a link there.
//
// An image of 2336-byte sectors is shown to the tool in its 2352-byte form by the reading
// helper, as the tool reads it (mode2_view.cpp): nothing as large as the image is written.

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

// The view of `binFile` read in sectors of 2336 bytes (`sector2336`) or of 2352; for
// 2336, names the file to the reading helper through the environment that the tool will
// inherit. Needs the private folder. Nullopt, with what went wrong in `error`, when the
// file cannot be read or the cue sheet cannot be written.
std::optional<ImageView> PresentBinImage(const std::string& binFile, bool sector2336,
                                         std::string* error);

}  // namespace reading
