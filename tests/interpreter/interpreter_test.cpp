// The real torvane-cmd on job scripts written here: through pipes, where every byte it
// writes is compared, and on the console's own pseudo-terminal and screen, as a job runs it.

#include "platform/pty.h"
#include "platform/screen_model.h"

#include <sys/wait.h>
#include <termios.h>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <csignal>

using torvane::platform::Pty;
using torvane::platform::ScreenModel;

namespace {

// How long a test waits for torvane-cmd: a guard against a hang only.
constexpr int kHangGuardMs = 20000;
constexpr char kStale[] = "stale text, longer than anything the programs print\n";
constexpr char kNotRecognized[] =
    "' is not recognized as an internal or external command,\r\n"
    "operable program or batch file.\r\n";
// Every script starts with it; torvane-cmd shows it, as echo starts on.
const QByteArray kEchoOff = "echo off\r\n";
const QByteArray kShownEchoOff = "\r\n{cwd}>echo off\r\n";
const QString kMarker = QStringLiteral("***end***");

bool AddProgram(const QString& path, const QByteArray& body) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("#!/bin/sh\n" + body + "\n");
    file.close();
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

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
        const QString bin = dir_.filePath(QStringLiteral("bin"));
        QVERIFY(QDir().mkpath(dir_.filePath(QStringLiteral("work"))) && QDir().mkpath(bin));
        work_ = QDir(dir_.filePath(QStringLiteral("work"))).canonicalPath();
        QVERIFY(QDir::setCurrent(work_));
        qputenv("PATH", QFile::encodeName(bin) + ":/usr/bin:/bin");
        const QByteArray printArgs = "for a in \"$@\"; do printf '[%s]\\n' \"$a\"; done";
        QVERIFY(AddProgram(QStringLiteral("args.exe"), printArgs));
        QVERIFY(AddProgram(QStringLiteral("dir & $x ü/args.exe"), printArgs));
        QVERIFY(AddProgram(QStringLiteral("same.exe"), "echo work copy"));
        QVERIFY(AddProgram(bin + "/same.exe", "echo path copy"));
        QVERIFY(AddProgram(bin + "/onlypath.exe", "echo path only"));
        QVERIFY(AddProgram(QStringLiteral("noisy.exe"), "echo out; echo err >&2; exit 3"));
        QVERIFY(AddProgram(QStringLiteral("sleeper.exe"), "echo ready; exec sleep 60"));
    }

    void scripts_data();

    void scripts() {
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, err);
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFile target(file);
        QVERIFY(file.isEmpty() || (target.open(QIODevice::WriteOnly) && target.write(kStale) > 0));
        target.close();
        writeScript(body);
        const uint entries = QDir(work_).count();
        QProcess process;
        // Standard input stays an open pipe: a "pause" that waited for it would hang.
        process.start(QStringLiteral(TORVANE_CMD), {QStringLiteral("run.bat")});
        QVERIFY(process.waitForFinished(kHangGuardMs));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardOutput(), expand(kShownEchoOff + out));
        QCOMPARE(process.readAllStandardError(), expand(err));
        QCOMPARE(QDir(work_).count(), entries);  // no stray file
        if (!file.isEmpty()) {
            QVERIFY(target.open(QIODevice::ReadOnly));
            QCOMPARE(target.readAll(), content);
            target.close();
            QVERIFY(target.remove());
        }
    }

    void aScriptThatCannotBeReadEndsWithStatusTwo() {
        QProcess process;
        process.start(QStringLiteral(TORVANE_CMD), {QStringLiteral("no such.bat")});
        QVERIFY(process.waitForFinished(kHangGuardMs));
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError(),
                 "torvane-cmd: cannot read no such.bat: No such file or directory\r\n");
    }

    void onATerminal_data();

    void onATerminal() {
        QFETCH(QByteArray, body);
        QFETCH(QString, waitFor);
        QFETCH(QByteArray, key);
        QFETCH(int, status);
        QFETCH(QString, screen);
        writeScript(body);
        Pty pty;
        const auto model = ScreenModel::create(25, 80);
        QVERIFY(pty.open(25, 80));
        const pid_t pid = pty.start({TORVANE_CMD, "run.bat"});
        QVERIFY(pid > 0);
        // Shows on the screen what torvane-cmd wrote, until `done`.
        const auto until = [&](auto done) {
            return QTest::qWaitFor(
                [&] {
                    char buffer[4096];
                    for (long n; (n = pty.read(buffer, sizeof buffer)) > 0;)
                        model->feed(buffer, static_cast<std::size_t>(n));
                    return done();
                },
                kHangGuardMs);
        };
        QVERIFY(until([&] { return model->screenText().contains(waitFor); }));
        int result = -1;
        if (!key.isEmpty()) {
            QCOMPARE(waitpid(pid, &result, WNOHANG), 0);  // still waiting
            if (key == "HUP")
                kill(pid, SIGHUP);
            else
                pty.write(key.constData(), key.size());
        }
        QVERIFY(until([&] { return waitpid(pid, &result, WNOHANG) == pid; }));
        until([] { return true; });  // the last output
        QCOMPARE(result, status);
        QVERIFY2(kill(-pid, 0) == -1 && errno == ESRCH, "a tool of the script runs on");
        termios mode{};
        QVERIFY(tcgetattr(pty.masterFd(), &mode) == 0);
        QCOMPARE(mode.c_lflag & (ICANON | ECHO), tcflag_t(ICANON | ECHO));
        QString text = model->screenText();
        while (text.endsWith(QLatin1Char('\n')))
            text.chop(1);
        QCOMPARE(text, screen.replace(QStringLiteral("{cwd}"), work_));
    }

