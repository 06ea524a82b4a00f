// The VCDXBUILD dialog through the real job engine: a pseudo-terminal console, the real
// torvane-cmd, and a fake vcdxbuild.exe that records its arguments, writes a cue sheet
// with subindices where --cue-file says, and prints a chosen log.

#include "author/frm_vcdxbuild.h"
#include "job/job_paths.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class VcdxbuildDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init();
    void cleanup();
    void outputFilterFollowsTheImageType();
    void subindexBoxFollowsTheImageTypeAndKeepsItsTick();
    void validationComesBeforeAnythingIsWritten_data();
    void validationComesBeforeAnythingIsWritten();
    void cueBinJob_data();
    void cueBinJob();
    void tocJobKeepsItsInterlockAndLeavesNoCue();
    void outputFolderThatDoesNotExistIsAFailedJob();
    void inputFolderThatDoesNotExistFailsAtOnce();
    void escapeClosesTheIdleDialog();

private:
    void choosePaths(const QString& input, const QString& output);
    QStringList enabledControls() const;
    QStringList toolArguments() const;
    void runJobToIdle(int answer);

    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<frm_mainmenu> menu_;
    QPointer<frm_vcdxbuild> dialog_;
    QString projDir_;  // the input folder: the job runs here
    QString imgDir_;   // the output folder: the log goes here
    QString input_;
};

namespace {

const QByteArray kSheet =
    "FILE \"movie.bin\" BINARY\r\n"
    "  TRACK 01 MODE2/2352\r\n"
    "    FLAGS DCP\r\n"
    "    INDEX 01 00:00:00\r\n"
    "  TRACK 02 MODE2/2352\r\n"
    "    FLAGS DCP\r\n"
    "    INDEX 01 00:04:00\r\n"
    "    INDEX 02 00:10:00\r\n";

const QByteArray kSuccessLog =
    "   INFO: writing track 1 (ISO9660)...\r\n"
    "   INFO: finished ok, image created with 333440 sectors [74:03:40]\r\n";

const QString kSuccessBox = QStringLiteral(
    "The process has finished successfully!\r\r"
    "The image size is: 74 minutes, 3 seconds, 40 sectors.\r\r"
    "It may fit on a 74min/650MB CD-R disc with a small\rdegree of overburning.  Otherwise, use "
    "an 80min/700MB\rCD-R disc.\r\r"
    "Do you want to read the log file?");

const QString kFailureBox = QStringLiteral(
    "There appears to have been an error!\r\rThe error may have been shown in the console "
    "window\rbefore it closed.  Otherwise, check your XML file.");

const QStringList kAllControls = {"opt_cuebin", "opt_toc",   "txt_output", "cmd_output",
                                  "txt_input",  "cmd_input", "chk_s2336",  "chk_subindex",
                                  "cmd_about",  "cmd_rip",   "cmd_cancel"};

QStringList Without(QStringList names, const QString& name) {
    names.removeAll(name);
    return names;
}

}  // namespace

void VcdxbuildDialogTest::init() {
    fakes_.boxes.shown.clear();
    fakes_.boxes.answers.clear();
    fakes_.files.calls.clear();
    fakes_.desktop.viewed.clear();
    app_ = std::make_unique<FakeAppFolder>();
    work_ = std::make_unique<QTemporaryDir>();
    const QByteArray work = QFile::encodeName(work_->path());
    projDir_ = work_->path() + QStringLiteral("/proj dir & co/");
    imgDir_ = work_->path() + QStringLiteral("/img dir; $x/");
    input_ = projDir_ + QStringLiteral("-video cd.xml");
    QVERIFY(QDir().mkpath(projDir_));
    QVERIFY(QDir().mkpath(imgDir_));
    QFile xml(input_);
    QVERIFY(xml.open(QIODevice::WriteOnly));
    xml.close();
    QFile sheet(work_->path() + QStringLiteral("/sheet.cue"));
    QVERIFY(sheet.open(QIODevice::WriteOnly));
    sheet.write(kSheet);
    sheet.close();
    app_->addTool(QStringLiteral("vcdxbuild.exe"),
                  "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" + work +
                      "/args.txt'\n"
                      "for a in \"$@\"; do case \"$a\" in\n"
                      "  --cue-file=*) cp '" +
                      work +
                      "/sheet.cue' \"${a#--cue-file=}\";;\n"
                      "esac; last=\"$a\"; done\n"
                      "if [ -e \"$last\" ]; then cat '" +
                      work +
                      "/tool-log.txt'\n"
                      "else printf '**ERROR: cannot open %s\\r\\n' \"$last\"; fi");
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, app_->path());
    dialog_ = qobject_cast<frm_vcdxbuild*>(menu_->openTool(QStringLiteral("vcdxbuild")));
    QVERIFY(dialog_);
}

