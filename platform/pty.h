#pragma once
// A pseudo-terminal and the programs started in it. All the operating-system work of the
// console (openpty, fork, the controlling terminal, signals, reaping) is in this class.
//
// Each program starts as the leader of a new session whose controlling terminal is the
// terminal's slave side, so a hang-up reaches it and everything it started.

#include <sys/types.h>
#include <QByteArray>
#include <chrono>
#include <vector>

namespace torvane::platform {

class Pty {
public:
    // Time a program has to end on SIGHUP (flush its output, remove its temporary files)
    // before it and the rest of its process group are killed.
    static constexpr std::chrono::milliseconds kHangUpGrace{300};

    Pty() = default;
    // Hangs up.
    ~Pty();
    Pty(const Pty&) = delete;
    Pty& operator=(const Pty&) = delete;

    // Opens the terminal with a window of that size. False when no terminal can be had.
    bool open(int rows, int columns);
    bool isOpen() const { return master_ >= 0; }
    // The master side, non-blocking: readable when a program has written something.
    int masterFd() const { return master_; }

    // Starts argv[0] (looked up in PATH when it holds no slash) with these arguments, in
    // the current directory. The process id, or -1 when the program could not be started.
    pid_t start(const std::vector<QByteArray>& argv);

    // What the programs have written, at most `capacity` bytes: > 0 bytes read, 0 when
    // nothing is waiting, -1 when the terminal is closed or failed.
    long read(char* buffer, long capacity);
    // Bytes for the programs, as if typed. What the terminal cannot take now is dropped:
    // a program that reads no input must not block the caller.
    void write(const char* bytes, long length);

    // Closes the terminal, sends SIGHUP to every program started and to its process
    // group, kills what is left after kHangUpGrace, and reaps the programs started.
    void hangUp();

private:
    void closeTerminal();
    bool anyGroupAlive() const;

    int master_ = -1;
    int slave_ = -1;  // kept open so that the master never reads end-of-file between programs
    std::vector<pid_t> children_;  // started and not yet reaped
};

}  // namespace torvane::platform
