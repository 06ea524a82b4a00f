// The job frame every tool dialog uses, through the real console and torvane-cmd: the
// states of one job, the end-of-job step, the unload guard and the ways a job cannot start.

#include "job/job_frame.h"
#include "job/job_paths.h"
#include "tests/support/job_driver.h"

#include <QTest>
#include <optional>

using namespace torvane;
using namespace torvane::test;

class JobFrameTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init() {
        fakes_.boxes.shown.clear(), events_.clear();
        app_ = std::make_unique<FakeAppFolder>();
        app_->addTool("tool.exe", "echo tool ran >&2; echo done > tool.out");
        work_ = std::make_unique<QTemporaryDir>();
        dialog_ = std::make_unique<QWidget>();
        dialog_->show();
        const auto report = [this] {
            events_ << QString("report console=%1 minimised=%2")
                           .arg(bool(frame_->console))
                           .arg(dialog_->isMinimized());
        };
        frame_ =
            std::make_unique<JobFrame>(*dialog_, fakes_.services, "Torvane -- Test Tool",
                                       JobFrame::Hooks{report, [this] { events_ << "enable"; }});
    }
    void cleanup() {
        fakes_.boxes.answers = {vbYes};
        frame_->Form_Unload();
        frame_.reset(), dialog_.reset();
    }

    void aJobGoesFromGoToReportOnce() {
        const QString list = work_->filePath("list.txt");
        QFile(list).open(QIODevice::WriteOnly);
        const JobPlan job = plan(work_->path());
        QVERIFY(frame_->Start(job, {list}));
        // Armed: the first tick not yet come.
        QVERIFY(frame_->job_running == -1 && frame_->Timer1.Tag == "0" && !frame_->console);
        // Running: the console waits at "pause" with the tool's output on it.
        QVERIFY(WaitForPause(*frame_));
        QVERIFY(frame_->Timer1.Tag == "1" && dialog_->isMinimized() &&
                frame_->console->attribute() == 10);
        QVERIFY(frame_->console->title() == "Torvane -- Test Tool" &&
                frame_->console->screenText().contains("tool ran"));
        QVERIFY(ReadBytes(work_->filePath("tool.out")) == "done\n" && events_.isEmpty());
        // The key ends it: one report, console gone, still minimised; then idle and clean.
        PressKeyInConsole(*frame_);
        QVERIFY(WaitForIdle(*frame_));
        QCOMPARE(events_, (QStringList{"report console=0 minimised=1", "enable"}));
        QVERIFY(!frame_->Timer1.Enabled() && frame_->Timer1.Tag == "0" && !dialog_->isMinimized());
        QVERIFY(!QFile::exists(job.scriptPath) && !QFile::exists(list));
        QVERIFY(frame_->Form_Unload() && fakes_.boxes.shown.empty());  // idle: no question
    }

    void unloadWhileRunningAsksAndYesEndsEveryProcess() {
        const QString pidFile = work_->filePath("tool.pid");
        app_->addTool("tool.exe", "echo $$ > '" + QFile::encodeName(pidFile) + "'\nexec sleep 60");
        QVERIFY(frame_->Start(plan(work_->path())));
        QTRY_VERIFY_WITH_TIMEOUT(!ReadBytes(pidFile).isEmpty(), kJobStepTimeoutMs);
        const pid_t toolPid = ReadBytes(pidFile).trimmed().toInt();
        const pid_t interpreterPid = frame_->console->processId();
        fakes_.boxes.answers = {vbNo};
        QVERIFY(!frame_->Form_Unload() && fakes_.boxes.shown.back().defaultAnswer == vbNo);
        QCOMPARE(fakes_.boxes.shown.back().text,
                 "The command is still running!  Are you\rsure that you want to quit?");
        QVERIFY(frame_->running() && frame_->console && frame_->Timer1.Enabled());
        fakes_.boxes.answers = {vbYes};
        QVERIFY(frame_->Form_Unload());
        QVERIFY(!frame_->running() && ProcessGone(interpreterPid));
        // The tool is the interpreter's child: the hang-up reaches it through its group.
        QTRY_VERIFY_WITH_TIMEOUT(ProcessGone(toolPid), kJobStepTimeoutMs);
        QVERIFY(!QFile::exists(work_->filePath("run.bat")) && events_.isEmpty());
    }

    void aJobThatCannotStartReturnsToIdle_data() {
        QTest::addColumn<bool>("consoleTaken");
        QTest::addColumn<QString>("jobDir");  // in the test's folder <d>
        QTest::addColumn<QString>("box");     // the start of the one box's text
        QTest::newRow("the one console in use") << true << ""
                                                << "Couldn't allocate console";
        QTest::newRow("no script")
            << false << "/gone"
            << "The job script could not be written:\r\r<d>/gone/run.bat\r\r";
    }

    void aJobThatCannotStartReturnsToIdle() {
        QFETCH(bool, consoleTaken);
        QFETCH(QString, jobDir);
        QFETCH(QString, box);
        // A stale script where the job would otherwise end up must not run either.
        QVERIFY(WriteBytes(work_->filePath("run.bat"), "echo stale > stale.out"));
        QVERIFY(QDir::setCurrent(work_->path()));
        std::optional<CConsole> taken;
        if (consoleTaken)
            taken.emplace();
        QCOMPARE(frame_->Start(plan(work_->path() + jobDir)), consoleTaken);
        QVERIFY(WaitForIdle(*frame_));
        QTest::qWait(300);  // time enough for a stale script to run
        QVERIFY(!frame_->running() && !frame_->console && !frame_->Timer1.Enabled());
        QCOMPARE(events_, QStringList{"enable"});
        QCOMPARE(fakes_.boxes.shown.size(), 1u);
        QVERIFY2(fakes_.boxes.shown[0].text.startsWith(box.replace("<d>", work_->path())),
                 qPrintable(fakes_.boxes.shown[0].text));
        QVERIFY(!QFile::exists(work_->filePath("stale.out")));
        QCOMPARE(QFile::exists(work_->filePath("run.bat")), !consoleTaken);
    }

private:
    // A job in `jobDir` that runs the fake tool and ends at "pause".
    JobPlan plan(const QString& jobDir) const {
        JobPlan plan{{}, jobDir + '/', jobDir + "/run.bat", jobDir + "/log.txt", {}};
        plan.scriptLines = ScriptOpening("Test Tool")
                           << '"' + app_->toolFolder() + "tool.exe\" > log.txt" << ScriptClosing();
        return plan;
    }
    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<QWidget> dialog_;
    std::unique_ptr<JobFrame> frame_;
    QStringList events_;  // the hooks as they were called, with what they saw
};

QTEST_MAIN(JobFrameTest)
#include "job_frame_test.moc"
