#include "tools/adapters/reading/sector_convert.h"

#include "tools/adapters/reading/vcd_toc.h"

#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <vector>

namespace reading {

namespace {

// About a megabyte read and written per call: few system calls, little memory.
constexpr std::uint64_t kChunkSectors = 448;

bool ReadFully(int fd, unsigned char* data, std::size_t size, off_t offset) {
    while (size > 0) {
        const ssize_t got = pread(fd, data, size, offset);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            if (got == 0)
                errno = EIO;
            return false;
        }
        data += got;
        size -= static_cast<std::size_t>(got);
        offset += got;
    }
    return true;
}

bool WriteFully(int fd, const unsigned char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t put = write(fd, data, size);
        if (put < 0 && errno == EINTR)
            continue;
        if (put < 0)
            return false;
        data += put;
        size -= static_cast<std::size_t>(put);
    }
    return true;
}

}  // namespace

bool ExpandMode2Image(int in, int out, std::uint64_t sectors) {
    std::vector<unsigned char> source(kChunkSectors * kMode2SectorSize);
    std::vector<unsigned char> target(kChunkSectors * kRawSectorSize);
    for (std::uint64_t first = 0; first < sectors; first += kChunkSectors) {
        const std::uint64_t count = std::min(kChunkSectors, sectors - first);
        if (!ReadFully(in, source.data(), count * kMode2SectorSize,
                       static_cast<off_t>(first * kMode2SectorSize)))
            return false;
        for (std::uint64_t i = 0; i < count; ++i) {
            unsigned char* sector = target.data() + i * kRawSectorSize;
            WriteSyncAndHeader(static_cast<std::uint32_t>(first + i), sector);
            std::copy_n(source.data() + i * kMode2SectorSize, kMode2SectorSize,
                        sector + kSyncHeaderSize);
        }
        if (!WriteFully(out, target.data(), count * kRawSectorSize))
            return false;
    }
    return true;
}

}  // namespace reading
