#include "tools/adapters/reading/tool_relay.h"

#include "tools/adapters/reading/private_folder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

extern char** environ;

namespace reading {

namespace {

constexpr std::size_t kReadSize = 16384;
constexpr char kPreloadVariable[] = "LD_PRELOAD=";

void WriteAll(const std::string& text) {
    const char* data = text.data();
    std::size_t size = text.size();
    while (size > 0) {
        const ssize_t put = write(STDOUT_FILENO, data, size);
        if (put < 0 && errno == EINTR)
            continue;
        if (put < 0)
            return;  // a log that cannot be written loses the rest, nothing more
        data += put;
        size -= static_cast<std::size_t>(put);
    }
}

// The adapter's environment with `preload` put in front of any LD_PRELOAD it has.
std::vector<std::string> ToolEnvironment(const std::string& preload) {
    std::vector<std::string> env;
    std::string preloadList = preload;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        if (std::strncmp(*variable, kPreloadVariable, sizeof kPreloadVariable - 1) == 0)
            preloadList += std::string(":") + (*variable + sizeof kPreloadVariable - 1);
        else
            env.emplace_back(*variable);
    }
    env.push_back(kPreloadVariable + preloadList);
    return env;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

[[noreturn]] void RunInChild(const std::string& program, std::vector<std::string> argv,
                             std::vector<std::string> env, int outputPipe) {
    ResetSignalsForTool();
    dup2(outputPipe, STDOUT_FILENO);
    std::vector<char*> argPointers = Pointers(argv);
    std::vector<char*> envPointers = Pointers(env);
    execve(program.c_str(), argPointers.data(), envPointers.data());
    std::fprintf(stderr, "cannot start %s: %s\n", program.c_str(), std::strerror(errno));
    _exit(127);
}

// Relays complete lines; what follows the last line end stays in `pending`.
void RelayLines(std::string& pending, const LineFilter& filter, bool atEnd) {
    std::string out;
    std::size_t start = 0;
    for (std::size_t end; (end = pending.find('\n', start)) != std::string::npos; start = end + 1) {
        std::string line = pending.substr(start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        filter(line);
        out += line + "\r\n";
    }
    pending.erase(0, start);
    if (atEnd && !pending.empty()) {
        filter(pending);
        out += pending + "\r\n";
        pending.clear();
    }
    WriteAll(out);
}

ToolEnd WaitFor(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            return {};
    }
    ToolEnd end;
    if (WIFSIGNALED(status))
        end.signal = WTERMSIG(status);
    if (WIFEXITED(status))
        end.exitCode = WEXITSTATUS(status);
    return end;
}

}  // namespace

std::string ToolEnd::Describe() const {
    if (signal == 0 && exitCode < 0)
        return "could not be started";
    if (signal != 0)
        return "was ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ")";
    return "ended with status " + std::to_string(exitCode);
}

ToolEnd RunRelayed(const std::string& program, const std::vector<std::string>& args,
                   const std::string& preload, const LineFilter& filter) {
    std::vector<std::string> argv{program};
    argv.insert(argv.end(), args.begin(), args.end());
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return {};
    std::vector<std::string> env = ToolEnvironment(preload);
    BlockEndingSignals();
    const pid_t child = fork();
    if (child == 0)
        RunInChild(program, std::move(argv), std::move(env), fds[1]);
    SetRunningTool(child > 0 ? child : 0);
    UnblockEndingSignals();
    close(fds[1]);
    std::string pending;
    char buffer[kReadSize];
    for (;;) {
        const ssize_t got = read(fds[0], buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        pending.append(buffer, static_cast<std::size_t>(got));
        RelayLines(pending, filter, false);
    }
    RelayLines(pending, filter, true);
    close(fds[0]);
    if (child < 0)
        return {};
    const ToolEnd end = WaitFor(child);
    SetRunningTool(0);
    return end;
}

void WriteLine(const std::string& line) {
    WriteAll(line + "\r\n");
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
}

}  // namespace reading
