#include "tools/adapters/lk/drive_list.h"

#include <cdio/cdio.h>
#include <cdio/device.h>
#include <cstdlib>

namespace lk {

namespace {

std::vector<Drive> DrivesOfVariable(const std::string& value) {
    std::vector<Drive> drives;
    std::size_t start = 0;
    while (start < value.size()) {
        const std::size_t end = std::min(value.find(';', start), value.size());
        const std::string entry = value.substr(start, end - start);
        const std::size_t equals = entry.find('=');
        if (!entry.empty())
            drives.push_back({entry.substr(0, equals), equals == std::string::npos
                                                           ? std::string()
                                                           : entry.substr(equals + 1)});
        start = end + 1;
    }
    return drives;
}

// Vendor and model from the drive's own answer, or the device's name when it gives none.
std::string Description(const char* device) {
    std::string description = device;
    CdIo_t* cdio = cdio_open(device, DRIVER_DEVICE);
    cdio_hwinfo_t info{};
    if (cdio != nullptr && cdio_get_hwinfo(cdio, &info))
        description = std::string(info.psz_vendor) + " " + info.psz_model;
    if (cdio != nullptr)
        cdio_destroy(cdio);
    return description;
}

}  // namespace

std::vector<Drive> ListDrives() {
    std::vector<Drive> drives;
    if (const char* standIn = std::getenv("TORVANE_CD_DEVICES"))
        drives = DrivesOfVariable(standIn);
    else if (char** devices = cdio_get_devices(DRIVER_DEVICE)) {
        for (char** device = devices; *device != nullptr; ++device)
            drives.push_back({*device, Description(*device)});
        cdio_free_device_list(devices);
    }
    if (drives.size() > kMaxDrives)
        drives.resize(kMaxDrives);
    return drives;
}

std::string DriveAddress(std::size_t index) {
    return "1, 0, " + std::to_string(index);
}

}  // namespace lk
