// The VCDXMINFO dialog through the real job engine: a pseudo-terminal console, the real
// torvane-cmd, and a fake tool that records its arguments.

#include "inspect/frm_vcdxminfo.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class VcdxminfoDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init();
    void cleanup();
    void browseFillsTheBoxes();
    void validationReportsTheOutputFirst();
    void jobRunsFromGoToReport();
    void apsOffLeavesRelaxedOutAndDisabled();
    void unloadAnsweredNoKeepsTheJob();
    void unloadAnsweredYesEndsTheJob();
    void consoleThatCannotBeHadReturnsToIdle();

private:
    void fillPaths();
    void expectControlsEnabled(bool enabled);

    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<frm_mainmenu> menu_;
    QPointer<frm_vcdxminfo> dialog_;
    QString argsFile_;
};

void VcdxminfoDialogTest::init() {
    fakes_.boxes.shown.clear();
    fakes_.boxes.answers.clear();
    fakes_.desktop.viewed.clear();
    app_ = std::make_unique<FakeAppFolder>();
    work_ = std::make_unique<QTemporaryDir>();
    argsFile_ = work_->path() + QStringLiteral("/args.txt");
    app_->addRecordingTool(QStringLiteral("vcdxminfo.exe"), argsFile_, "analysed\\n");
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, app_->path());
    dialog_ = qobject_cast<frm_vcdxminfo*>(menu_->openTool(QStringLiteral("vcdxminfo")));
    QVERIFY(dialog_);
}

void VcdxminfoDialogTest::cleanup() {
    CloseDialog(dialog_, fakes_.boxes);
    menu_.reset();
}

void VcdxminfoDialogTest::fillPaths() {
    fakes_.files.names = {work_->path() + QStringLiteral("/in dir/clip & co.mpg"),
                          work_->path() + QStringLiteral("/report.xml")};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
}

void VcdxminfoDialogTest::expectControlsEnabled(bool enabled) {
    for (QWidget* control :
         {static_cast<QWidget*>(dialog_->chk_generic), static_cast<QWidget*>(dialog_->chk_aps),
          static_cast<QWidget*>(dialog_->txt_output), static_cast<QWidget*>(dialog_->cmd_output),
          static_cast<QWidget*>(dialog_->txt_input), static_cast<QWidget*>(dialog_->cmd_input),
          static_cast<QWidget*>(dialog_->cmd_about), static_cast<QWidget*>(dialog_->cmd_rip),
          static_cast<QWidget*>(dialog_->cmd_cancel)}) {
        QVERIFY2(control->isEnabled() == enabled, qPrintable(control->objectName()));
    }
    QCOMPARE(dialog_->chk_apsrelaxed->isEnabled(), enabled && dialog_->chk_aps->isChecked());
}

void VcdxminfoDialogTest::browseFillsTheBoxes() {
    fakes_.files.names = {QStringLiteral("/in/a.mpg"), std::nullopt};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();  // cancelled: nothing changes
    QCOMPARE(dialog_->txt_input->text(), QStringLiteral("/in/a.mpg"));
    QCOMPARE(dialog_->txt_output->text(), QString());
    QCOMPARE(fakes_.files.calls.size(), 2u);
    QVERIFY(!fakes_.files.calls[0].save);
    QVERIFY(fakes_.files.calls[1].save);
    QCOMPARE(fakes_.files.calls[0].filterIndex, 2);
    QCOMPARE(fakes_.files.calls[1].filter,
             QStringLiteral("All Files (*.*)|*.*|XML Files (*.xml)|*.xml"));
    fakes_.files.calls.clear();
}

void VcdxminfoDialogTest::validationReportsTheOutputFirst() {
    dialog_->cmd_rip->click();
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].title, QStringLiteral("Information"));
    QCOMPARE(fakes_.boxes.shown[0].text, QStringLiteral("You have not set an output file!"));
    QCOMPARE(dialog_->frame.job_running, 0);
    expectControlsEnabled(true);

    fakes_.files.names = {work_->path() + QStringLiteral("/r.xml")};
    dialog_->cmd_output->click();
    dialog_->cmd_rip->click();
    QCOMPARE(fakes_.boxes.shown.back().text,
             QStringLiteral("You have not loaded an input XML file!"));
    QVERIFY(!QFile::exists(work_->path() + QStringLiteral("/run.bat")));
}

