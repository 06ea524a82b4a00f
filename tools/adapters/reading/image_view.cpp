#include "tools/adapters/reading/image_view.h"

#include "tools/adapters/reading/private_folder.h"
#include "tools/adapters/reading/tool_relay.h"
#include "tools/adapters/reading/vcd_toc.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace reading {

namespace {

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
    close(image);
    const std::string target = AbsolutePath(binFile);
    if (sector2336 && setenv(kMode2ViewVariable, target.c_str(), 1) != 0) {
        *error = "cannot name the image to the reading helper: " + ErrnoText();
        return std::nullopt;
    }

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
