// The adapters when Debian's tool is missing, fails, or misbehaves: a clear message on the
// console, a non-zero exit, a log that fails the dialog's success test, nothing left
// behind, and no hang. A test build of the adapters looks for the tools in a folder of
// this test, where scripts stand in for them.

#include "build_fixture.h"
#include "shell/mod_general.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace torvane;
using namespace torvane::test;

namespace {

const QString kFakeTools = QStringLiteral(FAKE_TOOL_DIR);

QString FakeAdapter(const QString& tool) {
    return QStringLiteral(FAKE_APP_DIR "/") + tool + ".exe";
}

// Puts a shell script in the place of Debian's `tool`.
bool PutFakeTool(const QString& tool, const QByteArray& body) {
    const QString path = kFakeTools + tool;
    QDir().mkpath(kFakeTools);
    QFile::remove(path);
    return WriteBytes(path, "#!/bin/sh\n" + body + "\n") &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The success test that the tool's dialog applies to the log.
bool DialogSeesSuccess(const QString& tool, const QByteArray& log) {
    if (tool == QLatin1String("vcdxgen"))
        return log.startsWith("(Super) VideoCD xml description created successfully");
    if (tool == QLatin1String("vcdimager"))
        return LogSucceeded(log, "finished ok");
    return LogSucceeded(log, "   INFO: finished ok");
}

// The arguments of each tool's job line, on files of `dir`.
QStringList JobArguments(const QString& tool, const QString& dir) {
    if (tool == QLatin1String("vcdxbuild"))
        return {"-v", "--image-type=bincue", "--cue-file=" + dir + "/x.cue",
                "--bin-file=" + dir + "/x.bin", dir + "/videocd.xml"};
    if (tool == QLatin1String("vcdxgen"))
        return {"-v", "--type=vcd2", "--output-file=" + dir + "/videocd.xml", "@list.txt"};
    if (tool == QLatin1String("vcdimager"))
        return {"-v", "--type=vcd2", "--cue-file=" + dir + "/x.cue", "--bin-file=" + dir + "/x.bin",
                "@list.txt"};
    if (tool == QLatin1String("vcdxminfo"))
        return {"-i", "-a", "-v", "-p", "--output-file=" + dir + "/report.xml", dir + "/clip.mpg"};
    return {dir + "/AVSEQ01.DAT", dir + "/clip.mpg"};
}

// A job folder holding the inputs that the job lines name.
bool PrepareJob(const QString& dir) {
    return WriteBytes(dir + "/list.txt", "\"" + dir.toUtf8() + "/clip.mpg\"") &&
           WriteBytes(dir + "/videocd.xml", "<videocd/>") &&
           WriteBytes(dir + "/AVSEQ01.DAT", "RIFF") && WriteBytes(dir + "/clip.mpg", "");
}

const QStringList kInputs{"AVSEQ01.DAT", "clip.mpg", "list.txt", "log.txt", "videocd.xml"};

bool ProcessIsGone(qint64 pid) {
    if (::kill(pid_t(pid), 0) != 0)
        return true;
    const QByteArray stat = ReadBytes("/proc/" + QString::number(pid) + "/stat");
    return stat.mid(stat.lastIndexOf(')') + 2, 1) == "Z";
}

}  // namespace

class AdapterFailuresTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aMissingToolIsReported_data();
    void aMissingToolIsReported();
    void aFailingToolIsReported_data();
    void aFailingToolIsReported();
    void anUnreadableListRunsNoTool();
    void aProcessLeftBehindByTheToolDoesNotHoldTheAdapter();
    void theToolEndsWithItsAdapter();
    void anAdapterStartedWithChildSignalsIgnoredStillSeesItsTool();

private:
    QTemporaryDir* job_ = nullptr;
};

void AdapterFailuresTest::init() {
    QDir(kFakeTools).removeRecursively();
    job_ = new QTemporaryDir;
    QVERIFY(PrepareJob(job_->path()));
}

void AdapterFailuresTest::cleanup() {
    delete job_;
    QDir(kFakeTools).removeRecursively();
}

