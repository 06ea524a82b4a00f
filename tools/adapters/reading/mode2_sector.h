#pragma once
// A raw CD sector against a Mode 2 one: an image of 2336-byte sectors lacks the 12-byte
// sync pattern and the 4-byte header that a 2352-byte sector begins with. Here are the
// bytes and the seeks of the 2352-byte view of such an image. Header-only and free of the
// C++ library, as it also runs inside Debian's tools (see mode2_view.cpp).

#include <stdio.h>
#include <cerrno>
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

// Copies bytes [from, from + count) of raw sector `lsn`, whose last 2336 bytes are `data`,
// to `out`; from + count is at most 2352.
inline void CopyRawBytes(std::uint32_t lsn, const unsigned char* data, std::size_t from,
                         std::size_t count, char* out) {
    if (from < kSyncHeaderSize) {
        unsigned char header[kSyncHeaderSize];
        WriteSyncAndHeader(lsn, header);
        const std::size_t part = count < kSyncHeaderSize - from ? count : kSyncHeaderSize - from;
        std::memcpy(out, header + from, part);
        out += part;
        from += part;
        count -= part;
    }
    // A read that ends within the header takes nothing of `data`, nor points before it.
    if (count > 0)
        std::memcpy(out, data + (from - kSyncHeaderSize), count);
}

// Moves `*offset`, counted from `whence`, to the position it names in a stream at
// `position` of `size` bytes, as fseeko does. Returns 0, or the error fseeko gives: EINVAL
// for an unknown whence or a position before the start, EOVERFLOW for one that off64_t
// cannot hold.
inline int SeekPosition(std::uint64_t position, std::uint64_t size, int whence, off64_t* offset) {
    off64_t base = 0;
    if (whence == SEEK_CUR)
        base = static_cast<off64_t>(position);
    else if (whence == SEEK_END)
        base = static_cast<off64_t>(size);
    else if (whence != SEEK_SET)
        return EINVAL;
    off64_t target = 0;
    if (__builtin_add_overflow(base, *offset, &target))
        return EOVERFLOW;
    if (target < 0)
        return EINVAL;
    *offset = target;
    return 0;
}

}  // namespace reading
