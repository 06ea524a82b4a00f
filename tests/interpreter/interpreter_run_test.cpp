// The real torvane-cmd on scripts written here, without a terminal: what it prints, what
// it runs with which arguments, and where the output goes.

#include "script_fixture.h"

#include <QProcess>
#include <QSet>
#include <QTest>

using namespace torvane::test;

namespace {

constexpr char kStale[] = "stale text, longer than anything the programs print\n";
constexpr char kNotRecognized[] =
    "' is not recognized as an internal or external command,\r\n"
    "operable program or batch file.\r\n";
constexpr char kClear[] = "\x1b[H\x1b[2J\x1b[3J";

struct Run {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

}  // namespace

class InterpreterRunTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void scripts_data();
    void scripts();
    void unreadableScriptEndsWithStatusTwo();

private:
    Run run(const QStringList& args);
    QByteArray expand(QByteArray text) const;
    QSet<QString> workEntries() const;

    ScriptFixture fixture_;
};

void InterpreterRunTest::initTestCase() {
    const QByteArray printArgs = "for a in \"$@\"; do printf '[%s]\\n' \"$a\"; done";
    const QString work = fixture_.work() + QLatin1Char('/');
    QVERIFY(ScriptFixture::addProgram(work + "args.exe", printArgs));
    QVERIFY(ScriptFixture::addProgram(work + "dir & $x ü/args.exe", printArgs));
    QVERIFY(ScriptFixture::addProgram(work + "same.exe", "echo work copy"));
    QVERIFY(ScriptFixture::addProgram(fixture_.bin() + "/same.exe", "echo path copy"));
    QVERIFY(ScriptFixture::addProgram(fixture_.bin() + "/onlypath.exe", "echo path only"));
    QVERIFY(ScriptFixture::addProgram(work + "noisy.exe", "echo out; echo err >&2; exit 3"));
}

Run InterpreterRunTest::run(const QStringList& args) {
    QProcess process;
    process.setWorkingDirectory(fixture_.work());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("PATH"), QString::fromLocal8Bit(fixture_.searchPath()));
    process.setProcessEnvironment(env);
    // Standard input stays an open pipe: a "pause" that waited for it would hang.
    process.start(QStringLiteral(TORVANE_CMD), args);
    Run result;
    if (!process.waitForFinished(kHangGuardMs) || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.exitCode = process.exitCode();
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    return result;
}

QByteArray InterpreterRunTest::expand(QByteArray text) const {
    return text.replace("{cwd}", QFile::encodeName(fixture_.work())).replace("{stale}", kStale);
}

QSet<QString> InterpreterRunTest::workEntries() const {
    const QStringList names =
        QDir(fixture_.work())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    return QSet<QString>(names.begin(), names.end());
}

