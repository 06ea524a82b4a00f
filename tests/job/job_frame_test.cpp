// The job frame every tool dialog uses, through the real console and torvane-cmd: the
// states of one job, the end-of-job step, the unload guard and the ways a job cannot start.

#include "job/job_frame.h"
#include "job/job_paths.h"
#include "tests/support/job_driver.h"

#include <QTest>

using namespace torvane;
using namespace torvane::test;

class JobFrameTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init();
    void cleanup();
    void aJobGoesFromGoToReportOnce();
    void unloadWhileRunningAsksAndYesEndsEveryProcess();
    void aConsoleThatCannotBeHadReturnsToIdle();
    void aScriptThatCannotBeWrittenStartsNothing();

private:
    JobPlan plan(const QString& jobDir) const;

    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<QWidget> dialog_;
    std::unique_ptr<JobFrame> frame_;
    QStringList events_;  // the hooks as they were called, with what they saw
};

void JobFrameTest::init() {
    fakes_.boxes.shown.clear();
    events_.clear();
    app_ = std::make_unique<FakeAppFolder>();
    app_->addTool(QStringLiteral("tool.exe"), "echo tool ran >&2; echo done > tool.out");
    work_ = std::make_unique<QTemporaryDir>();
    dialog_ = std::make_unique<QWidget>();
    dialog_->show();
    JobFrame::Hooks hooks{[this] {
                              events_ << QStringLiteral("report console=%1 minimised=%2")
                                             .arg(bool(frame_->console))
                                             .arg(dialog_->isMinimized());
                          },
                          [this] { events_ << QStringLiteral("enable"); }};
    frame_ = std::make_unique<JobFrame>(*dialog_, fakes_.services,
                                        QStringLiteral("Torvane -- Test Tool"), hooks);
}

void JobFrameTest::cleanup() {
    fakes_.boxes.answers = {vbYes};
    frame_->Form_Unload();
    frame_.reset();
    dialog_.reset();
}

JobPlan JobFrameTest::plan(const QString& jobDir) const {
    JobPlan plan;
    plan.jobDir = jobDir + QLatin1Char('/');
    plan.scriptPath = plan.jobDir + QStringLiteral("run.bat");
    plan.logPath = plan.jobDir + QStringLiteral("log.txt");
    plan.scriptLines = ScriptOpening(QStringLiteral("Test Tool"));
    plan.scriptLines << QLatin1Char('"') + app_->toolFolder() +
                            QStringLiteral("tool.exe\" > log.txt");
    plan.scriptLines << ScriptClosing();
    return plan;
}

void JobFrameTest::aJobGoesFromGoToReportOnce() {
    const QString list = work_->filePath(QStringLiteral("list.txt"));
    QFile(list).open(QIODevice::WriteOnly);
    const JobPlan job = plan(work_->path());
    QVERIFY(frame_->Start(job, {list}));

    // Armed: the script is on disk as written, the first tick not yet come.
    QCOMPARE(frame_->job_running, -1);
    QCOMPARE(frame_->Timer1.Tag, QStringLiteral("0"));
    QVERIFY(!frame_->console);
    QCOMPARE(ReadFile(job.scriptPath), JoinScriptLines(job.scriptLines).toUtf8());

    // Running: the console waits at "pause" with the tool's output on it.
    QVERIFY(WaitForPause(*frame_));
    QCOMPARE(frame_->Timer1.Tag, QStringLiteral("1"));
    QVERIFY(dialog_->isMinimized());
    QCOMPARE(frame_->console->title(), QStringLiteral("Torvane -- Test Tool"));
    QCOMPARE(frame_->console->attribute(), 10);
    QVERIFY(frame_->console->screenText().contains(QStringLiteral("tool ran")));
    QCOMPARE(ReadFile(work_->filePath(QStringLiteral("tool.out"))), QByteArray("done\n"));
    QVERIFY(events_.isEmpty());

    // The key ends it: one report, console gone, still minimised; then idle and clean.
    PressKeyInConsole(*frame_);
    QVERIFY(WaitForIdle(*frame_));
    QCOMPARE(events_, (QStringList{"report console=0 minimised=1", "enable"}));
    QVERIFY(!frame_->Timer1.Enabled());
    QCOMPARE(frame_->Timer1.Tag, QStringLiteral("0"));
    QVERIFY(!dialog_->isMinimized());
    QVERIFY(!QFile::exists(job.scriptPath));
    QVERIFY(!QFile::exists(list));
    QVERIFY(frame_->Form_Unload());  // idle: no question
    QVERIFY(fakes_.boxes.shown.empty());
}