void VcdxbuildDialogTest::cleanup() {
    CloseDialog(dialog_, fakes_.boxes);
    menu_.reset();
}

void VcdxbuildDialogTest::choosePaths(const QString& input, const QString& output) {
    fakes_.files.names = {input, output};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
}

QStringList VcdxbuildDialogTest::enabledControls() const {
    return EnabledControls(*dialog_, kAllControls);
}

QStringList VcdxbuildDialogTest::toolArguments() const {
    return RecordedArguments(work_->path() + QStringLiteral("/args.txt"));
}

void VcdxbuildDialogTest::runJobToIdle(int answer) {
    QVERIFY(RunJobToIdle(*dialog_->cmd_rip, dialog_->frame, fakes_.boxes, answer));
}

void VcdxbuildDialogTest::outputFilterFollowsTheImageType() {
    fakes_.files.names = {std::nullopt, std::nullopt, std::nullopt};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
    dialog_->opt_toc->click();
    dialog_->cmd_output->click();
    QCOMPARE(fakes_.files.calls.size(), 3u);
    QVERIFY(!fakes_.files.calls[0].save);
    QCOMPARE(fakes_.files.calls[0].filter,
             QStringLiteral("All Files (*.*)|*.*|XML Files (*.xml)|*.xml"));
    QVERIFY(fakes_.files.calls[1].save);
    QCOMPARE(fakes_.files.calls[1].filter,
             QStringLiteral("All Files (*.*)|*.*|BIN Files (*.bin)|*.bin"));
    QCOMPARE(fakes_.files.calls[2].filter,
             QStringLiteral("All Files (*.*)|*.*|TOC Files (*.toc)|*.toc"));
    for (const auto& call : fakes_.files.calls)
        QCOMPARE(call.filterIndex, 2);
    // Cancelled every time: nothing was filled in.
    QVERIFY(dialog_->txt_input->text().isEmpty());
    QVERIFY(dialog_->txt_output->text().isEmpty());
}

void VcdxbuildDialogTest::subindexBoxFollowsTheImageTypeAndKeepsItsTick() {
    choosePaths(input_, imgDir_ + QStringLiteral("movie.bin"));
    dialog_->chk_subindex->click();
    dialog_->opt_toc->click();
    QVERIFY(!dialog_->chk_subindex->isEnabled());
    QVERIFY(dialog_->chk_subindex->isChecked());
    QCOMPARE(dialog_->txt_output->text(), imgDir_ + QStringLiteral("movie.bin"));
    dialog_->opt_cuebin->click();
    QVERIFY(dialog_->chk_subindex->isEnabled());
    QVERIFY(dialog_->chk_subindex->isChecked());
}

void VcdxbuildDialogTest::validationComesBeforeAnythingIsWritten_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    QTest::newRow("both empty") << ""
                                << ""
                                << "You have not set an output file!";
    QTest::newRow("quote in the output") << "proj/v.xml"
                                         << "img/say \"hi\".bin" << QuotedPathMessage();
    QTest::newRow("quote in the input") << "proj/\"v\".xml"
                                        << "img/movie.bin" << QuotedPathMessage();
}

void VcdxbuildDialogTest::validationComesBeforeAnythingIsWritten() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(QString, message);
    const auto full = [this](const QString& name) {
        return name.isEmpty() ? name : work_->path() + QLatin1Char('/') + name;
    };
    QVERIFY(QDir(work_->path()).mkpath(QStringLiteral("proj")));
    const auto chosen = [&full](const QString& name) {
        return name.isEmpty() ? std::nullopt : std::optional<QString>(full(name));
    };
    fakes_.files.names = {chosen(input), chosen(output)};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
    dialog_->cmd_rip->click();
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].title, QStringLiteral("Information"));
    QCOMPARE(fakes_.boxes.shown[0].text, message);
    QCOMPARE(fakes_.boxes.shown[0].buttons, MessageBoxRequest::Buttons::Ok);
    QCOMPARE(dialog_->frame.job_running, 0);
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QCOMPARE(enabledControls(), kAllControls);
    QVERIFY(!QFile::exists(work_->path() + QStringLiteral("/proj/run.bat")));
}