void InterpreterRunTest::scripts_data() {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QString>("file");        // pre-filled with stale text, then compared
    QTest::addColumn<QByteArray>("content");  // what the file holds afterwards
    const QByteArray off = "echo off\r\n";
    const QByteArray shownOff = "\r\n{cwd}>echo off\r\n";

    QTest::newRow("echo starts on and shows each line after the prompt")
        << QByteArray("echo hi\r\necho off\r\necho hidden")
        << QByteArray("\r\n{cwd}>echo hi\r\nhi\r\n\r\n{cwd}>echo off\r\nhidden\r\n") << QByteArray()
        << QString() << QByteArray();
    QTest::newRow("echo prints operators as text and makes no file")
        << off + "echo a & b | c < d > e >> f ^ g %PATH% h"
        << shownOff + "a & b | c < d > e >> f ^ g %PATH% h\r\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("echo keeps its blanks, echo. is empty, echo alone tells the state")
        << "echo\r\n" + off + "echo  two  blanks  \r\necho.\r\necho"
        << "\r\n{cwd}>echo\r\nECHO is on.\r\n" + shownOff + " two  blanks  \r\n\r\nECHO is off.\r\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("blank lines are skipped unseen; lone LF; no last line end")
        << QByteArray("\r\n \t\r\necho off\necho a\r\n\r\necho b") << shownOff + "a\r\nb\r\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("cls writes the clear sequence, then the next text")
        << off + "echo before\r\ncls\r\necho ***end***"
        << shownOff + "before\r\n" + kClear + "***end***\r\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("pause without a terminal goes on at once")
        << off + "pause\r\necho after" << shownOff + "Press any key to continue . . . \r\nafter\r\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("quoted program with a trailing blank")
        << off + "\"{cwd}/args.exe \" one \"two words\"" << shownOff + "[one]\n[two words]\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("quoted program in a folder of blanks, operators and letters beyond ASCII")
        << off + "\"{cwd}/dir & $x ü/args.exe\" a" << shownOff + "[a]\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("bare program: the current directory before PATH")
        << off + "same.exe" << shownOff + "work copy\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("file names pass unchanged, one argument each")
        << off +
               "args.exe \"/m/a b & c;d|e<f>g$h.mpg\" \"Ünïcödé – ü.mpg\" \"-lead.mpg\" "
               "'q' %PATH% $HOME C:\\x\\y"
        << shownOff +
               "[/m/a b & c;d|e<f>g$h.mpg]\n[Ünïcödé – ü.mpg]\n[-lead.mpg]\n['q']\n"
               "[%PATH%]\n[$HOME]\n[C:\\x\\y]\n"
        << QByteArray() << QString() << QByteArray();
    QTest::newRow("output to a quoted target with blanks and operators")
        << off + "args.exe a>\"my log & $x ü.txt\"" << shownOff << QByteArray()
        << "my log & $x ü.txt" << QByteArray("[a]\n");
    QTest::newRow("standard error stays; the exit status is not looked at")
        << off + "noisy.exe > log.txt\r\necho after" << shownOff + "after\r\n"
        << QByteArray("err\n") << "log.txt" << QByteArray("out\n");
    QTest::newRow("missing programs are reported and the script goes on")
        << off + "nosuch.exe x\r\n\"{cwd}/no such.exe \" y\r\necho after" << shownOff + "after\r\n"
        << "'nosuch.exe" + QByteArray(kNotRecognized) + "'\"{cwd}/no such.exe \"" + kNotRecognized
        << QString() << QByteArray();
    QTest::newRow("a missing program still empties its log")
        << off + "nosuch.exe > log.txt" << shownOff << "'nosuch.exe" + QByteArray(kNotRecognized)
        << "log.txt" << QByteArray();
    QTest::newRow("output into a missing folder: nothing runs, the script goes on")
        << off + "args.exe a > missing/log.txt\r\necho after" << shownOff + "after\r\n"
        << QByteArray("The system cannot find the path specified.\r\n") << QString()
        << QByteArray();
}

void InterpreterRunTest::scripts() {
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, out);
    QFETCH(QByteArray, err);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    const QString filePath = fixture_.work() + QLatin1Char('/') + file;
    if (!file.isEmpty()) {
        QFile stale(filePath);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.write(kStale);
    }
    const QString scriptName = fixture_.writeScript(expand(script));
    const QSet<QString> before = workEntries();

    const Run result = run({scriptName});

    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.out, expand(out));
    QCOMPARE(result.err, expand(err));
    QCOMPARE(workEntries() - before, QSet<QString>());
    if (!file.isEmpty()) {
        QFile written(filePath);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), expand(content));
        written.close();
        QVERIFY(written.remove());
    }
}

void InterpreterRunTest::unreadableScriptEndsWithStatusTwo() {
    const Run result = run({QStringLiteral("no such script.bat")});
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.out.isEmpty());
    QVERIFY2(result.err.contains("no such script.bat"), result.err.constData());
}

QTEST_GUILESS_MAIN(InterpreterRunTest)
#include "interpreter_run_test.moc"
