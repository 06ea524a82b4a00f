// Loaded into Debian's vcdxrip and vcd-info by the reading adapters (LD_PRELOAD), before
// their main() runs.
//
// libvcdinfo drops every message below its exported vcd_loglevel_default, which is WARN,
// and no switch of the tools lowers it: vcdxrip's INFO lines, "   INFO: done" among them,
// would never appear. We lower it to INFO. The tools' standard output, a pipe to the
// adapter, is made line-buffered, so that a report up to a crash still reaches the log.

#include <dlfcn.h>
#include <cstdio>

namespace {

constexpr int kVcdLogInfo = 2;  // vcd_log_level_t: DEBUG 1, INFO 2, WARN 3, ERROR 4

__attribute__((constructor)) void LowerLogLevel() {
    int* level = static_cast<int*>(dlsym(RTLD_DEFAULT, "vcd_loglevel_default"));
    if (level != nullptr && *level > kVcdLogInfo)
        *level = kVcdLogInfo;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
}

}  // namespace