void JobFrameTest::unloadWhileRunningAsksAndYesEndsEveryProcess() {
    const QString pidFile = work_->filePath(QStringLiteral("tool.pid"));
    app_->addTool(QStringLiteral("tool.exe"),
                  "echo $$ > '" + QFile::encodeName(pidFile) + "'\nexec sleep 60");
    QVERIFY(frame_->Start(plan(work_->path())));
    QTRY_VERIFY_WITH_TIMEOUT(!ReadFile(pidFile).isEmpty(), kJobStepTimeoutMs);
    const pid_t toolPid = ReadFile(pidFile).trimmed().toInt();
    const pid_t interpreterPid = frame_->console->processId();

    fakes_.boxes.answers = {vbNo};
    QVERIFY(!frame_->Form_Unload());
    QCOMPARE(fakes_.boxes.shown.back().text,
             QStringLiteral("The command is still running!  Are you\rsure that you want to quit?"));
    QCOMPARE(fakes_.boxes.shown.back().defaultAnswer, vbNo);
    QVERIFY(frame_->running() && frame_->console && frame_->Timer1.Enabled());

    fakes_.boxes.answers = {vbYes};
    QVERIFY(frame_->Form_Unload());
    QVERIFY(!frame_->running());
    QVERIFY(ProcessIsGone(interpreterPid));
    // The tool is the interpreter's child: the hang-up reaches it through its group.
    QTRY_VERIFY_WITH_TIMEOUT(ProcessIsGone(toolPid), kJobStepTimeoutMs);
    QVERIFY(!QFile::exists(work_->filePath(QStringLiteral("run.bat"))));
    QVERIFY(events_.isEmpty());
}

void JobFrameTest::aConsoleThatCannotBeHadReturnsToIdle() {
    CConsole taken;  // the one console is already in use
    QVERIFY(frame_->Start(plan(work_->path())));
    QVERIFY(WaitForIdle(*frame_));
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, QStringLiteral("Couldn't allocate console"));
    QCOMPARE(events_, QStringList{"enable"});
    QVERIFY(!frame_->Timer1.Enabled());
    QVERIFY(!QFile::exists(work_->filePath(QStringLiteral("run.bat"))));
}

void JobFrameTest::aScriptThatCannotBeWrittenStartsNothing() {
    // A stale script where the job would otherwise end up must not run either.
    QFile stale(work_->filePath(QStringLiteral("run.bat")));
    QVERIFY(stale.open(QIODevice::WriteOnly));
    stale.write("echo stale > stale.out");
    stale.close();
    QVERIFY(QDir::setCurrent(work_->path()));
    QVERIFY(!frame_->Start(plan(work_->filePath(QStringLiteral("gone")))));
    QTest::qWait(300);
    QVERIFY(!frame_->running() && !frame_->console && !frame_->Timer1.Enabled());
    QCOMPARE(events_, QStringList{"enable"});
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QVERIFY(fakes_.boxes.shown[0].text.startsWith(
        QStringLiteral("The job script could not be written:\r\r") + work_->path()));
    QVERIFY(!QFile::exists(work_->filePath(QStringLiteral("stale.out"))));
}

QTEST_MAIN(JobFrameTest)
#include "job_frame_test.moc"
