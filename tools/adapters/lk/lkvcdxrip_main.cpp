// lkvcdxrip.exe: stands in for the lkVCDImager fork's lkvcdxrip, which exists for Windows
// only. It takes the fork's slash switches (lk_rip_args.h) and hands the rip to our
// vcdxrip.exe, run in the /o folder with videocd.xml as its descriptor: a lone BIN,
// 2336-byte sectors and the log's closing "   INFO: done" are then VCDXRIP's own. A drive
// is found by its address among the drives the scan lists; an image file standing in for
// a drive (drive_list.h) is read as the BIN it is, by the same steps.

#include "tools/adapters/authoring/tool_path.h"
#include "tools/adapters/lk/drive_list.h"
#include "tools/adapters/lk/lk_rip_args.h"
#include "tools/adapters/reading/tool_path.h"

#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace {

constexpr char kName[] = "lkvcdxrip.exe";

// The path as seen from any folder.
std::string Absolute(const std::string& path) {
    char cwd[PATH_MAX];
    if (path.empty() || path[0] == '/' || getcwd(cwd, sizeof cwd) == nullptr)
        return path;
    return std::string(cwd) + "/" + path;
}

std::string SourceSwitch(const lk::RipRequest& request) {
    if (!request.binFile.empty())
        return "--bin-file=" + Absolute(request.binFile);
    if (!request.nrgFile.empty())
        return "--nrg-file=" + Absolute(request.nrgFile);
    const std::vector<lk::Drive> drives = lk::ListDrives();
    if (*request.drive >= drives.size())
        adapter::Fail(kName, "no CD drive is listed at the address " +
                                 lk::DriveAddress(*request.drive) + " (" +
                                 std::to_string(drives.size()) + " found)");
    const std::string& device = drives[*request.drive].device;
    struct stat info {};
    if (stat(device.c_str(), &info) == 0 && S_ISREG(info.st_mode))
        return "--bin-file=" + Absolute(device);
    return "--cdrom-device=" + device;
}

}  // namespace

int main(int argc, char** argv) {
    std::string error;
    const auto request = lk::ParseRipArgs(authoring::Arguments(argc, argv), &error);
    if (!request)
        adapter::Fail(kName, error);
    std::vector<std::string> args{"-v", "--output-file=videocd.xml"};
    args.insert(args.end(), request->switches.begin(), request->switches.end());
    args.push_back(SourceSwitch(*request));
    if (chdir(request->folder.c_str()) != 0)
        adapter::Fail(kName, "cannot work in " + request->folder + ": " + std::strerror(errno));
    authoring::ExecTool(kName, reading::AdapterFolder() + "/../VCDImager/vcdxrip.exe", args);
}