void VcdxbuildDialogTest::cueBinJob_data() {
    QTest::addColumn<QByteArray>("toolLog");
    QTest::addColumn<bool>("noSubindex");
    QTest::addColumn<bool>("xmlPresent");
    QTest::addColumn<QString>("box");
    QTest::addColumn<bool>("cueRewritten");
    QTest::newRow("success with a size field, subindices removed")
        << kSuccessLog << true << true << kSuccessBox << true;
    QTest::newRow("success, subindices kept")
        << kSuccessLog << false << true << kSuccessBox << false;
    QTest::newRow("failure never rewrites the cue")
        << QByteArray("   INFO: start\r\n**ERROR: bad XML\r\n") << true << true << kFailureBox
        << false;
    QTest::newRow("success line followed by another line")
        << kSuccessLog + "++ WARN: one more thing\r\n"
        << true << true << kFailureBox << false;
    QTest::newRow("success line followed by line ends only") << kSuccessLog + "\r\n\r\n"
                                                             << true << true << kSuccessBox << true;
    QTest::newRow("a log with one line end")
        << QByteArray("   INFO: finished ok, image created with 9 sectors [74:03:40]\r\n") << true
        << true << kFailureBox << false;
    QTest::newRow("input not found") << kSuccessLog << true << false << kFailureBox << false;
}

void VcdxbuildDialogTest::cueBinJob() {
    QFETCH(QByteArray, toolLog);
    QFETCH(bool, noSubindex);
    QFETCH(bool, xmlPresent);
    QFETCH(QString, box);
    QFETCH(bool, cueRewritten);
    QFile logSource(work_->path() + QStringLiteral("/tool-log.txt"));
    QVERIFY(logSource.open(QIODevice::WriteOnly));
    logSource.write(toolLog);
    logSource.close();
    if (!xmlPresent)
        QVERIFY(QFile::remove(input_));
    const QString cue = imgDir_ + QStringLiteral("movie.cue");
    const QString log = imgDir_ + QStringLiteral("log.txt");
    const QString script = projDir_ + QStringLiteral("run.bat");
    choosePaths(input_, imgDir_ + QStringLiteral("movie.bin"));
    if (noSubindex)
        dialog_->chk_subindex->click();

    dialog_->cmd_rip->click();
    // Armed: the script lies in the input folder; every control is off.
    QCOMPARE(dialog_->frame.job_running, -1);
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("0"));
    QVERIFY(!dialog_->frame.console);
    QVERIFY(ReadFile(script).startsWith("echo off\r\ncls\r\necho VCDXBUILD Tool"));
    QCOMPARE(enabledControls(), QStringList());
    QCOMPARE(dialog_->cue_path, cue);

    // Running: minimised, polling, Escape does nothing.
    QVERIFY(WaitForPause(dialog_->frame));
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("1"));
    QVERIFY(dialog_->isMinimized());
    QCOMPARE(dialog_->frame.console->title(), QStringLiteral("Torvane -- VCDXBUILD Tool"));
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(enabledControls(), QStringList());

    // Reporting: the box comes while minimised, the console gone, the controls still off.
    bool minimised = false, consoleGone = false;
    QStringList enabledAtReport{"unset"};
    fakes_.boxes.onShow = [&](const MessageBoxRequest&) {
        minimised = dialog_->isMinimized();
        consoleGone = !dialog_->frame.console;
        enabledAtReport = enabledControls();
    };
    fakes_.boxes.answers = {vbYes};
    PressKeyInConsole(dialog_->frame);
    QVERIFY(WaitForIdle(dialog_->frame));
    fakes_.boxes.onShow = nullptr;

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    const MessageBoxRequest& shown = fakes_.boxes.shown[0];
    QCOMPARE(shown.title, QStringLiteral("Information"));
    QCOMPARE(shown.text, box);
    const bool success = box == kSuccessBox;
    QCOMPARE(shown.buttons,
             success ? MessageBoxRequest::Buttons::YesNo : MessageBoxRequest::Buttons::Ok);
    QCOMPARE(shown.defaultAnswer, success ? vbNo : vbOK);
    QVERIFY(minimised);
    QVERIFY(consoleGone);
    QCOMPARE(enabledAtReport, QStringList());
    QCOMPARE(fakes_.desktop.viewed, success ? QStringList{log} : QStringList());

    // Idle: log stays, script gone, input untouched, cue as the option wants it.
    QCOMPARE(ReadFile(log).left(20), xmlPresent ? toolLog.left(20) : "**ERROR: cannot open");
    QVERIFY(!QFile::exists(script));
    QCOMPARE(QFile::exists(input_), xmlPresent);
    const QByteArray sheet = ReadFile(cue);
    QCOMPARE(sheet == kSheet, !cueRewritten);
    if (cueRewritten) {
        QVERIFY(!sheet.contains("FLAGS DCP") && !sheet.contains("INDEX 02"));
        QVERIFY(sheet.contains("    INDEX 01 00:04:00"));
    }
    QVERIFY(!dialog_->isMinimized());
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QCOMPARE(enabledControls(), kAllControls);
    QVERIFY(dialog_->opt_cuebin->isChecked());
    QCOMPARE(dialog_->chk_subindex->isChecked(), noSubindex);
    QCOMPARE(toolArguments(), (QStringList{"-v", "--image-type=bincue", "--cue-file=" + cue,
                                           "--bin-file=" + imgDir_ + "movie.bin", input_}));
}