private:
    QByteArray expand(QByteArray text) const {
        return text.replace("{cwd}", QFile::encodeName(work_));
    }
    void writeScript(const QByteArray& body) const {
        QFile file(QStringLiteral("run.bat"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(expand(kEchoOff + body));
    }

    QTemporaryDir dir_;
    QString work_;
};

void InterpreterTest::scripts_data() {
    QTest::addColumn<QByteArray>("body");  // the script after its first line, "echo off"
    QTest::addColumn<QByteArray>("out");   // after the first line as shown
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QString>("file");        // pre-filled with stale text, then compared
    QTest::addColumn<QByteArray>("content");  // what the file holds afterwards
    Row("echo on shows each line after the prompt; blank lines show nothing, a lone LF ends one",
        "Echo On\r\n \t\r\n\r\necho\necho hi\r\necho off\r\necho",
        "\r\n{cwd}>echo\r\nECHO is on.\r\n\r\n{cwd}>echo hi\r\nhi\r\n\r\n{cwd}>echo off\r\n"
        "ECHO is off.\r\n");
    Row("echo prints its text byte for byte, operators too, and makes no file",
        "echo  two  blanks  \r\necho.\r\necho.text\r\nECHO a & b | c < d > e >> f ^ g %PATH% h",
        " two  blanks  \r\n\r\ntext\r\na & b | c < d > e >> f ^ g %PATH% h\r\n");
    Row("cls homes the cursor and clears, then the next text", "echo x\r\ncls\r\necho ***end***",
        "x\r\n\x1b[H\x1b[2J\x1b[3J***end***\r\n");
    Row("pause without a terminal goes on at once", "pause\r\necho after",
        "Press any key to continue . . . \r\nafter\r\n");
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
    Row("a quoted program loses trailing dots and blanks and keeps inner ones",
        "\"{cwd}/dir & $x ü/args.exe. . \"x \"two words\"", "[x]\n[two words]\n");
    Row("a bare program: the current directory before PATH", "same.exe\r\nonlypath.exe",
        "work copy\npath only\n");
    Row("output to a quoted target; an operator inside quotes is text",
        "args.exe a \"b>c\">\"my log & $x ü.txt\"", "", "", "my log & $x ü.txt", "[a]\n[b>c]\n");
    Row("> empties the file, >> appends to it",
        "args.exe>log.txt\r\nargs.exe b >> log.txt\r\nargs.exe c>>\"log.txt\"", "", "", "log.txt",
        "[b]\n[c]\n");
    Row("standard error stays; the exit status is not looked at",
        "noisy.exe > log.txt\r\necho after", "after\r\n", "err\n", "log.txt", "out\n");
    Row("faults are reported and the script goes on",
        "nosuch.exe x\r\n\"{cwd}/no such.exe \" y\r\nargs.exe a > missing/log.txt\r\n"
        "args.exe a >\r\necho after",
        "after\r\n",
        "'nosuch.exe" + QByteArray(kNotRecognized) + "'\"{cwd}/no such.exe \"" + kNotRecognized +
            "The system cannot find the path specified.\r\n"
            "The syntax of the command is incorrect.\r\n");
    Row("a missing program still empties its log", "nosuch.exe > log.txt", "",
        "'nosuch.exe" + QByteArray(kNotRecognized), "log.txt", "");
    Row("a redirection alone empties its file and runs nothing", "> log.txt", "", "", "log.txt",
        "");
}

void InterpreterTest::onATerminal_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("waitFor");  // on the terminal before the key is typed
    QTest::addColumn<QByteArray>("key");   // "HUP": the hang-up signal instead
    QTest::addColumn<int>("status");       // torvane-cmd's wait status
    QTest::addColumn<QString>("screen");   // without the empty rows at the bottom
    const QString shown = QStringLiteral("\n{cwd}>echo off\n");
    QTest::newRow("cls puts the next text at the top left of a clear screen")
        << QByteArray("echo x\r\necho Finished!\r\ncls\r\necho ***end***") << kMarker
        << QByteArray() << 0 << QStringLiteral("***end***");
    QTest::newRow("pause waits for one key, not shown, in raw mode")
        << QByteArray("pause\r\necho after") << QStringLiteral("continue . . .") << QByteArray("x") << 0
        << shown + "Press any key to continue . . .\nafter";
    QTest::newRow("an interrupt key ends the tool, not the script")
        << QByteArray("sleeper.exe\r\necho after") << QStringLiteral("ready") << QByteArray("\x03")
        << 0 << shown + "ready\n^Cafter";
    // A terminal that hangs up signals the session leader only: the script.
    QTest::newRow("a hang-up ends the script and its tool")
        << QByteArray("sleeper.exe\r\necho after") << QStringLiteral("ready") << QByteArray("HUP")
        << SIGHUP << shown + "ready";
}

QTEST_GUILESS_MAIN(InterpreterTest)
#include "interpreter_test.moc"
