#include "tools/adapters/common/adapter_support.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace adapter {

std::string RealToolPath(const std::string& name) {
    return "/usr/bin/" + name;
}

int RunTool(const std::string& program, const std::vector<std::string>& args) {
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);

    // An ignored SIGCHLD, which a parent may hand down, would reap the tool unseen.
    signal(SIGCHLD, SIG_DFL);
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) {
        std::fprintf(stderr, "cannot start %s: %s\n", program.c_str(), std::strerror(errno));
        return -1;
    }
    if (child == 0) {
        execv(program.c_str(), argv.data());
        std::fprintf(stderr, "cannot start %s: %s\n", program.c_str(), std::strerror(errno));
        _exit(127);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    if (WIFSIGNALED(status))
        return 128 + WTERMSIG(status);
    return WEXITSTATUS(status);
}

void ExecToolChild(const std::string& program, const std::vector<std::string>& args, int fd,
                   int target, int adapter) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != adapter)
        _exit(127);  // the adapter is already gone
    dup2(fd, target);
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    execv(program.c_str(), argv.data());
    std::fprintf(stderr, "cannot start %s: %s\n", program.c_str(), std::strerror(errno));
    _exit(127);
}

void Fail(const std::string& adapterName, const std::string& message) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s: %s\n", adapterName.c_str(), message.c_str());
    std::exit(1);
}

}  // namespace adapter
