#include "tools/adapters/reading/private_folder.h"

#include "tools/adapters/common/adapter_support.h"

#include <limits.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace reading {

namespace {

constexpr std::array<const char*, 3> kEntries = {kCueEntry, kBinEntry, kPreloadEntry};
constexpr std::array<int, 5> kEndingSignals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGPIPE};

// Laid out before any signal can come, so that the handler only calls unlink and rmdir.
char g_folder[PATH_MAX];
char g_entries[kEntries.size()][PATH_MAX];
volatile sig_atomic_t g_folderMade = 0;
volatile pid_t g_tool = 0;

// The preload list of the dynamic loader splits at blanks and colons, so the folder must
// hold neither; $TMPDIR is used when it is such a path.
std::string TempBase() {
    const char* tmpdir = std::getenv("TMPDIR");
    if (tmpdir != nullptr && tmpdir[0] == '/' && std::strpbrk(tmpdir, " \t\n:") == nullptr &&
        std::strlen(tmpdir) < PATH_MAX / 2)
        return tmpdir;
    return "/tmp";
}

void CopyPath(char* out, const std::string& path) {
    const std::size_t size = std::min(path.size(), std::size_t{PATH_MAX - 1});
    std::memcpy(out, path.data(), size);
    out[size] = '\0';
}

void OnEndingSignal(int signal) {
    const pid_t tool = g_tool;
    if (tool > 0)
        kill(tool, signal == SIGPIPE ? SIGTERM : signal);
    RemovePrivateFolder();
    raise(signal);  // the handler was reset on entry: this ends the adapter by the signal
}

void InstallHandlers() {
    struct sigaction action {};
    action.sa_handler = OnEndingSignal;
    action.sa_flags = SA_RESETHAND | SA_NODEFER;
    sigemptyset(&action.sa_mask);
    for (const int signal : kEndingSignals)
        sigaction(signal, &action, nullptr);
}

}  // namespace

void MakePrivateFolder(const std::string& adapterName) {
    std::string pattern = TempBase() + "/torvane-" + adapterName + "-XXXXXX";
    BlockEndingSignals();
    if (mkdtemp(pattern.data()) == nullptr)
        adapter::Fail(adapterName, "cannot make a temporary folder in " + TempBase() + ": " +
                                       std::strerror(errno));
    // TempBase() keeps these paths well under PATH_MAX.
    CopyPath(g_folder, pattern);
    for (std::size_t i = 0; i < kEntries.size(); ++i)
        CopyPath(g_entries[i], pattern + "/" + kEntries[i]);
    g_folderMade = 1;
    std::atexit(RemovePrivateFolder);
    InstallHandlers();
    UnblockEndingSignals();
}

std::string PrivateFolderPath() {
    return g_folder;
}

std::string PrivateEntry(const char* name) {
    return std::string(g_folder) + "/" + name;
}

void RemovePrivateFolder() {
    if (!g_folderMade)
        return;
    for (const char* entry : g_entries)
        unlink(entry);
    rmdir(g_folder);
    g_folderMade = 0;
}

void BlockEndingSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kEndingSignals)
        sigaddset(&set, signal);
    sigprocmask(SIG_BLOCK, &set, nullptr);
}

void UnblockEndingSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kEndingSignals)
        sigaddset(&set, signal);
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void SetRunningTool(pid_t pid) {
    g_tool = pid;
}

void ResetSignalsForTool() {
    for (const int signal : kEndingSignals)
        std::signal(signal, SIG_DFL);
    UnblockEndingSignals();
}

}  // namespace reading