void VcdxminfoDialogTest::jobRunsFromGoToReport() {
    fillPaths();
    const QString output = work_->path() + QStringLiteral("/report.xml");
    const QString script = work_->path() + QStringLiteral("/run.bat");
    dialog_->cmd_rip->click();

    // Armed: the script is on disk, the first tick not yet come.
    QCOMPARE(dialog_->frame.job_running, -1);
    QVERIFY(dialog_->frame.Timer1.Enabled());
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("0"));
    QVERIFY(!dialog_->frame.console);
    QVERIFY(ReadFile(script).endsWith("cls\r\necho ***end***"));
    expectControlsEnabled(false);

    // Running: the console shows the tool's output and waits at "pause".
    QVERIFY(WaitForPause(dialog_->frame));
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("1"));
    QVERIFY(dialog_->isMinimized());
    QCOMPARE(dialog_->frame.console->title(), QStringLiteral("Torvane -- VCDXMINFO Tool"));
    QCOMPARE(dialog_->frame.console->attribute(), 10);
    QVERIFY(dialog_->frame.console->screenText().contains(QStringLiteral("analysed")));
    QVERIFY(dialog_->frame.console->WordScan() != QLatin1String("***end***"));
    expectControlsEnabled(false);

    // Reporting: the question comes while the dialog is still minimised, console gone.
    bool minimisedAtReport = false;
    bool consoleGoneAtReport = false;
    fakes_.boxes.onShow = [&](const MessageBoxRequest&) {
        minimisedAtReport = dialog_->isMinimized();
        consoleGoneAtReport = !dialog_->frame.console;
    };
    fakes_.boxes.answers = {vbYes};
    PressKeyInConsole(dialog_->frame);
    QVERIFY(WaitForIdle(dialog_->frame));
    fakes_.boxes.onShow = nullptr;

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    const MessageBoxRequest& box = fakes_.boxes.shown[0];
    QCOMPARE(box.title, QStringLiteral("Question"));
    QCOMPARE(box.text,
             QStringLiteral("Finished!\r\rDo you want to open the XML file now?\r\n\r\n") + output);
    QCOMPARE(box.defaultAnswer, vbYes);
    QVERIFY(minimisedAtReport);
    QVERIFY(consoleGoneAtReport);
    QCOMPARE(fakes_.desktop.viewed, QStringList{output});

    // Idle again.
    QVERIFY(!QFile::exists(script));
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("0"));
    QVERIFY(!dialog_->isMinimized());
    expectControlsEnabled(true);
    QCOMPARE(QString::fromUtf8(ReadFile(argsFile_)).split(QLatin1Char('\n')),
             (QStringList{"-i", "-a", "-v", "-p", "--output-file=" + output,
                          work_->path() + "/in dir/clip & co.mpg", ""}));
}

void VcdxminfoDialogTest::apsOffLeavesRelaxedOutAndDisabled() {
    fillPaths();
    dialog_->chk_apsrelaxed->click();
    dialog_->chk_aps->click();
    QVERIFY(!dialog_->chk_apsrelaxed->isEnabled());
    QVERIFY(dialog_->chk_apsrelaxed->isChecked());
    dialog_->cmd_rip->click();
    QVERIFY(WaitForPause(dialog_->frame));
    fakes_.boxes.answers = {vbNo};
    PressKeyInConsole(dialog_->frame);
    QVERIFY(WaitForIdle(dialog_->frame));
    QVERIFY(fakes_.desktop.viewed.isEmpty());
    QVERIFY(!dialog_->chk_apsrelaxed->isEnabled());
    QVERIFY(dialog_->chk_apsrelaxed->isChecked());
    QCOMPARE(QString::fromUtf8(ReadFile(argsFile_)).split(QLatin1Char('\n')).mid(0, 3),
             (QStringList{"-i", "-v", "-p"}));
}

void VcdxminfoDialogTest::unloadAnsweredNoKeepsTheJob() {
    fillPaths();
    dialog_->cmd_rip->click();
    QVERIFY(WaitForPause(dialog_->frame));
    fakes_.boxes.answers = {vbNo};
    QVERIFY(!dialog_->close());
    QCOMPARE(fakes_.boxes.shown.back().text,
             QStringLiteral("The command is still running!  Are you\rsure that you want to quit?"));
    QCOMPARE(fakes_.boxes.shown.back().defaultAnswer, vbNo);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(dialog_->frame.job_running, -1);
    QVERIFY(dialog_->frame.Timer1.Enabled());
    QVERIFY(dialog_->frame.console);
    QCOMPARE(menu_->windowTitle(), QStringLiteral("VCDXMINFO - Torvane"));

    fakes_.boxes.answers = {vbNo};
    PressKeyInConsole(dialog_->frame);
    QVERIFY(WaitForIdle(dialog_->frame));  // the job still ends as usual
}

void VcdxminfoDialogTest::unloadAnsweredYesEndsTheJob() {
    // A tool that is still at work when the user gives up.
    const QString pidFile = work_->path() + QStringLiteral("/tool.pid");
    app_->addTool(QStringLiteral("vcdxminfo.exe"),
                  "echo $$ > '" + QFile::encodeName(pidFile) + "'\nexec sleep 60");
    fillPaths();
    dialog_->cmd_rip->click();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pidFile) && !ReadFile(pidFile).isEmpty(),
                             kJobStepTimeoutMs);
    const pid_t toolPid = ReadFile(pidFile).trimmed().toInt();
    const pid_t interpreterPid = dialog_->frame.console->processId();

    fakes_.boxes.answers = {vbYes};
    QVERIFY(dialog_->close());
    QVERIFY(ProcessIsGone(interpreterPid));
    // The tool was the interpreter's child: the hang-up reaches it through its group.
    QTRY_VERIFY_WITH_TIMEOUT(ProcessIsGone(toolPid), kJobStepTimeoutMs);
    QVERIFY(!QFile::exists(work_->path() + QStringLiteral("/run.bat")));
    QCOMPARE(menu_->windowTitle(), QStringLiteral("Torvane"));
    QVERIFY(menu_->isEnabled());
}

void VcdxminfoDialogTest::consoleThatCannotBeHadReturnsToIdle() {
    CConsole taken;  // the one console is already in use
    fillPaths();
    dialog_->cmd_rip->click();
    QVERIFY(WaitForIdle(dialog_->frame));
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, QStringLiteral("Couldn't allocate console"));
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QVERIFY(!QFile::exists(work_->path() + QStringLiteral("/run.bat")));
    QVERIFY(!dialog_->isMinimized());
    expectControlsEnabled(true);
}

QTEST_MAIN(VcdxminfoDialogTest)
#include "vcdxminfo_dialog_test.moc"
