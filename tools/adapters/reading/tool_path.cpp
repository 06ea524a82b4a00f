#include "tools/adapters/reading/tool_path.h"

#include "tools/adapters/reading/private_folder.h"

#include <limits.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace reading {

namespace {

constexpr char kHelperName[] = "torvane-reading.so";

}  // namespace

std::string AdapterFolder() {
    char path[PATH_MAX];
    const ssize_t size = readlink("/proc/self/exe", path, sizeof path - 1);
    if (size <= 0)
        return ".";
    const std::string self(path, static_cast<std::size_t>(size));
    return self.substr(0, self.rfind('/'));
}

void RequireTool(const std::string& adapterName, const std::string& tool) {
    if (access(tool.c_str(), X_OK) != 0)
        adapter::Fail(adapterName, "cannot run " + tool + " (" + std::strerror(errno) +
                                       "); it comes with the vcdimager package");
}

std::string LinkReadingHelper(const std::string& adapterName) {
    const std::string helper = AdapterFolder() + "/" + kHelperName;
    if (access(helper.c_str(), R_OK) != 0)
        adapter::Fail(adapterName,
                      "the helper " + helper + " is missing (" + std::strerror(errno) + ")");
    const std::string link = PrivateEntry(kPreloadEntry);
    if (symlink(helper.c_str(), link.c_str()) != 0)
        adapter::Fail(adapterName, "cannot link " + helper + " into " + PrivateFolderPath() + ": " +
                                       std::strerror(errno));
    return link;
}

}  // namespace reading
