#include "tools/adapters/authoring/tool_capture.h"

#include "tools/adapters/common/adapter_support.h"

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace authoring {

namespace {

// The tool writes into a memory file rather than a pipe: it flushes every line, and a
// pipe would wake the adapter for each, which costs a long build more than all the rest
// of the adapter. The adapter reads what is new this often, so progress still shows live.
constexpr long kRefreshNs = 50L * 1000 * 1000;
constexpr std::size_t kReadSize = 65536;

ToolEnd EndOf(int status) {
    ToolEnd end;
    end.started = true;
    if (WIFSIGNALED(status))
        end.signal = WTERMSIG(status);
    if (WIFEXITED(status))
        end.exitCode = WEXITSTATUS(status);
    return end;
}

// Appends what the tool wrote beyond `offset` to `pending`.
void ReadNew(int fd, off_t& offset, std::string& pending) {
    char buffer[kReadSize];
    for (;;) {
        const ssize_t got = pread(fd, buffer, sizeof buffer, offset);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return;
        pending.append(buffer, static_cast<std::size_t>(got));
        offset += got;
    }
}

// Relays the output until the tool has ended (SIGCHLD, blocked by the caller, says so).
ToolEnd Relay(int fd, pid_t child, const LineSink& sink) {
    sigset_t childEnded;
    sigemptyset(&childEnded);
    sigaddset(&childEnded, SIGCHLD);
    const timespec refresh{0, kRefreshNs};
    off_t offset = 0;
    std::string pending;
    for (;;) {
        const int signal = sigtimedwait(&childEnded, nullptr, &refresh);
        ReadNew(fd, offset, pending);
        int status = 0;
        const bool ended = signal == SIGCHLD && waitpid(child, &status, WNOHANG) == child;
        if (ended)
            ReadNew(fd, offset, pending);
        TakeLines(pending, sink, ended);
        if (ended)
            return EndOf(status);
    }
}

}  // namespace

std::string ToolEnd::Describe() const {
    if (!started)
        return "could not be started";
    if (signal != 0)
        return "was ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ")";
    return "ended with status " + std::to_string(exitCode);
}

void TakeLines(std::string& pending, const LineSink& sink, bool atEnd) {
    std::size_t start = 0;
    for (std::size_t end; (end = pending.find('\n', start)) != std::string::npos; start = end + 1) {
        std::size_t size = end - start;
        if (size > 0 && pending[end - 1] == '\r')
            --size;
        sink(pending.substr(start, size));
    }
    pending.erase(0, start);
    if (atEnd && !pending.empty()) {
        sink(pending);
        pending.clear();
    }
}

ToolEnd RunCaptured(const std::string& program, const std::vector<std::string>& args,
                    const LineSink& sink) {
    const int output = memfd_create("tool-output", MFD_CLOEXEC);
    if (output < 0)
        return {};
    // An ignored SIGCHLD, which a parent may hand down, would reap the tool unseen.
    signal(SIGCHLD, SIG_DFL);
    sigset_t childEnded, before;
    sigemptyset(&childEnded);
    sigaddset(&childEnded, SIGCHLD);
    sigprocmask(SIG_BLOCK, &childEnded, &before);
    std::fflush(nullptr);
    const pid_t adapterPid = getpid();
    const pid_t child = fork();
    if (child == 0) {
        sigprocmask(SIG_SETMASK, &before, nullptr);
        adapter::ExecToolChild(program, args, output, STDOUT_FILENO, adapterPid);
    }
    const ToolEnd end = child < 0 ? ToolEnd{} : Relay(output, child, sink);
    close(output);
    sigprocmask(SIG_SETMASK, &before, nullptr);
    return end;
}

}  // namespace authoring
