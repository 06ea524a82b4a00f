#include "tools/adapters/authoring/output_stand_in.h"

#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

namespace authoring {

namespace {

constexpr std::array<int, 4> kEndingSignals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

// Copied here before any signal can come, so that the handler only calls unlink.
char g_standIn[PATH_MAX];
volatile sig_atomic_t g_made = 0;

void OnEndingSignal(int signal) {
    DropOutputStandIn();
    raise(signal);  // the handler was reset on entry: this ends the adapter by the signal
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

mode_t NewFilePermissions() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

}  // namespace

std::string MakeOutputStandIn(const std::string& output, std::string* error) {
    std::string pattern = FolderOf(output) + "/.torvane-output-XXXXXX";
    if (pattern.size() >= sizeof g_standIn) {
        *error = "the output path is too long: " + output;
        return {};
    }
    struct sigaction action {};
    action.sa_handler = OnEndingSignal;
    action.sa_flags = SA_RESETHAND | SA_NODEFER;
    sigemptyset(&action.sa_mask);
    sigset_t blocked;
    sigemptyset(&blocked);
    for (const int signal : kEndingSignals)
        sigaddset(&blocked, signal);
    sigprocmask(SIG_BLOCK, &blocked, nullptr);
    const int fd = mkstemp(pattern.data());
    if (fd >= 0) {
        close(fd);
        std::memcpy(g_standIn, pattern.c_str(), pattern.size() + 1);
        g_made = 1;
        std::atexit(DropOutputStandIn);
        for (const int signal : kEndingSignals)
            sigaction(signal, &action, nullptr);
    } else {
        *error = "cannot write in " + FolderOf(output) + ": " + std::strerror(errno);
    }
    sigprocmask(SIG_UNBLOCK, &blocked, nullptr);
    return fd >= 0 ? pattern : std::string();
}

bool ReplaceOutputByStandIn(const std::string& output, std::string* error) {
    struct stat info {};
    if (stat(g_standIn, &info) != 0 || info.st_size == 0) {
        *error = "nothing was written; " + output + " is left as it was";
    } else if (chmod(g_standIn, NewFilePermissions()) != 0 ||
               rename(g_standIn, output.c_str()) != 0) {
        *error = "cannot put the result in place of " + output + ": " + std::strerror(errno);
    } else {
        g_made = 0;
        return true;
    }
    DropOutputStandIn();
    return false;
}

void DropOutputStandIn() {
    if (!g_made)
        return;
    unlink(g_standIn);
    g_made = 0;
}

}  // namespace authoring
