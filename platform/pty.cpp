#include "platform/pty.h"

#include <dirent.h>
#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <thread>

extern char** environ;

namespace torvane::platform {

namespace {

// How often the hang-up looks whether everything has ended.
constexpr std::chrono::milliseconds kHangUpPoll{5};

// The terminal libvterm stands in for, told to the programs.
constexpr char kTerminalType[] = "TERM=xterm-256color";

void SetFlag(int fd, int getCommand, int setCommand, int flag) {
    const int flags = fcntl(fd, getCommand);
    if (flags >= 0)
        fcntl(fd, setCommand, flags | flag);
}

// The environment of the programs: ours, with the terminal type of the screen, and without
// sizes that would override the terminal's own window size.
std::vector<QByteArray> ProgramEnvironment() {
    std::vector<QByteArray> result;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const QByteArray text(*entry);
        if (!text.startsWith("TERM=") && !text.startsWith("COLUMNS=") && !text.startsWith("LINES="))
            result.push_back(text);
    }
    result.emplace_back(kTerminalType);
    return result;
}

std::vector<char*> PointersTo(std::vector<QByteArray>& texts) {
    std::vector<char*> result;
    for (QByteArray& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

// In the child between fork and exec: only async-signal-safe calls. Reports a failed exec
// through `errorFd` and ends.
[[noreturn]] void RunChild(int slave, int errorFd, char* const argv[], char* const envp[]) {
    // Out of the way of 0-2, which are about to be replaced.
    slave = fcntl(slave, F_DUPFD, 3);
    errorFd = fcntl(errorFd, F_DUPFD_CLOEXEC, 3);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    for (int signal :
         {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGPIPE, SIGCHLD, SIGTSTP, SIGTTIN, SIGTTOU})
        std::signal(signal, SIG_DFL);
    setsid();
    // Fails when an earlier program's session holds the terminal; this one then runs
    // without a controlling terminal but still reads and writes it.
    ioctl(slave, TIOCSCTTY, 0);
    dup2(slave, STDIN_FILENO);
    dup2(slave, STDOUT_FILENO);
    dup2(slave, STDERR_FILENO);
    // Nothing of ours leaks into the program.
    close_range(3, static_cast<unsigned>(errorFd) - 1, 0);
    close_range(static_cast<unsigned>(errorFd) + 1, ~0U, 0);
    execvpe(argv[0], argv, envp);
    const int error = errno;
    [[maybe_unused]] const ssize_t written = ::write(errorFd, &error, sizeof error);
    _exit(127);
}

// True when the exec in the child failed: it wrote its errno before closing the pipe.
bool ExecFailed(int readFd) {
    int error = 0;
    ssize_t n;
    do {
        n = ::read(readFd, &error, sizeof error);
    } while (n < 0 && errno == EINTR);
    return n == static_cast<ssize_t>(sizeof error);
}

void WaitFor(pid_t pid) {
    while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
    }
}

// The process group of a /proc/<pid>/stat line, or -1 when the process has ended (a
// zombie) or cannot be read.
pid_t LiveProcessGroup(const char* pidText) {
    char path[64];
    std::snprintf(path, sizeof path, "/proc/%s/stat", pidText);
    FILE* file = std::fopen(path, "re");
    if (file == nullptr)
        return -1;
    char line[1024];
    const bool read = std::fgets(line, sizeof line, file) != nullptr;
    std::fclose(file);
    // The command name may hold blanks and parentheses: the fields follow the last ')'.
    const char* fields = read ? std::strrchr(line, ')') : nullptr;
    char state = 0;
    int parent = 0;
    int group = -1;
    if (fields == nullptr || std::sscanf(fields + 1, " %c %d %d", &state, &parent, &group) != 3)
        return -1;
    return (state == 'Z' || state == 'X') ? -1 : group;
}

}  // namespace

Pty::~Pty() {
    hangUp();
}

bool Pty::open(int rows, int columns) {
    if (isOpen())
        return true;
    winsize size{};
    size.ws_row = static_cast<unsigned short>(rows);
    size.ws_col = static_cast<unsigned short>(columns);
    if (openpty(&master_, &slave_, nullptr, nullptr, &size) != 0) {
        master_ = slave_ = -1;
        return false;
    }
    SetFlag(master_, F_GETFD, F_SETFD, FD_CLOEXEC);
    SetFlag(slave_, F_GETFD, F_SETFD, FD_CLOEXEC);
    SetFlag(master_, F_GETFL, F_SETFL, O_NONBLOCK);
    // Backspace in a line being typed erases a whole UTF-8 character.
    termios modes{};
    if (tcgetattr(slave_, &modes) == 0) {
        modes.c_iflag |= IUTF8;
        tcsetattr(slave_, TCSANOW, &modes);
    }
    return true;
}

pid_t Pty::start(const std::vector<QByteArray>& argv) {
    if (!isOpen() || argv.empty() || argv.front().isEmpty())
        return -1;
    // Everything the child needs is made before fork: after it only system calls.
    std::vector<QByteArray> arguments = argv;
    std::vector<QByteArray> environment = ProgramEnvironment();
    const std::vector<char*> argp = PointersTo(arguments);
    const std::vector<char*> envp = PointersTo(environment);
    int errorPipe[2];
    if (pipe2(errorPipe, O_CLOEXEC) != 0)
        return -1;
    const pid_t pid = fork();
    if (pid == 0)
        RunChild(slave_, errorPipe[1], argp.data(), envp.data());
    ::close(errorPipe[1]);
    const bool failed = pid < 0 || ExecFailed(errorPipe[0]);
    ::close(errorPipe[0]);
    if (pid < 0)
        return -1;
    if (failed) {
        WaitFor(pid);
        return -1;
    }
    children_.push_back(pid);
    return pid;
}

long Pty::read(char* buffer, long capacity) {
    if (!isOpen())
        return -1;
    ssize_t n;
    do {
        n = ::read(master_, buffer, static_cast<size_t>(capacity));
    } while (n < 0 && errno == EINTR);
    if (n > 0)
        return static_cast<long>(n);
    if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return 0;
    return -1;
}

void Pty::write(const char* bytes, long length) {
    while (isOpen() && length > 0) {
        const ssize_t n = ::write(master_, bytes, static_cast<size_t>(length));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return;
        bytes += n;
        length -= n;
    }
}

void Pty::hangUp() {
    closeTerminal();
    if (children_.empty())
        return;
    // Each program leads its own process group (the group id is its process id). The
    // leaders stay unreaped until the end, so no group id can pass to another process
    // while signals are still sent to it.
    for (pid_t leader : children_) {
        kill(-leader, SIGHUP);
        kill(-leader, SIGCONT);
    }
    const auto deadline = std::chrono::steady_clock::now() + kHangUpGrace;
    while (anyGroupAlive() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(kHangUpPoll);
    for (pid_t leader : children_)
        kill(-leader, SIGKILL);
    for (pid_t leader : children_)
        WaitFor(leader);
    children_.clear();
}

void Pty::closeTerminal() {
    if (master_ >= 0)
        ::close(master_);
    if (slave_ >= 0)
        ::close(slave_);
    master_ = slave_ = -1;
}

bool Pty::anyGroupAlive() const {
    DIR* proc = opendir("/proc");
    if (proc == nullptr)
        return true;  // cannot tell: wait the whole grace
    bool alive = false;
    while (const dirent* entry = readdir(proc)) {
        if (entry->d_name[0] < '1' || entry->d_name[0] > '9')
            continue;
        const pid_t group = LiveProcessGroup(entry->d_name);
        if (group > 0 && std::find(children_.begin(), children_.end(), group) != children_.end()) {
            alive = true;
            break;
        }
    }
    closedir(proc);
    return alive;
}

}  // namespace torvane::platform
