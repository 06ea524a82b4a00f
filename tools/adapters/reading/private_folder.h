#pragma once
// The adapter's private temporary folder. It is made under $TMPDIR (or /tmp), holds only
// entries of the fixed names below, and goes on every way out of the adapter: a normal
// return, Fail(), and the signals that end it when its console is dropped (SIGHUP, then
// SIGTERM or SIGKILL; SIGKILL leaves the folder, which holds nothing large).
// The running tool gets the same signal, so that nothing of the job is left running.

#include <sys/types.h>
#include <string>

namespace reading {

// The names that may stand in the folder.
constexpr const char* kCueEntry = "image.cue";
constexpr const char* kBinEntry = "image.bin";
constexpr const char* kPreloadEntry = "helper.so";

// Makes the folder and arranges its removal; fails the adapter when it cannot be made.
// Called once, before anything else is written.
void MakePrivateFolder(const std::string& adapterName);

// The folder's path, and the path of one of the entries above in it.
std::string PrivateFolderPath();
std::string PrivateEntry(const char* name);

// Removes the folder with all its entries; safe to call again, and from a signal handler.
void RemovePrivateFolder();

// Blocks the ending signals while a tool is started, so that none is lost between the
// start and SetRunningTool(); the child unblocks them before it runs the tool.
void BlockEndingSignals();
void UnblockEndingSignals();
void SetRunningTool(pid_t pid);
// In the started child, before it runs the tool: default handling, nothing blocked.
void ResetSignalsForTool();

}  // namespace reading