void VcdxbuildDialogTest::tocJobKeepsItsInterlockAndLeavesNoCue() {
    QFile logSource(work_->path() + QStringLiteral("/tool-log.txt"));
    QVERIFY(logSource.open(QIODevice::WriteOnly));
    logSource.write(kSuccessLog);
    logSource.close();
    choosePaths(input_, imgDir_ + QStringLiteral("movie.toc"));
    dialog_->chk_subindex->click();
    dialog_->opt_toc->click();
    dialog_->chk_s2336->click();
    runJobToIdle(vbNo);

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, kSuccessBox);
    QVERIFY(fakes_.desktop.viewed.isEmpty());
    QVERIFY(dialog_->opt_toc->isChecked());
    QCOMPARE(enabledControls(), Without(kAllControls, QStringLiteral("chk_subindex")));
    QVERIFY(dialog_->chk_subindex->isChecked());
    QVERIFY(!QFile::exists(imgDir_ + QStringLiteral("movie.cue")));
    QCOMPARE(toolArguments(), (QStringList{"--sector-2336", "-v", "--image-type=cdrdao",
                                           "--cdrdao-file=" + imgDir_ + "movie", input_}));
}

void VcdxbuildDialogTest::outputFolderThatDoesNotExistIsAFailedJob() {
    const QString missing = work_->path() + QStringLiteral("/no such dir/");
    choosePaths(input_, missing + QStringLiteral("movie.bin"));
    dialog_->chk_subindex->click();
    runJobToIdle(vbYes);

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, kFailureBox);
    QVERIFY(!QFileInfo::exists(missing));
    QVERIFY(QFile::exists(input_));
    QVERIFY(!QFile::exists(projDir_ + QStringLiteral("run.bat")));
    QCOMPARE(enabledControls(), kAllControls);
}

void VcdxbuildDialogTest::inputFolderThatDoesNotExistFailsAtOnce() {
    const QString missing = work_->path() + QStringLiteral("/gone/");
    choosePaths(missing + QStringLiteral("v.xml"), imgDir_ + QStringLiteral("movie.bin"));
    dialog_->cmd_rip->click();

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, kFailureBox);
    QCOMPARE(dialog_->frame.job_running, 0);
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QVERIFY(!QFileInfo::exists(missing));
    QVERIFY(QDir(imgDir_).isEmpty());
    QCOMPARE(enabledControls(), kAllControls);
}

void VcdxbuildDialogTest::escapeClosesTheIdleDialog() {
    dialog_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog_));
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QTRY_VERIFY(!dialog_);  // closed and deleted
    QVERIFY(fakes_.boxes.shown.empty());
    QCOMPARE(menu_->windowTitle(), QStringLiteral("Torvane"));
    QVERIFY(menu_->isEnabled());
}

QTEST_MAIN(VcdxbuildDialogTest)
#include "vcdxbuild_dialog_test.moc"
