// Loaded into Debian's vcd-info and vcdxrip with the log-level helper. When the adapter
// names an image of 2336-byte sectors in TORVANE_MODE2_VIEW, the tool sees it as the
// 2352-byte image that libcdio can read: libcdio learns a BIN's size from stat() and reads
// it through fopen(), fseeko() and fread(), and for that one file these calls are served
// here from the original, each sector given the sync and header it lacks as it is read.
// No 2352-byte copy is ever written, however large the image.
//
// The image is known by its device and inode, whatever path the tool opens it by (the
// adapter's cue sheet reaches it through a link). Only the C library is used: the tools
// are C programs, and the helper must not bring the C++ runtime into them.

#include "tools/adapters/reading/mode2_sector.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace {

using reading::kMode2SectorSize;
using reading::kMode2ViewVariable;
using reading::kRawSectorSize;

// Sectors read from the original per system call, and held in the stream's buffer: the
// tools read a sector at a time, seeking before each.
constexpr std::uint64_t kChunkSectors = 64;

using StatCall = int (*)(const char*, struct stat*);
using FopenCall = FILE* (*)(const char*, const char*);

StatCall g_realStat = nullptr;
FopenCall g_realFopen = nullptr;
bool g_viewing = false;
dev_t g_device = 0;
ino_t g_inode = 0;
std::uint64_t g_sectors = 0;  // whole sectors of the original; a partial last one is dropped

struct View {
    int fd;
    std::uint64_t position;  // in the 2352-byte view
    unsigned char* chunk;    // kChunkSectors sectors of the original
};

__attribute__((constructor)) void FindImage() {
    g_realStat = reinterpret_cast<StatCall>(dlsym(RTLD_NEXT, "stat"));
    g_realFopen = reinterpret_cast<FopenCall>(dlsym(RTLD_NEXT, "fopen"));
    const char* image = std::getenv(kMode2ViewVariable);
    struct stat info {};
    if (image == nullptr || g_realStat == nullptr || g_realFopen == nullptr ||
        g_realStat(image, &info) != 0 || !S_ISREG(info.st_mode))
        return;
    g_device = info.st_dev;
    g_inode = info.st_ino;
    g_sectors = static_cast<std::uint64_t>(info.st_size) / kMode2SectorSize;
    g_viewing = true;
}

bool IsImage(const struct stat& info) {
    return g_viewing && info.st_dev == g_device && info.st_ino == g_inode;
}

std::uint64_t ViewSize() {
    return g_sectors * kRawSectorSize;
}

bool ReadFully(int fd, unsigned char* data, std::size_t size, off_t offset) {
    while (size > 0) {
        const ssize_t got = pread(fd, data, size, offset);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            if (got == 0)
                errno = EIO;  // the original shrank while it was read
            return false;
        }
        data += got;
        size -= static_cast<std::size_t>(got);
        offset += got;
    }
    return true;
}

ssize_t ReadView(void* cookie, char* out, std::size_t size) {
    View& view = *static_cast<View*>(cookie);
    const std::uint64_t end = ViewSize();
    std::size_t done = 0;
    while (done < size && view.position < end) {
        const std::uint64_t wantedEnd = std::min<std::uint64_t>(end, view.position + size - done);
        const std::uint64_t first = view.position / kRawSectorSize;
        const std::uint64_t count =
            std::min(kChunkSectors, (wantedEnd - 1) / kRawSectorSize + 1 - first);
        if (!ReadFully(view.fd, view.chunk, count * kMode2SectorSize,
                       static_cast<off_t>(first * kMode2SectorSize)))
            return done > 0 ? static_cast<ssize_t>(done) : -1;
        for (std::uint64_t i = 0; i < count && view.position < wantedEnd; ++i) {
            const std::uint64_t sectorEnd = (first + i + 1) * kRawSectorSize;
            const std::size_t from = view.position % kRawSectorSize;
            const std::size_t part = std::min(sectorEnd, wantedEnd) - view.position;
            reading::CopyRawBytes(static_cast<std::uint32_t>(first + i),
                                  view.chunk + i * kMode2SectorSize, from, part, out + done);
            done += part;
            view.position += part;
        }
    }
    return static_cast<ssize_t>(done);
}

int SeekView(void* cookie, off64_t* offset, int whence) {
    View& view = *static_cast<View*>(cookie);
    const int error = reading::SeekPosition(view.position, ViewSize(), whence, offset);
    if (error != 0) {
        errno = error;
        return -1;
    }
    view.position = static_cast<std::uint64_t>(*offset);
    return 0;
}

int CloseView(void* cookie) {
    View* view = static_cast<View*>(cookie);
    const int closed = close(view->fd);
    std::free(view->chunk);
    std::free(view);
    return closed;
}

FILE* OpenView(const char* path, const char* mode) {
    View* view = static_cast<View*>(std::malloc(sizeof(View)));
    unsigned char* chunk =
        static_cast<unsigned char*>(std::malloc(kChunkSectors * kMode2SectorSize));
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (view == nullptr || chunk == nullptr || fd < 0) {
        const int error = fd < 0 ? errno : ENOMEM;
        if (fd >= 0)
            close(fd);
        std::free(chunk);
        std::free(view);
        errno = error;
        return nullptr;
    }
    *view = View{fd, 0, chunk};
    FILE* stream = fopencookie(view, mode, {ReadView, nullptr, SeekView, CloseView});
    if (stream == nullptr) {
        CloseView(view);
        return nullptr;
    }
    setvbuf(stream, nullptr, _IOFBF, kChunkSectors * kRawSectorSize);
    return stream;
}

bool ReadOnly(const char* mode) {
    return mode[0] == 'r' && std::strchr(mode, '+') == nullptr;
}

}  // namespace

extern "C" {

int stat(const char* path, struct stat* info) {
    if (g_realStat == nullptr)  // called before the constructors ran
        FindImage();
    const int result = g_realStat(path, info);
    if (result == 0 && IsImage(*info))
        info->st_size = static_cast<off_t>(ViewSize());
    return result;
}

FILE* fopen(const char* path, const char* mode) {
    if (g_realFopen == nullptr)
        FindImage();
    struct stat info {};
    if (g_viewing && ReadOnly(mode) && g_realStat(path, &info) == 0 && IsImage(info))
        return OpenView(path, mode);
    return g_realFopen(path, mode);
}

}  // extern "C"
