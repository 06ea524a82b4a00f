#pragma once
// The slash switches of the lkVCDImager fork's lkvcdxrip, as the lkVCDxRIP job gives them:
//   /o FOLDER   where videocd.xml and the media files go
//   /b BIN      a BIN image;  /n NRG  a Nero image
//   /c A,B,C    the drive at that address (drive_list.h);  /d DRIVER  its driver, which
//               only the fork's Windows layer needs
//   /s          2336-byte sectors;  /e  ignore /EXT/PSD_X.VCD;  /r  the XML only

#include <optional>
#include <string>
#include <vector>

namespace lk {

struct RipRequest {
    std::string folder;
    std::string binFile, nrgFile;
    std::optional<std::size_t> drive;   // the index of /c's address
    std::vector<std::string> switches;  // vcdxrip.exe's: --sector-2336, --no-ext-psd, --norip
};

// Nullopt with the reason in `error` for an unknown switch, a switch without its value, an
// address that no scan gives, or not exactly one source.
std::optional<RipRequest> ParseRipArgs(const std::vector<std::string>& args, std::string* error);

}  // namespace lk
