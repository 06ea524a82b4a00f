// The reading adapters when Debian's tool is missing, fails, or still runs when the
// console is dropped. They run as a test build that looks for the tools in a folder of
// this test, where the test puts small shell scripts in their place.

#include "read_fixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <csignal>

using namespace torvane::test;

namespace {

const QString kAdapters = QStringLiteral(TORVANE_TEST_BIN_DIR "/fake-app/VCDImager/");
const QString kTools = QStringLiteral(TORVANE_TEST_BIN_DIR "/fake-tools/");
constexpr int kEventTimeoutMs = 20000;

QString ToolOf(const QString& adapter) {
    return adapter == QLatin1String("vcdxrip.exe") ? "vcdxrip" : "vcd-info";
}

void AddTool(const QString& name, const QByteArray& body) {
    QFile file(kTools + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + body + "\n");
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

// Gone, or a zombie that nobody is left to reap.
bool ProcessGone(qint64 pid) {
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return true;
    const QByteArray text = stat.readAll();
    return text.mid(text.lastIndexOf(')') + 2, 1) == "Z";
}

}  // namespace

class FailuresTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void toolThatIsMissingOrFailsIsReported_data();
    void toolThatIsMissingOrFailsIsReported();
    void droppedConsoleEndsTheToolAndLeavesNothing_data();
    void droppedConsoleEndsTheToolAndLeavesNothing();

private:
    QStringList argsFor(const QString& adapter, const QStringList& switches) const;
    QTemporaryDir work_;
    QString image_;
    QString tmp_;
};

void FailuresTest::initTestCase() {
    image_ = work_.filePath(QStringLiteral("-some disc & é.bin"));
    QFile image(image_);
    QVERIFY(image.open(QIODevice::WriteOnly));
    image.write(QByteArray(146 * 2352, '\0'));  // a whole number of sectors in both sizes
}

void FailuresTest::init() {
    QDir(kTools).removeRecursively();
    QVERIFY(QDir().mkpath(kTools));
    tmp_ = FreshFolder(work_.path(), QStringLiteral("tmp"));
}

QStringList FailuresTest::argsFor(const QString& adapter, const QStringList& switches) const {
    QStringList args = switches;
    args << "-v";
    if (adapter == QLatin1String("vcdxrip.exe"))
        args << "--output-file=videocd.xml";
    return args << "--bin-file=" + image_;
}

void FailuresTest::toolThatIsMissingOrFailsIsReported_data() {
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<QByteArray>("toolBody");  // none: the tool is missing
    QTest::addColumn<QByteArray>("message");
    const QByteArray fails = "echo '   INFO: reading'\nexit 3";
    QTest::newRow("vcdxrip missing") << "vcdxrip.exe" << QStringList() << QByteArray()
                                     << QFile::encodeName("cannot run " + kTools + "vcdxrip");
    QTest::newRow("vcdxrip fails")
        << "vcdxrip.exe" << QStringList() << fails << QByteArray("ended with status 3");
    QTest::newRow("vcd-info fails")
        << "vcddebug.exe" << QStringList() << fails << QByteArray("ended with status 3");
}

void FailuresTest::toolThatIsMissingOrFailsIsReported() {
    QFETCH(QString, adapter);
    QFETCH(QStringList, switches);
    QFETCH(QByteArray, toolBody);
    QFETCH(QByteArray, message);
    if (!toolBody.isEmpty())
        AddTool(ToolOf(adapter), toolBody);
    const AdapterRun run =
        RunAdapter(kAdapters + adapter, argsFor(adapter, switches), work_.path(), tmp_);
    QVERIFY(!run.crashed && run.exitCode != 0);
    QVERIFY2(run.errors.startsWith(adapter.toLatin1() + ": ") && run.errors.contains(message),
             run.errors.constData());
    if (!toolBody.isEmpty())
        QVERIFY(run.log.startsWith("   INFO: reading\r\n"));
    QCOMPARE(EntriesOf(tmp_), QStringList());
}

void FailuresTest::droppedConsoleEndsTheToolAndLeavesNothing_data() {
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<int>("signal");
    QTest::newRow("vcdxrip.exe, hang-up") << "vcdxrip.exe" << QStringList() << int(SIGHUP);
    QTest::newRow("vcddebug.exe, 2336, hang-up")
        << "vcddebug.exe" << QStringList{"--sector-2336"} << int(SIGHUP);
}

void FailuresTest::droppedConsoleEndsTheToolAndLeavesNothing() {
    QFETCH(QString, adapter);
    QFETCH(QStringList, switches);
    QFETCH(int, signal);
    const QString pidFile = kTools + QStringLiteral("pid");
    AddTool(ToolOf(adapter), "echo $$ > '" + QFile::encodeName(pidFile) + "'\nexec sleep 60");
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TMPDIR"), tmp_);
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(work_.path());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(kAdapters + adapter, argsFor(adapter, switches));
    QTRY_VERIFY_WITH_TIMEOUT(QFile(pidFile).size() > 0, kEventTimeoutMs);
    QCOMPARE(EntriesOf(tmp_).size(), 1);  // the adapter's folder, while the tool runs
    QFile file(pidFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const qint64 toolPid = file.readAll().trimmed().toLongLong();

    ::kill(static_cast<pid_t>(process.processId()), signal);
    QVERIFY(process.waitForFinished(kEventTimeoutMs));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(EntriesOf(tmp_), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(toolPid > 0 && ProcessGone(toolPid), kEventTimeoutMs);
}

QTEST_MAIN(FailuresTest)
#include "failures_test.moc"
