#include "tools/torvane-cmd/program_start.h"

#include "tools/torvane-cmd/fd_output.h"
#include "tools/torvane-cmd/hang_up.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <vector>

namespace jobscript {

namespace {

constexpr char kNotRecognized[] =
    "' is not recognized as an internal or external command,\r\n"
    "operable program or batch file.\r\n";
constexpr char kPathNotFound[] = "The system cannot find the path specified.\r\n";
constexpr char kSyntaxIncorrect[] = "The syntax of the command is incorrect.\r\n";
constexpr mode_t kNewFileMode = 0666;  // narrowed by the umask, as for any new file

bool IsExecutableFile(const std::string& path) {
    struct stat info;
    return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
           access(path.c_str(), X_OK) == 0;
}

void ReportNotRecognized(const std::string& word) {
    WriteError("'" + word + kNotRecognized);
}

int OpenTarget(const ProgramLine& line) {
    const int mode = line.output == OutputTarget::Append ? O_APPEND : O_TRUNC;
    return open(line.target.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | mode, kNewFileMode);
}

std::vector<char*> ArgumentPointers(std::vector<std::string>& argv) {
    std::vector<char*> pointers;
    for (std::string& arg : argv)
        pointers.push_back(arg.data());
    pointers.push_back(nullptr);
    return pointers;
}

// In the child: the output file as standard output, the interrupt keys and the hang-up
// back to their usual effect (the script handles them its own way), then the program.
// If it cannot be started, its errno goes back to the script through `errorPipe`.
[[noreturn]] void StartInChild(const std::string& path, char* const* argv, int outputFd,
                               int errorPipe) {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGQUIT, SIG_DFL);
    RestoreHangUpInChild();
    if (outputFd == STDOUT_FILENO)
        fcntl(outputFd, F_SETFD, 0);
    else if (outputFd >= 0)
        dup2(outputFd, STDOUT_FILENO);
    execv(path.c_str(), argv);
    const int error = errno;
    while (write(errorPipe, &error, sizeof error) < 0 && errno == EINTR) {
    }
    _exit(127);
}

// True if the child reports that it could not start its program.
bool StartFailed(int errorPipe) {
    int error = 0;
    ssize_t got;
    while ((got = read(errorPipe, &error, sizeof error)) < 0 && errno == EINTR) {
    }
    return got > 0;
}

void WaitFor(pid_t child) {
    int status;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
}

// Starts `path` and waits for it; false if it could not be started.
bool StartAndWait(const std::string& path, const ProgramLine& line, int outputFd) {
    std::vector<std::string> argv{path};
    argv.insert(argv.end(), line.args.begin(), line.args.end());
    const std::vector<char*> pointers = ArgumentPointers(argv);
    int errorPipe[2];
    if (pipe2(errorPipe, O_CLOEXEC) != 0)
        return false;
    BlockHangUp();
    BeginChildWait();
    const pid_t child = fork();
    if (child == 0) {
        close(errorPipe[0]);
        StartInChild(path, pointers.data(), outputFd, errorPipe[1]);
    }
    UnblockHangUp();
    close(errorPipe[1]);
    const bool started = child > 0 && !StartFailed(errorPipe[0]);
    close(errorPipe[0]);
    if (child > 0)
        WaitFor(child);
    EndChildWait();
    return started;
}

}  // namespace

std::string FindProgram(const std::string& name) {
    if (name.empty())
        return std::string();
    if (name.find('/') != std::string::npos)
        return name;
    if (IsExecutableFile(name))
        return name;
    const char* searchPath = std::getenv("PATH");
    if (searchPath == nullptr)
        return std::string();
    const std::string folders = searchPath;
    for (std::size_t start = 0; start <= folders.size();) {
        std::size_t end = folders.find(':', start);
        if (end == std::string::npos)
            end = folders.size();
        const std::string folder = end > start ? folders.substr(start, end - start) : ".";
        const std::string candidate = folder + "/" + name;
        if (IsExecutableFile(candidate))
            return candidate;
        start = end + 1;
    }
    return std::string();
}

void RunProgram(const ProgramLine& line) {
    if (line.missingTarget) {
        WriteError(kSyntaxIncorrect);
        return;
    }
    // As in the command interpreter, the output file is made before the program is
    // looked for: a program that is not found leaves an empty log.
    int outputFd = -1;
    if (line.output != OutputTarget::Terminal) {
        outputFd = OpenTarget(line);
        if (outputFd < 0) {
            WriteError(kPathNotFound);
            return;
        }
    }
    // A line of a redirection alone makes its file and runs nothing.
    const std::string path = line.word.empty() ? std::string() : FindProgram(line.program);
    if (!line.word.empty() && (path.empty() || !StartAndWait(path, line, outputFd)))
        ReportNotRecognized(line.word);
    if (outputFd >= 0)
        close(outputFd);
}

}  // namespace jobscript
