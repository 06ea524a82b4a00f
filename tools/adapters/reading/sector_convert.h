#pragma once
// Streams an image of 2336-byte Mode 2 sectors into its 2352-byte form, which is what
// libcdio can read. A chunk at a time: memory use does not grow with the image.

#include <cstdint>

namespace reading {

// Reads `sectors` sectors of 2336 bytes from `in` (from its start) and writes them to
// `out` as 2352-byte sectors. False, with errno set, on a read or write error or an image
// shorter than `sectors`.
bool ExpandMode2Image(int in, int out, std::uint64_t sectors);

}  // namespace reading
