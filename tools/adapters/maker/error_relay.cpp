#include "tools/adapters/maker/error_relay.h"

#include "tools/adapters/common/adapter_support.h"

#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace maker {

namespace {

void WriteAll(int fd, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t done = write(fd, data, size);
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0)
            return;
        data += done;
        size -= static_cast<std::size_t>(done);
    }
}

// Hands each complete line of `pending` to the log: a line that ends in '\n' is a message,
// one that ends in a lone '\r' a progress report.
void TakeMessages(std::string& pending, std::string* lastLine) {
    std::size_t start = 0;
    for (std::size_t end; (end = pending.find_first_of("\r\n", start)) != std::string::npos;
         start = end + 1) {
        if (pending[end] == '\r' && end + 1 == pending.size())
            break;  // a CR LF may still come whole
        if (pending[end] == '\r' && pending[end + 1] != '\n')
            continue;
        const std::string line = pending.substr(start, end - start);
        if (pending[end] == '\r')
            ++end;
        WriteAll(STDOUT_FILENO, (line + "\n").data(), line.size() + 1);
        if (line.find_first_not_of(" \t") != std::string::npos)
            *lastLine = line;
    }
    pending.erase(0, start);
}

}  // namespace

int RunRelayingErrors(const std::string& program, const std::vector<std::string>& args,
                      std::string* lastLine) {
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0)
        return -1;
    // An ignored SIGCHLD, which a parent may hand down, would reap the tool unseen.
    signal(SIGCHLD, SIG_DFL);
    std::fflush(nullptr);
    const pid_t adapterPid = getpid();
    const pid_t child = fork();
    if (child == 0) {
        close(pipeEnds[0]);
        adapter::ExecToolChild(program, args, pipeEnds[1], STDERR_FILENO, adapterPid);
    }
    close(pipeEnds[1]);
    if (child < 0) {
        close(pipeEnds[0]);
        return -1;
    }
    std::string pending;
    char buffer[4096];
    for (;;) {
        const ssize_t got = read(pipeEnds[0], buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        WriteAll(STDERR_FILENO, buffer, static_cast<std::size_t>(got));
        pending.append(buffer, static_cast<std::size_t>(got));
        TakeMessages(pending, lastLine);
    }
    close(pipeEnds[0]);
    pending += '\n';
    TakeMessages(pending, lastLine);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

}  // namespace maker
