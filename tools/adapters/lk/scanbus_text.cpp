#include "tools/adapters/lk/scanbus_text.h"

namespace lk {

namespace {

constexpr std::size_t kDescriptionWidth = 32;

// Long enough that the text holds 140 characters with no drive, and its last line does not
// read as a drive line (its third character from the end is no comma).
constexpr char kHeading[] =
    "CD drives found by the lkVCDImager tool folder's drive scan (libcdio)\r\n"
    "Each line: five blanks, the drive's vendor and model, its address\r\n"
    "-----\r\n";

}  // namespace

std::string ScanbusText(const std::vector<Drive>& drives) {
    std::string text = kHeading;
    for (std::size_t i = 0; i < drives.size() && i < kMaxDrives; ++i) {
        std::string description = drives[i].description.substr(0, kDescriptionWidth);
        // The dialog shows the line as it stands: no control character may draw on it.
        for (char& c : description)
            if (static_cast<unsigned char>(c) < 0x20)
                c = ' ';
        description.resize(kDescriptionWidth, ' ');
        text += "     " + description + DriveAddress(i) + "\r\n";
    }
    return text;
}

}  // namespace lk
