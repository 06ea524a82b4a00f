#include "tools/adapters/reading/vcd_toc.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>

namespace reading {

namespace {

constexpr std::uint32_t kFramesPerSecond = 75;
constexpr std::uint32_t kLeadInFrames = 2 * kFramesPerSecond;
constexpr std::size_t kIdSize = 8;
constexpr std::size_t kCountOffset = 10;
constexpr std::size_t kFirstEntryOffset = 12;
constexpr std::size_t kEntrySize = 4;
constexpr unsigned kMaxEntries = 500;
constexpr unsigned kMaxTrack = 99;

// -1 for a byte that is no two-digit BCD number.
int FromBcd(unsigned char byte) {
    const int high = byte >> 4;
    const int low = byte & 0x0f;
    return high > 9 || low > 9 ? -1 : high * 10 + low;
}

bool IsEntriesId(const unsigned char* data) {
    return std::memcmp(data, "ENTRYVCD", kIdSize) == 0 ||
           std::memcmp(data, "ENTRYSVD", kIdSize) == 0;
}

// Lowest entry sector of each track, by track number; empty on a malformed entry.
std::map<unsigned, std::uint32_t> LowestEntryPerTrack(const unsigned char* data, unsigned count) {
    std::map<unsigned, std::uint32_t> starts;
    for (unsigned i = 0; i < count; ++i) {
        const unsigned char* entry = data + kFirstEntryOffset + i * kEntrySize;
        const int track = FromBcd(entry[0]);
        const int m = FromBcd(entry[1]);
        const int s = FromBcd(entry[2]);
        const int f = FromBcd(entry[3]);
        if (track < 2 || static_cast<unsigned>(track) > kMaxTrack || m < 0 || s < 0 || s >= 60 ||
            f < 0 || f >= static_cast<int>(kFramesPerSecond))
            return {};
        const std::uint32_t frames = (static_cast<std::uint32_t>(m) * 60 + s) * 75 + f;
        if (frames < kLeadInFrames)
            return {};
        const std::uint32_t lsn = frames - kLeadInFrames;
        auto [it, inserted] = starts.emplace(track, lsn);
        if (!inserted)
            it->second = std::min(it->second, lsn);
    }
    return starts;
}

}  // namespace

std::vector<std::uint32_t> SequenceTrackStarts(const unsigned char* userData, std::size_t size,
                                               std::uint32_t sectorCount) {
    if (size < kFirstEntryOffset || !IsEntriesId(userData))
        return {};
    const unsigned count = (userData[kCountOffset] << 8) | userData[kCountOffset + 1];
    if (count > kMaxEntries || kFirstEntryOffset + count * kEntrySize > size)
        return {};
    std::vector<std::uint32_t> starts;
    std::uint32_t previous = kEntriesSector;
    unsigned expectedTrack = 2;
    for (const auto& [track, lsn] : LowestEntryPerTrack(userData, count)) {
        if (track != expectedTrack++ || lsn <= previous || lsn >= sectorCount)
            return {};
        starts.push_back(lsn);
        previous = lsn;
    }
    return starts;
}

std::string CueSheet(const std::string& binName, const std::vector<std::uint32_t>& trackStarts) {
    std::string cue = "FILE \"" + binName + "\" BINARY\n";
    cue += "  TRACK 01 MODE2/2352\n    INDEX 01 00:00:00\n";
    unsigned track = 2;
    for (const std::uint32_t lsn : trackStarts) {
        char lines[64];
        std::snprintf(lines, sizeof lines, "  TRACK %02u MODE2/2352\n    INDEX 01 %02u:%02u:%02u\n",
                      track++, lsn / (60 * kFramesPerSecond), lsn / kFramesPerSecond % 60,
                      lsn % kFramesPerSecond);
        cue += lines;
    }
    return cue;
}

}  // namespace reading
