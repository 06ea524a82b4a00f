#pragma once
// The machine's CD drives, as the drive scan lists them and lkvcdxrip.exe finds them again
// by their address. Both take the drives in the order libcdio gives them, so the Nth drive
// has the address "1, 0, N" in both.
//
// TORVANE_CD_DEVICES, when set, stands in for the machine's drives: entries
// "DEVICE=DESCRIPTION" separated by ';'. It lets a machine without a drive be tested, with
// an image file standing in for the disc in a drive.

#include <cstddef>
#include <string>
#include <vector>

namespace lk {

struct Drive {
    std::string device;       // "/dev/sr0"
    std::string description;  // the drive's vendor and model
};

// The scan lists ten drives at most: an address has one digit per place.
constexpr std::size_t kMaxDrives = 10;

std::vector<Drive> ListDrives();

// "1, 0, N" for the drive at `index` (below kMaxDrives).
std::string DriveAddress(std::size_t index);

}  // namespace lk
