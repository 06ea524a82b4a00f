// torvane-cmd on job scripts: every byte it writes through pipes, and its screen on a terminal.

#include "platform/pty.h"
#include "platform/screen_model.h"
#include "tests/support/tool_run.h"

#include <sys/wait.h>
#include <termios.h>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace torvane::test;

namespace {

// How long a test waits for torvane-cmd: a guard against a hang only.
constexpr int kHangGuardMs = 20000;
constexpr char kStale[] = "stale text, longer than what the programs print";
constexpr char kNotRecognized[] =
    "' is not recognized as an internal or external command,\r\n"
    "operable program or batch file.\r\n";

void Row(const char* name, const QByteArray& body, const QByteArray& out,
         const QByteArray& err = {}, const QString& file = {}, const QByteArray& content = {}) {
    QTest::newRow(name) << body << out << err << file << content;
}

}  // namespace

class InterpreterTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // torvane-cmd runs in the job directory, with a folder of programs first in PATH.
        work_ = QDir(dir_.path()).canonicalPath();
        QVERIFY(QDir::setCurrent(work_) && QDir().mkpath(QStringLiteral("bin")));
        qputenv("PATH", QFile::encodeName(work_) + "/bin:/usr/bin:/bin");
        const QByteArray printArgs = "for a in \"$@\"; do printf '[%s]\\n' \"$a\"; done";
        const QList<std::pair<QString, QByteArray>> programs{
            {"args.exe", printArgs},
            {"dir & $x ü/args.exe", printArgs},
            {"same.exe", "echo work copy"},
            {"bin/same.exe", "echo path copy"},
            {"bin/onlypath.exe", "echo path only"},
            {"noisy.exe", "echo out; echo err >&2; exit 3"},
            {"sleeper.exe", "echo ready; exec sleep 60"},
            {"waiter.exe", "echo ready; while [ ! -e go ]; do sleep 0.05; done; rm go"}};
        for (const auto& [path, body] : programs)
            QVERIFY(QDir().mkpath(QFileInfo(path).path()) && WriteScript(path, body));
    }

    void scripts_data();

    void scripts() {
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, err);
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QVERIFY(file.isEmpty() || WriteBytes(file, kStale));
        writeScript(body);
        const uint entries = QDir(work_).count();
        // Standard input stays an open pipe: a "pause" that waited for it would hang.
        const ToolRun run = RunProgram(QStringLiteral(TORVANE_CMD), {"run.bat"}, work_);
        QVERIFY(run.finished && run.exitCode == 0);
        QCOMPARE(run.out, expand("\r\n{cwd}>echo off\r\n" + out));
        QCOMPARE(run.errors, expand(err));
        QCOMPARE(QDir(work_).count(), entries);  // no stray file
        QCOMPARE(file.isEmpty() ? content : ReadBytes(file), content);
        QFile::remove(file);
    }

    void onATerminal_data();

    void onATerminal() {
        QFETCH(QByteArray, body);
        QFETCH(QString, waitFor);
        QFETCH(QByteArray, key);
        QFETCH(int, status);
        QFETCH(QString, screen);
        QFETCH(QByteArray, typedAhead);
        writeScript(body);
        torvane::platform::Pty pty;
        const auto model = torvane::platform::ScreenModel::create(25, 80);
        const pid_t pid = pty.open(25, 80) ? pty.start({TORVANE_CMD, "run.bat"}) : -1;
        const auto shown = [&] {  // the screen with what torvane-cmd has written
            char buffer[4096];
            for (long n; (n = pty.read(buffer, sizeof buffer)) > 0;)
                model->feed(buffer, static_cast<std::size_t>(n));
            return model->screenText();
        };
        const auto showsInTurn = [&](const QString& text) {
            return QTest::qWaitFor([&] { return shown().contains(text); }, kHangGuardMs);
        };
        if (!typedAhead.isEmpty()) {  // typed while waiter.exe runs, echoed, then it ends
            QVERIFY(pid > 0 && showsInTurn("ready"));
            pty.write(typedAhead.constData(), typedAhead.size());
            QVERIFY(showsInTurn("ready\n" + typedAhead) && WriteBytes("go", ""));
        }
        QVERIFY(pid > 0 && showsInTurn(waitFor));
        int result = -1;
        QCOMPARE(waitpid(pid, &result, WNOHANG), 0);  // still waiting
        pty.write(key.constData(), key.size());
        if (key.isEmpty())
            kill(pid, SIGHUP);  // as a terminal that hangs up tells the session leader alone
        QVERIFY(
            QTest::qWaitFor([&] { return waitpid(pid, &result, WNOHANG) == pid; }, kHangGuardMs));
        QCOMPARE(result, status);
        QVERIFY2(kill(-pid, 0) != 0, "a tool of the script runs on");
        termios mode{};
        QVERIFY(tcgetattr(pty.masterFd(), &mode) == 0);
        QCOMPARE(mode.c_lflag & (ICANON | ECHO), tcflag_t(ICANON | ECHO));
        QCOMPARE(shown(), screen.replace(QStringLiteral("{cwd}"), work_) +
                              QString(24 - screen.count(QLatin1Char('\n')), '\n'));
    }

private:
    QByteArray expand(QByteArray text) const {
        return text.replace("{cwd}", QFile::encodeName(work_));
    }
    // Every script starts with "echo off", which torvane-cmd shows, as echo starts on.
    void writeScript(const QByteArray& body) const {
        QVERIFY(WriteBytes(QStringLiteral("run.bat"), expand("echo off\r\n" + body)));
    }

    QTemporaryDir dir_;
    QString work_;
};

