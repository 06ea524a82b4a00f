#include "tools/adapters/lk/lk_rip_args.h"

namespace lk {

namespace {

// "1,0,N" as the dialog makes it of "1, 0, N": the index N.
std::optional<std::size_t> DriveIndex(const std::string& address) {
    if (address.size() != 5 || address.compare(0, 4, "1,0,") != 0 || address[4] < '0' ||
        address[4] > '9')
        return std::nullopt;
    return static_cast<std::size_t>(address[4] - '0');
}

}  // namespace

std::optional<RipRequest> ParseRipArgs(const std::vector<std::string>& args, std::string* error) {
    RipRequest request;
    int sources = 0;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "/s" || arg == "/e" || arg == "/r") {
            request.switches.push_back(arg == "/s"   ? "--sector-2336"
                                       : arg == "/e" ? "--no-ext-psd"
                                                     : "--norip");
            continue;
        }
        if (arg != "/o" && arg != "/b" && arg != "/n" && arg != "/c" && arg != "/d") {
            *error = "unknown argument \"" + arg + "\"";
            return std::nullopt;
        }
        if (i + 1 >= args.size() || args[i + 1].empty()) {
            *error = arg + " needs a value";
            return std::nullopt;
        }
        const std::string& value = args[++i];
        if (arg == "/o") {
            request.folder = value;
        } else if (arg == "/b" || arg == "/n") {
            (arg == "/b" ? request.binFile : request.nrgFile) = value;
            ++sources;
        } else if (arg == "/c") {
            request.drive = DriveIndex(value);
            if (!request.drive) {
                *error = "no drive can have the address " + value;
                return std::nullopt;
            }
            ++sources;
        }
    }
    if (sources != 1 || request.folder.empty()) {
        *error = "give the folder with /o and one source: /b, /n or /c";
        return std::nullopt;
    }
    return request;
}

}  // namespace lk
