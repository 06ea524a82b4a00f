// torvane-cmd on a real pseudo-terminal, as the console runs it: "pause" waits for a key,
// "cls" puts the next text at the top left of an 80x25 screen, an interrupt key ends the
// tool and not the script, and hanging up the terminal ends the script and its tool.

#include "script_fixture.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utmp.h>
#include <vterm.h>
#include <QTest>
#include <cerrno>
#include <csignal>

using namespace torvane::test;

namespace {

constexpr int kRows = 25;
constexpr int kColumns = 80;

// torvane-cmd started on a new pseudo-terminal, in the fixture's job directory.
class TerminalRun {
public:
    TerminalRun(const ScriptFixture& fixture, const QString& scriptName) {
        winsize size{kRows, kColumns, 0, 0};
        if (openpty(&master_, &slave_, nullptr, nullptr, &size) != 0)
            return;
        termios mode;
        tcgetattr(slave_, &mode);
        mode.c_oflag &= ~static_cast<tcflag_t>(OPOST);  // the bytes arrive as written
        tcsetattr(slave_, TCSANOW, &mode);
        const QByteArray work = QFile::encodeName(fixture.work());
        const QByteArray path = fixture.searchPath();
        const QByteArray script = QFile::encodeName(scriptName);
        pid_ = fork();
        if (pid_ == 0) {
            close(master_);
            login_tty(slave_);
            if (chdir(work.constData()) == 0 && setenv("PATH", path.constData(), 1) == 0)
                execl(TORVANE_CMD, "torvane-cmd", script.constData(), nullptr);
            _exit(127);
        }
    }
    ~TerminalRun() {
        hangUp();
        if (pid_ > 0 && !exited_) {
            kill(pid_, SIGKILL);
            waitpid(pid_, nullptr, 0);
        }
    }

    // Reads until `text` has been seen; false if the terminal closes or the guard runs out.
    bool readUntil(const QByteArray& text) {
        return QTest::qWaitFor(
            [&] {
                readSome();
                return seen_.contains(text);
            },
            kHangGuardMs);
    }
    QByteArray seen() const { return seen_; }
    bool type(const QByteArray& keys) {
        return write(master_, keys.constData(), keys.size()) == keys.size();
    }
    termios slaveMode() const {
        termios mode{};
        tcgetattr(slave_, &mode);
        return mode;
    }
    bool running() { return pid_ > 0 && !exited_ && waitpid(pid_, &status_, WNOHANG) == 0; }
    // Waits until torvane-cmd has ended; its wait status, or -1 after the guard.
    int waitForEnd() {
        exited_ =
            QTest::qWaitFor([&] { return waitpid(pid_, &status_, WNOHANG) == pid_; }, kHangGuardMs);
        return exited_ ? status_ : -1;
    }
    void hangUp() {
        for (int* fd : {&slave_, &master_}) {
            if (*fd >= 0)
                close(*fd);
            *fd = -1;
        }
    }

private:
    void readSome() {
        pollfd ready{master_, POLLIN, 0};
        char buffer[4096];
        if (poll(&ready, 1, 10) > 0) {
            const ssize_t got = read(master_, buffer, sizeof buffer);
            if (got > 0)
                seen_.append(buffer, got);
        }
    }

    int master_ = -1;
    int slave_ = -1;
    pid_t pid_ = -1;
    int status_ = 0;
    bool exited_ = false;
    QByteArray seen_;
};

// The text of one screen row after `bytes` went to an 80x25 terminal.
QByteArray ScreenRow(const QByteArray& bytes, int row) {
    VTerm* vt = vterm_new(kRows, kColumns);
    vterm_set_utf8(vt, 1);
    VTermScreen* screen = vterm_obtain_screen(vt);
    vterm_screen_reset(screen, 1);
    vterm_input_write(vt, bytes.constData(), bytes.size());
    char text[kColumns * 4];
    const VTermRect rect{row, row + 1, 0, kColumns};
    const size_t length = vterm_screen_get_text(screen, text, sizeof text, rect);
    vterm_free(vt);
    return QByteArray(text, int(length)).trimmed();
}

}  // namespace

class InterpreterTerminalTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void pauseWaitsForOneKeyAndRestoresTheTerminal();
    void clsPutsTheNextTextAtRowZeroColumnZero();
    void interruptKeyEndsTheToolNotTheScript();
    void hangingUpEndsTheScriptAndItsTool();

private:
    ScriptFixture fixture_;
};

void InterpreterTerminalTest::initTestCase() {
    const QString work = fixture_.work() + QLatin1Char('/');
    QVERIFY(
        ScriptFixture::addProgram(work + "sleeper.exe", "echo \"pid $$ ready\"\nexec sleep 60"));
}

void InterpreterTerminalTest::pauseWaitsForOneKeyAndRestoresTheTerminal() {
    TerminalRun run(fixture_, fixture_.writeScript("echo off\r\npause\r\necho after"));
    const QByteArray prompt = "Press any key to continue . . . ";
    QVERIFY2(run.readUntil(prompt), run.seen().constData());

    QVERIFY(run.running());
    QCOMPARE(run.slaveMode().c_lflag & (ICANON | ECHO), tcflag_t(0));
    QVERIFY(run.type("x"));
    QVERIFY2(run.readUntil("after\r\n"), run.seen().constData());
    const int status = run.waitForEnd();
    QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    // The key is not shown, and the terminal is back in line mode.
    QVERIFY(run.seen().endsWith(prompt + "\r\nafter\r\n"));
    QCOMPARE(run.slaveMode().c_lflag & (ICANON | ECHO), tcflag_t(ICANON | ECHO));
}

void InterpreterTerminalTest::clsPutsTheNextTextAtRowZeroColumnZero() {
    QByteArray script = "echo off\r\n";
    for (int i = 0; i < kRows + 10; ++i)
        script += "echo filler line " + QByteArray::number(i) + "\r\n";
    script += "echo.\r\necho Finished!\r\ncls\r\necho ***end***";
    TerminalRun run(fixture_, fixture_.writeScript(script));
    QVERIFY2(run.readUntil("***end***\r\n"), run.seen().constData());
    QCOMPARE(ScreenRow(run.seen(), 0), QByteArray("***end***"));
    for (int row = 1; row < kRows; ++row)
        QCOMPARE(ScreenRow(run.seen(), row), QByteArray());
}

void InterpreterTerminalTest::interruptKeyEndsTheToolNotTheScript() {
    TerminalRun run(fixture_, fixture_.writeScript("echo off\r\nsleeper.exe\r\necho after"));
    QVERIFY2(run.readUntil(" ready"), run.seen().constData());
    QVERIFY(run.type("\x03"));
    QVERIFY2(run.readUntil("after\r\n"), run.seen().constData());
    const int status = run.waitForEnd();
    QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

void InterpreterTerminalTest::hangingUpEndsTheScriptAndItsTool() {
    TerminalRun run(fixture_, fixture_.writeScript("echo off\r\nsleeper.exe\r\necho after"));
    QVERIFY2(run.readUntil(" ready"), run.seen().constData());
    const QByteArray pidLine = run.seen().mid(run.seen().indexOf("pid ") + 4);
    const pid_t tool = pid_t(pidLine.left(pidLine.indexOf(' ')).toInt());
    QVERIFY2(tool > 0, run.seen().constData());

    run.hangUp();
    const int status = run.waitForEnd();
    QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGHUP);
    // The script has reaped its tool before it ended: nothing of the tool is left.
    QVERIFY(kill(tool, 0) == -1 && errno == ESRCH);
}

QTEST_GUILESS_MAIN(InterpreterTerminalTest)
#include "interpreter_terminal_test.moc"
