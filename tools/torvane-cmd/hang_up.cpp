#include "tools/torvane-cmd/hang_up.h"

#include <signal.h>
#include <csignal>
#include <cstdlib>

namespace jobscript {

namespace {

volatile sig_atomic_t childRunning = 0;
volatile sig_atomic_t hungUp = 0;

[[noreturn]] void EndByHangUp() {
    std::signal(SIGHUP, SIG_DFL);
    UnblockHangUp();
    raise(SIGHUP);
    std::_Exit(128 + SIGHUP);  // not reached: SIGHUP ends the process
}

void OnHangUp(int) {
    if (!childRunning)
        EndByHangUp();
    // A terminal that hangs up signals its session leader only, and the script is the
    // leader of the console's session: the program has to be told. Once is enough; the
    // script gets its own signal back and lets it pass.
    if (!hungUp) {
        hungUp = 1;
        kill(0, SIGHUP);
    }
}

void SetHangUpMask(int how) {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGHUP);
    sigprocmask(how, &set, nullptr);
}

}  // namespace

void WatchForHangUp() {
    struct sigaction action {};
    action.sa_handler = OnHangUp;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGHUP, &action, nullptr);
}

void BlockHangUp() {
    SetHangUpMask(SIG_BLOCK);
}

void UnblockHangUp() {
    SetHangUpMask(SIG_UNBLOCK);
}

void RestoreHangUpInChild() {
    std::signal(SIGHUP, SIG_DFL);
    UnblockHangUp();
}

void BeginChildWait() {
    childRunning = 1;
}

void EndChildWait() {
    childRunning = 0;
    if (hungUp)
        EndByHangUp();
}

}  // namespace jobscript
