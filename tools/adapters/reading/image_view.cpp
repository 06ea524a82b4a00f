#include "tools/adapters/reading/image_view.h"

#include "tools/adapters/reading/private_folder.h"
#include "tools/adapters/reading/sector_convert.h"
#include "tools/adapters/reading/tool_relay.h"
#include "tools/adapters/reading/vcd_toc.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace reading {

namespace {

constexpr std::uint64_t kMegabyte = 1024 * 1024;

std::string ErrnoText() {
    return std::strerror(errno);
}

std::string AbsolutePath(const std::string& path) {
    if (!path.empty() && path[0] == '/')
        return path;
    char cwd[PATH_MAX];
    if (getcwd(cwd, sizeof cwd) == nullptr)
        return path;
    return std::string(cwd) + "/" + path;
}

std::vector<std::uint32_t> ReadTrackStarts(int image, std::size_t sectorSize,
                                           std::uint64_t sectors) {
    unsigned char data[kUserDataSize];
    const std::size_t headerSize = kSubheaderSize + (sectorSize - kMode2SectorSize);
    const off_t offset = static_cast<off_t>(kEntriesSector * sectorSize + headerSize);
    if (pread(image, data, sizeof data, offset) != static_cast<ssize_t>(sizeof data))
        return {};
    return SequenceTrackStarts(data, sizeof data, static_cast<std::uint32_t>(sectors));
}

bool RoomFor(std::uint64_t bytes, std::string* error) {
    struct statvfs info {};
    const std::string folder = PrivateFolderPath();
    if (statvfs(folder.c_str(), &info) != 0)
        return true;  // the writes will tell
    const std::uint64_t free = static_cast<std::uint64_t>(info.f_bavail) * info.f_frsize;
    if (free >= bytes)
        return true;
    *error = "not enough room in " + folder + " for the 2352-byte form of the image (" +
             std::to_string(bytes / kMegabyte + 1) + " MB needed, " +
             std::to_string(free / kMegabyte) + " MB free)";
    return false;
}

// The path by which the tool reaches the expanded copy, or empty on failure.
std::string ExpandedCopy(int image, std::uint64_t sectors, std::string* error) {
    if (!RoomFor(sectors * kRawSectorSize, error))
        return {};
    const std::string name = PrivateEntry(kDataEntry);
    const int copy = open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (copy < 0) {
        *error = "cannot make " + name + ": " + ErrnoText();
        return {};
    }
    unlink(name.c_str());
    if (!ExpandMode2Image(image, copy, sectors)) {
        *error = "cannot write the 2352-byte form of the image: " + ErrnoText();
        close(copy);
        return {};
    }
    // Left open until the adapter ends: the descriptor is the copy's only name.
    return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(copy);
}

bool WriteText(const std::string& path, const std::string& text) {
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    const bool written = write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    return close(fd) == 0 && written;
}

}  // namespace

std::optional<ImageView> PresentBinImage(const std::string& binFile, bool sector2336,
                                         std::string* error) {
    const int image = open(binFile.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (image < 0 || fstat(image, &info) != 0 || !S_ISREG(info.st_mode)) {
        *error = "cannot read the image " + binFile + ": " +
                 (image < 0 ? ErrnoText() : std::string("not a file"));
        if (image >= 0)
            close(image);
        return std::nullopt;
    }
    const std::size_t sectorSize = sector2336 ? kMode2SectorSize : kRawSectorSize;
    const std::uint64_t size = static_cast<std::uint64_t>(info.st_size);
    const std::uint64_t sectors = size / sectorSize;
    if (sector2336 && size % sectorSize != 0)
        WriteLine("++ WARN: image " + binFile + " size (" + std::to_string(size) +
                  ") not multiple of blocksize (2336)");
    const std::vector<std::uint32_t> tracks = ReadTrackStarts(image, sectorSize, sectors);
    const std::string target =
        sector2336 ? ExpandedCopy(image, sectors, error) : AbsolutePath(binFile);
    close(image);
    if (target.empty())
        return std::nullopt;

    // libcdio takes the BIN of a cue sheet from the sheet's own name (image.cue gives
    // image.bin), whatever its FILE line says: the link bears that name.
    ImageView view{PrivateEntry(kCueEntry), {PrivateEntry(kCueEntry), PrivateEntry(kBinEntry)}};
    if (symlink(target.c_str(), PrivateEntry(kBinEntry).c_str()) != 0 ||
        !WriteText(view.cueFile, CueSheet(kBinEntry, tracks))) {
        *error = "cannot write a cue sheet in " + PrivateFolderPath() + ": " + ErrnoText();
        return std::nullopt;
    }
    return view;
}

}  // namespace reading