void InterpreterTest::scripts_data() {
    QTest::addColumn<QByteArray>("body");  // after "echo off"
    QTest::addColumn<QByteArray>("out");   // after "echo off" as shown
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QString>("file");        // pre-filled with stale text
    QTest::addColumn<QByteArray>("content");  // what the file holds afterwards
    Row("echo on shows each line after the prompt; blank lines show nothing, a lone LF ends one",
        "Echo On\r\n \t\r\n\r\necho\necho hi\r\necho off\r\necho",
        "\r\n{cwd}>echo\r\nECHO is on.\r\n\r\n{cwd}>echo hi\r\nhi\r\n\r\n{cwd}>echo off\r\n"
        "ECHO is off.\r\n");
    Row("echo prints its text byte for byte, operators too, and makes no file; pause goes on",
        "echo  two  blanks  \r\necho.\r\necho.text\r\nECHO a & b | c < d > e >> f ^ g "
        "%PATH%\r\npause",
        " two  blanks  \r\n\r\ntext\r\na & b | c < d > e >> f ^ g %PATH%\r\n"
        "Press any key to continue . . . \r\n");
    Row("blanks, tabs and quotes split the arguments",
        "args.exe  a\tb \"c d\" \"\" \"e\"\"f g\" x \"open quote ",
        "[a]\n[b]\n[c d]\n[]\n[e\"f g]\n[x]\n[open quote ]\n");
    Row("backslashes count before a quote only, and not at all for the operator",
        R"(args.exe "a\\" b a\"b a\\\"b C:\x\y "c\" > log.txt)", "", "", "log.txt",
        "[a\\]\n[b]\n[a\"b]\n[a\\\"b]\n[C:\\x\\y]\n[c\" ]\n");
    Row("file names and other operators pass unchanged, one argument each",
        "args.exe \"/m/a b & c;d|e<f>g$h.mpg\" \"Ünïcödé – ü.mpg\" -lead.mpg 'q' %PATH% $HOME "
        "a&b | c < d ^e $x;y",
        "[/m/a b & c;d|e<f>g$h.mpg]\n[Ünïcödé – ü.mpg]\n[-lead.mpg]\n['q']\n[%PATH%]\n[$HOME]\n"
        "[a&b]\n[|]\n[c]\n[<]\n[d]\n[^e]\n[$x;y]\n");
    Row("a quoted program loses trailing dots and blanks; a bare one is looked for here first",
        "\"{cwd}/dir & $x ü/args.exe. . \"x \"y z\"\r\nsame.exe\r\nonlypath.exe",
        "[x]\n[y z]\nwork copy\npath only\n");
    Row("output to a quoted target; an operator inside quotes is text",
        "args.exe a \"b>c\">\"my log & $x ü.txt\"", "", "", "my log & $x ü.txt", "[a]\n[b>c]\n");
    Row("> empties the file, >> appends to it",
        "args.exe>log.txt\r\nargs.exe b >> log.txt\r\nargs.exe c>>\"log.txt\"", "", "", "log.txt",
        "[b]\n[c]\n");
    Row("standard error stays; the exit status is not looked at",
        "noisy.exe > log.txt\r\necho after", "after\r\n", "err\n", "log.txt", "out\n");
    Row("faults are reported and the script goes on; a missing program still empties its log",
        "nosuch.exe > log.txt\r\n\"{cwd}/no such.exe \" y\r\nargs.exe a > missing/log.txt\r\n"
        "args.exe a >\r\necho after",
        "after\r\n",
        "'nosuch.exe" + QByteArray(kNotRecognized) + "'\"{cwd}/no such.exe \"" + kNotRecognized +
            "The system cannot find the path specified.\r\n"
            "The syntax of the command is incorrect.\r\n",
        "log.txt", "");
}

void InterpreterTest::onATerminal_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("waitFor");        // on the screen before the key is typed
    QTest::addColumn<QByteArray>("key");         // none: a hang-up instead
    QTest::addColumn<int>("status");             // torvane-cmd's wait status
    QTest::addColumn<QString>("screen");         // down to its last row that is not empty
    QTest::addColumn<QByteArray>("typedAhead");  // into the console while waiter.exe runs
    const auto row = [](const char* name, const char* body, const char* waitFor, const char* key,
                        int status, const char* screen, const char* typedAhead = "") {
        QTest::newRow(name) << QByteArray(body) << QString(waitFor) << QByteArray(key) << status
                            << QString(screen) << QByteArray(typedAhead);
    };
    row("cls puts the next text at the top left of a clear screen; pause takes a key",
        "echo x\r\ncls\r\necho ***end***\r\npause", "continue", "x", 0,
        "***end***\nPress any key to continue . . .");
    row("an interrupt key ends the tool, not the script", "sleeper.exe\r\necho after", "ready",
        "\x03", 0, "\n{cwd}>echo off\nready\n^Cafter");
    row("a hang-up ends the script and its tool", "sleeper.exe\r\necho after", "ready", "", SIGHUP,
        "\n{cwd}>echo off\nready");
    row("pause waits for a key pressed at it, not one typed while the tool ran",
        "waiter.exe\r\npause\r\necho after", "continue", "x", 0,
        "\n{cwd}>echo off\nready\nkPress any key to continue . . .\nafter", "k");
}

QTEST_GUILESS_MAIN(InterpreterTest)
#include "interpreter_test.moc"
