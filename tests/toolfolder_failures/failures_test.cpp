// Every adapter when Debian's tool is missing, fails, or outlives it: a clear message on
// the console, a non-zero exit, a log that fails the dialog's success test, a job folder
// holding just what it held, no temporary folder left, and no tool left running.

#include "core/mod_general.h"
#include "tests/support/tool_run.h"

#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace torvane;
using namespace torvane::test;

namespace {

const QString kTools = QStringLiteral(FAKE_TOOL_DIR);
constexpr int kEventTimeoutMs = 20000;

// Debian's tool behind each adapter.
QString ToolOf(const QString& adapter) {
    return adapter == QLatin1String("vcddebug") ? QStringLiteral("vcd-info") : adapter;
}

// The arguments of each adapter's job line, on the files of `dir`.
QStringList JobArguments(const QString& adapter, const QString& dir) {
    const QString image = "--bin-file=" + dir + "/-disc & é.bin";
    const QMap<QString, QStringList> args{
        {"vcdxbuild",
         {"-v", "--cue-file=" + dir + "/x.cue", "--bin-file=" + dir + "/x.bin",
          dir + "/videocd.xml"}},
        {"vcdxgen", {"-v", "--type=vcd2", "--output-file=" + dir + "/videocd.xml", "@list.txt"}},
        {"vcdimager", {"-v", "--cue-file=" + dir + "/x.cue", "--bin-file=x.bin", "@list.txt"}},
        {"vcdxminfo", {"-i", "-a", "-v", "--output-file=" + dir + "/report.xml", "clip.mpg"}},
        {"cdxa2mpeg", {dir + "/AVSEQ01.DAT", dir + "/clip.mpg"}},
        {"vcdxrip", {"-v", "--output-file=videocd.xml", image}},
        {"vcddebug", {"--sector-2336", "-v", image}}};
    return args.value(adapter);
}

// The success test of the adapter's dialog.
bool DialogSeesSuccess(const QString& adapter, const QByteArray& log) {
    if (adapter == QLatin1String("vcdxgen"))
        return log.startsWith("(Super) VideoCD xml description created successfully");
    return LogSucceeded(log, adapter == QLatin1String("vcdimager") ? "finished ok"
                             : adapter == QLatin1String("vcdxrip") ? "   INFO: done"
                                                                   : "   INFO: finished ok");
}

}  // namespace

class AdapterFailuresTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        QDir(kTools).removeRecursively();
        QVERIFY(QDir().mkpath(kTools));
        job_ = new QTemporaryDir;
        const QString dir = job_->path();
        tmp_ = FreshFolder(dir, "tmp");
        QVERIFY(WriteBytes(dir + "/list.txt", Quoted(dir + "/clip.mpg")) &&
                WriteBytes(dir + "/videocd.xml", "<videocd/>") &&
                WriteBytes(dir + "/AVSEQ01.DAT", "RIFF") && WriteBytes(dir + "/clip.mpg", "") &&
                WriteBytes(dir + "/-disc & é.bin", QByteArray(146 * 2352, '\0')));
        inputs_ = EntriesOf(dir) << "log.txt";
        inputs_.sort();
    }

    void cleanup() {
        if (const qint64 left = ReadBytes(kTools + "vcdxbuild.pid").trimmed().toLongLong())
            ::kill(pid_t(left), SIGKILL);  // what a tool left behind
        QCOMPARE(EntriesOf(tmp_), QStringList());
        delete job_;
    }

    void aToolThatIsMissingOrFailsIsReported_data() {
        QTest::addColumn<QString>("adapter");
        QTest::addColumn<QByteArray>("tool");   // what the tool runs; none: it is missing
        QTest::addColumn<QStringList>("args");  // none: the job line's
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("message");
        for (const QString adapter :
             {"vcdxbuild", "vcdxgen", "vcdimager", "vcdxminfo", "cdxa2mpeg", "vcdxrip", "vcddebug"})
            QTest::addRow("%s missing", qPrintable(adapter))
                << adapter << QByteArray() << QStringList() << 1
                << QFile::encodeName(adapter + ".exe: cannot run " + kTools + ToolOf(adapter) +
                                     " (No such file or directory)");
        const QByteArray finished = "finished ok, image created with 10 sectors [00:00:10]";
        QTest::newRow("vcdxbuild says finished, then fails")
            << "vcdxbuild"
            << "echo '<log level=\"information\">scanning</log>'\n"
               "echo '<log level=\"information\">" +
                   finished + "</log>'\nexit 2"
            << QStringList() << 2 << QByteArray("vcdxbuild.exe: vcdxbuild ended with status 2");
        // The tool leaves a process behind that holds its output open for minutes.
        QTest::newRow("vcdxbuild leaves a process behind, child signals ignored")
            << "vcdxbuild"
            << QByteArray(
                   "sleep 300 &\necho $! > \"$0.pid\"\n"
                   "echo '<log level=\"information\">finished ok</log>'\nexit 4")
            << QStringList() << 4 << QByteArray("vcdxbuild.exe: vcdxbuild ended with status 4");
        QTest::newRow("vcdimager says finished, then crashes")
            << "vcdimager"
            << "echo '" + finished + "'\necho '" + finished + "'\nkill -SEGV $$" << QStringList()
            << 1 << QByteArray("vcdimager.exe: vcdimager was ended by signal 11");
        QTest::newRow("cdxa2mpeg writes, then crashes, child signals ignored: the output as it was")
            << "cdxa2mpeg" << QByteArray("echo partial > \"$2\"; kill -SEGV $$") << QStringList()
            << 1
            << QFile::encodeName("cdxa2mpeg.exe: " + kTools +
                                 "cdxa2mpeg was ended by signal 11 (Segmentation fault); ");
        QTest::newRow("an unreadable list runs no tool")
            << "vcdxgen" << QByteArray("echo ran > ran") << QStringList{"-v", "@no such list.txt"}
            << 1
            << QByteArray(
                   "vcdxgen.exe: cannot read the list file \"no such list.txt\": No such "
                   "file or directory");
    }

    void aToolThatIsMissingOrFailsIsReported() {
        QFETCH(QString, adapter);
        QFETCH(QByteArray, tool);
        QFETCH(QStringList, args);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, message);
        if (!tool.isNull())
            QVERIFY(WriteScript(kTools + ToolOf(adapter), tool));
        const ToolRun result = run(adapter, args);
        QVERIFY(result.finished && !result.crashed);
        QCOMPARE(result.exitCode, exitCode);
        QVERIFY2(result.errors.contains(message), result.errors.constData());
        const QByteArray log = ReadBytes(job_->filePath("log.txt"));
        QVERIFY2(!DialogSeesSuccess(adapter, log), log.constData());
        QCOMPARE(EntriesOf(job_->path()), inputs_);
        QCOMPARE(ReadBytes(job_->filePath("clip.mpg")), QByteArray());  // an output of some
    }

    void aToolEndsWithItsAdapter_data() {
        QTest::addColumn<QString>("adapter");
        QTest::addColumn<int>("signal");
        QTest::newRow("vcdxbuild.exe killed") << "vcdxbuild" << int(SIGKILL);
        QTest::newRow("vcddebug.exe on 2336-byte sectors, console hung up")
            << "vcddebug" << int(SIGHUP);
    }

    void aToolEndsWithItsAdapter() {
        QFETCH(QString, adapter);
        QFETCH(int, signal);
        const QString pidFile = kTools + "pid";
        QVERIFY(WriteScript(kTools + ToolOf(adapter),
                            "echo $$ > '" + QFile::encodeName(pidFile) + "'; exec sleep 300"));
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("TMPDIR", tmp_);
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(job_->path());
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(FAKE_APP_DIR + adapter + ".exe", JobArguments(adapter, job_->path()));
        QTRY_VERIFY_WITH_TIMEOUT(!ReadBytes(pidFile).isEmpty(), kEventTimeoutMs);
        const qint64 tool = ReadBytes(pidFile).trimmed().toLongLong();
        const auto reap = qScopeGuard([tool] {
            if (!ProcessGone(tool))
                ::kill(pid_t(tool), SIGKILL);
        });
        // An adapter already gone has no id: 0 would signal the test's own group.
        QVERIFY(process.processId() > 0);
        ::kill(pid_t(process.processId()), signal);
        QVERIFY(process.waitForFinished(kEventTimeoutMs));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QTRY_VERIFY_WITH_TIMEOUT(ProcessGone(tool), kEventTimeoutMs);
    }

private:
    // In a row so named, the adapter starts with child signals ignored, as a parent may hand
    // them down: they must not hide the tool's end and status from it.
    ToolRun run(const QString& adapter, const QStringList& args) {
        const QString exe = FAKE_APP_DIR + adapter + ".exe";
        QStringList given = args.isEmpty() ? JobArguments(adapter, job_->path()) : args;
        const bool ignored = QByteArray(QTest::currentDataTag()).contains("child signals ignored");
        if (ignored)
            given = QStringList{"-c", "trap '' CHLD; exec \"$0\" \"$@\"", exe} + given;
        return RunProgram(ignored ? "/bin/bash" : exe, given, job_->path(),
                          job_->filePath("log.txt"), tmp_);
    }

    QTemporaryDir* job_ = nullptr;
    QString tmp_;
    QStringList inputs_;
};

QTEST_GUILESS_MAIN(AdapterFailuresTest)
#include "failures_test.moc"