void AdapterFailuresTest::aMissingToolIsReported_data() {
    QTest::addColumn<QString>("tool");
    for (const char* tool : {"vcdxbuild", "vcdxgen", "vcdimager", "vcdxminfo", "cdxa2mpeg"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void AdapterFailuresTest::aMissingToolIsReported() {
    QFETCH(QString, tool);
    const QString log = job_->filePath("log.txt");
    const ToolRun run =
        RunProgram(FakeAdapter(tool), JobArguments(tool, job_->path()), job_->path(), log);
    QVERIFY(run.finished);
    QVERIFY(!run.crashed);
    QCOMPARE(run.exitCode, 1);
    const QByteArray message = tool.toUtf8() + ".exe: cannot run " + kFakeTools.toUtf8() +
                               tool.toUtf8() +
                               " (No such file or directory); it comes with the vcdimager package";
    QVERIFY2(run.errors.contains(message), run.errors.constData());
    QVERIFY(!DialogSeesSuccess(tool, ReadBytes(log)));
    QCOMPARE(QDir(job_->path()).entryList(QDir::Files), kInputs);
}

void AdapterFailuresTest::aFailingToolIsReported_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("exitCode");  // -1: ended by the tool's signal
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("vcdxbuild says finished, then fails")
        << "vcdxbuild" << QByteArray(R"(echo '<log level="information">scanning</log>'
echo '<log level="information">finished ok, image created with 10 sectors [00:00:10]</log>'
exit 2)")
        << 2 << QByteArray("vcdxbuild.exe: vcdxbuild ended with status 2");
    QTest::newRow("vcdimager says finished, then crashes")
        << "vcdimager"
        << QByteArray(
               "echo 'finished ok, image created with 10 sectors [00:00:10] (1 bytes)'\n"
               "echo 'finished ok, image created with 10 sectors [00:00:10] (1 bytes)'\n"
               "kill -SEGV $$")
        << 1 << QByteArray("vcdimager.exe: vcdimager was ended by signal 11");
    QTest::newRow("cdxa2mpeg crashes: so does its name")
        << "cdxa2mpeg" << QByteArray("kill -SEGV $$") << -1 << QByteArray();
}

void AdapterFailuresTest::aFailingToolIsReported() {
    QFETCH(QString, tool);
    QFETCH(QByteArray, script);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, message);
    QVERIFY(PutFakeTool(tool, script));
    const QString log = job_->filePath("log.txt");
    const ToolRun run =
        RunProgram(FakeAdapter(tool), JobArguments(tool, job_->path()), job_->path(), log);
    QVERIFY(run.finished);
    QCOMPARE(run.crashed, exitCode < 0);
    if (exitCode >= 0)
        QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.errors.contains(message), run.errors.constData());
    QVERIFY(!DialogSeesSuccess(tool, ReadBytes(log)));
}

void AdapterFailuresTest::anUnreadableListRunsNoTool() {
    QVERIFY(PutFakeTool("vcdxgen", "echo ran > \"$0.ran\""));
    const QString log = job_->filePath("log.txt");
    const ToolRun run =
        RunProgram(FakeAdapter("vcdxgen"), {"-v", "@no such list.txt"}, job_->path(), log);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("vcdxgen.exe: cannot read the list file \"no such list.txt\": "
                                 "No such file or directory"),
             run.errors.constData());
    QVERIFY(!DialogSeesSuccess("vcdxgen", ReadBytes(log)));
    QVERIFY(!QFile::exists(kFakeTools + "vcdxgen.ran"));
}

// The tool leaves a process behind that holds its output open for minutes.
void AdapterFailuresTest::aProcessLeftBehindByTheToolDoesNotHoldTheAdapter() {
    QVERIFY(PutFakeTool("vcdxbuild", R"(sleep 300 &
echo $! > "$0.pid"
echo '<log level="information">writing</log>'
echo '<log level="information">finished ok, image created with 10 sectors [00:00:10]</log>')"));
    const QString log = job_->filePath("log.txt");
    const ToolRun run = RunProgram(FakeAdapter("vcdxbuild"),
                                   JobArguments("vcdxbuild", job_->path()), job_->path(), log);
    const qint64 leftBehind = ReadBytes(kFakeTools + "vcdxbuild.pid").trimmed().toLongLong();
    if (leftBehind > 0)
        ::kill(pid_t(leftBehind), SIGKILL);
    QVERIFY(run.finished);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(DialogSeesSuccess("vcdxbuild", ReadBytes(log)));
}

void AdapterFailuresTest::theToolEndsWithItsAdapter() {
    QVERIFY(PutFakeTool("vcdxbuild", R"(echo $$ > "$0.new"
mv "$0.new" "$0.pid"
exec sleep 300)"));
    const QString pidFile = kFakeTools + "vcdxbuild.pid";
    QProcess adapter;
    adapter.setWorkingDirectory(job_->path());
    adapter.start(FakeAdapter("vcdxbuild"), JobArguments("vcdxbuild", job_->path()));
    QVERIFY(adapter.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pidFile), 20000);
    const qint64 tool = ReadBytes(pidFile).trimmed().toLongLong();
    QVERIFY(tool > 0);
    const auto reap = qScopeGuard([tool] {
        if (!ProcessIsGone(tool))
            ::kill(pid_t(tool), SIGKILL);
    });
    adapter.kill();
    QVERIFY(adapter.waitForFinished());
    QTRY_VERIFY_WITH_TIMEOUT(ProcessIsGone(tool), 20000);
}

void AdapterFailuresTest::anAdapterStartedWithChildSignalsIgnoredStillSeesItsTool() {
    QVERIFY(PutFakeTool("vcdimager",
                        "echo 'finished ok, image created with 1 sectors [00:00:01]'\n"
                        "exit 4"));
    const QString log = job_->filePath("log.txt");
    const QStringList args{"-c", "trap '' CHLD; exec \"$0\" \"$@\"", FakeAdapter("vcdimager")};
    const ToolRun run =
        RunProgram("/bin/bash", args + JobArguments("vcdimager", job_->path()), job_->path(), log);
    QVERIFY(run.finished);
    QCOMPARE(run.exitCode, 4);
    QVERIFY(ReadBytes(log).startsWith("   INFO: MPEG file from list.txt: "));
}

QTEST_GUILESS_MAIN(AdapterFailuresTest)
#include "failures_test.moc"
