#pragma once
// What the reading adapters need to know about a raw (S)VCD image to hand it to libcdio:
// where its MPEG tracks start, and the cue sheet that says so.

#include "tools/adapters/reading/mode2_sector.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace reading {

constexpr std::size_t kSubheaderSize = 8;
constexpr std::size_t kUserDataSize = 2048;
// ENTRIES.VCD (ENTRIES.SVD on an SVCD) lies at this fixed sector on every (S)VCD.
constexpr std::uint32_t kEntriesSector = 151;

// The first sector of tracks 2, 3, ... (each the lowest entry point of its track), read
// from the user data of the ENTRIES sector. Empty when the data is no ENTRIES file, or
// when its tracks are not numbered 2, 3, ... without a gap, do not start in increasing
// order, or do not start inside an image of `sectorCount` sectors.
std::vector<std::uint32_t> SequenceTrackStarts(const unsigned char* userData, std::size_t size,
                                               std::uint32_t sectorCount);

// A cue sheet for one BIN file of 2352-byte Mode 2 sectors: track 1 at sector 0, then a
// track at each of `trackStarts`.
std::string CueSheet(const std::string& binName, const std::vector<std::uint32_t>& trackStarts);

}  // namespace reading
