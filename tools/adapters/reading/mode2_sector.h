#pragma once
// A raw CD sector against a Mode 2 one: an image of 2336-byte sectors lacks the 12-byte
// sync pattern and the 4-byte header that a 2352-byte sector begins with. Header-only
// and free of the C++ library, as it also runs inside Debian's tools (see mode2_view.cpp).

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace reading {

constexpr std::size_t kRawSectorSize = 2352;    // sync, header, subheader, data, EDC/ECC
constexpr std::size_t kMode2SectorSize = 2336;  // the same without sync and header
constexpr std::size_t kSyncHeaderSize = kRawSectorSize - kMode2SectorSize;

// The environment variable by which an adapter names to the reading helper the image of
// 2336-byte sectors that the tool is to see in 2352-byte ones.
constexpr char kMode2ViewVariable[] = "TORVANE_MODE2_VIEW";

// Writes the sync pattern and the Mode 2 header of sector `lsn` (its address counts the
// two-second lead-in, as on a disc) into out[0..15].
inline void WriteSyncAndHeader(std::uint32_t lsn, unsigned char* out) {
    constexpr std::uint32_t kFramesPerSecond = 75;
    constexpr std::uint32_t kLeadInFrames = 2 * kFramesPerSecond;
    const auto bcd = [](std::uint32_t value) {
        return static_cast<unsigned char>(((value / 10) << 4) | (value % 10));
    };
    out[0] = 0x00;
    std::memset(out + 1, 0xff, 10);
    out[11] = 0x00;
    const std::uint32_t frames = lsn + kLeadInFrames;
    out[12] = bcd(frames / (60 * kFramesPerSecond));
    out[13] = bcd(frames / kFramesPerSecond % 60);
    out[14] = bcd(frames % kFramesPerSecond);
    out[15] = 0x02;  // Mode 2
}

}  // namespace reading
