// The job frame through the real console and torvane-cmd: one job's states, the unload guard,
// the ways a job cannot start, and the paths and folders Go refuses before writing anything.

#include "core/job_paths.h"
#include "forms/form_support.h"
#include "platform/console_colours.h"
#include "tests/support/job_driver.h"

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
                frame_->console->screen().defaultForeground() == platform::ConsoleColour(10));
        QVERIFY(ShownConsoleWindow()->windowTitle() == "Torvane -- Test Tool" &&
                frame_->console->screen().screenText().contains("tool ran"));
        QVERIFY(ReadBytes(work_->filePath("tool.out")) == "done\n" && events_.isEmpty());
        // The key ends it: one report, console and window gone, still minimised; then idle.
        PressKeyInConsole();
        QVERIFY(WaitForIdle(*frame_) && !ShownConsoleWindow());
        QCOMPARE(events_, (QStringList{"report console=0 minimised=1", "enable"}));
        QVERIFY(!frame_->Timer1.Enabled() && frame_->Timer1.Tag == "0" && !dialog_->isMinimized());
        QVERIFY(!QFile::exists(job.scriptPath) && !QFile::exists(list));
        QVERIFY(frame_->Form_Unload() && fakes_.boxes.shown.empty());  // idle: no question
    }

    void unloadWhileRunningAsksAndYesEndsEveryProcess() {
        const QString pidFile = work_->filePath("tool.pid");
        app_->addTool("tool.exe",
                      "echo $$ $PPID > '" + QFile::encodeName(pidFile) + "'\nexec sleep 60");
        QVERIFY(frame_->Start(plan(work_->path())));
        QTRY_VERIFY_WITH_TIMEOUT(ReadBytes(pidFile).endsWith('\n'), kJobStepTimeoutMs);
        const pid_t toolPid = ReadBytes(pidFile).split(' ')[0].toInt();
        const pid_t interpreterPid = ReadBytes(pidFile).split(' ')[1].trimmed().toInt();
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

    void refusals_data();
    void refusals();

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

void JobFrameTest::refusals_data() {
    QTest::addColumn<QString>("path");     // a file the job reads or writes
    QTest::addColumn<QString>("folder");   // a folder it writes into; <d>: the test's folder
    QTest::addColumn<QString>("message");  // the one box's text, empty for none
    const auto row = [](const char* name, const char* path, const char* folder,
                        const QString& message) {
        QTest::newRow(name) << QString(path) << QString(folder) << message;
    };
    const QString refused(
        "This file name cannot be passed to the tool:\r\r%1\r\r%2\rPlease rename the file or "
        "choose another one.");
    const QString control(
        "It holds a control character (a line break, a tab or an escape character).");
    const QString quote("It holds a double quote.");
    const QString missing(
        "The folder does not exist:\r\r%1\r\rPlease choose a folder that exists.");
    row("fine: blanks, shell characters, non-ASCII, a leading dash, an inner backslash",
        "-/m/a b &;|<>$'`()Ärger\\ñandú.mpg", "<d>/", "");
    row("a double quote", "/m/say \"hi\".xml", "<d>/", refused.arg("/m/say \"hi\".xml", quote));
    row("line feeds", "/m/movie\ntouch x\n.bin", "<d>/",
        refused.arg("/m/movie?touch x?.bin", control));
    row("an escape drawing the end marker, a carriage return, a tab, a delete",
        "/m/\x1b[H***end***\rb\t\x7f", "<d>/", refused.arg("/m/?[H***end***?b??", control));
    row("a trailing backslash", "/m/dir\\", "<d>/",
        refused.arg("/m/dir\\", "It ends in a backslash."));
    const QString part("A folder's name or the name before its extension ends in a backslash.");
    row("a folder's closing backslash", "/m/H\\/d.xml", "<d>/", refused.arg("/m/H\\/d.xml", part));
    row("a backslash before .toc", "/m/d\\.toc", "<d>/", refused.arg("/m/d\\.toc", part));
    row("a missing folder", "/a.mpg", "<d>/gone/", missing.arg("<d>/gone/"));
    // procfs refuses writes even to root, as a read-only folder refuses them to a user.
    row("a folder that cannot be written", "/a.mpg", "/proc/self/",
        "The folder cannot be written to:\r\r/proc/self/\r\rPlease choose a folder that you may "
        "write to.");
    row("the file is refused first", "/a\"", "<d>/gone/", refused.arg("/a\"", quote));
}

void JobFrameTest::refusals() {
    QFETCH(QString, path);
    QFETCH(QString, folder);
    QFETCH(QString, message);
    QTemporaryDir dir;
    folder.replace("<d>", dir.path());
    message.replace("<d>", dir.path());
    FakeMessageBoxes boxes;
    QCOMPARE(GoMayProceed(boxes, {}, CarriedPaths({QStringLiteral("/fine.mpg"), path}),
                          WrittenFolders({dir.path(), folder})),
             message.isEmpty());
    QVERIFY(boxes.shown.size() < 2);
    QCOMPARE(boxes.shown.empty() ? QString() : boxes.shown[0].text, message);
}

QTEST_MAIN(JobFrameTest)
#include "job_frame_test.moc"
