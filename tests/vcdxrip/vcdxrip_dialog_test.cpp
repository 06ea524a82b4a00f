// The VCDXRIP dialog through the real job engine: a pseudo-terminal console, the real
// torvane-cmd, and a fake vcdxrip.exe that records its arguments, writes the descriptor
// and a media file where a ripper would, and prints a chosen log.

#include "job/job_paths.h"
#include "rip/frm_vcdxrip.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class VcdxripDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init();
    void cleanup();
    void browseOffersImagesThenDescriptors();
    void noripGreysTheThreeAndKeepsTheirTicks();
    void validationComesBeforeAnythingIsWritten_data();
    void validationComesBeforeAnythingIsWritten();
    void job_data();
    void job();
    void noripJobOverridesTheThreeAndKeepsThemGrey();
    void outputFolderThatDoesNotExistFailsAtOnce();
    void unloadDuringAJobAnsweredNoKeepsIt();

private:
    void writeToolLog(const QByteArray& log);
    void choosePaths(const QString& input, const QString& output);
    QStringList enabledControls() const;
    QStringList toolArguments() const;
    void runJobToIdle(int answer);

    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<frm_mainmenu> menu_;
    QPointer<frm_vcdxrip> dialog_;
    QString imgDir_;  // where the image lies
    QString ripDir_;  // the output folder: job, log and extracted files
};

namespace {

const QByteArray kDoneLog =
    "   INFO: extracting avseq01.mpg\r\n"
    "   INFO: done\r\n";

const QString kSuccessBox =
    QStringLiteral("The process has finished successfully!\r\rDo you want to read the log file?");
const QString kFailureBox = QStringLiteral(
    "There appears to have been an error!\r\rThe error may have been shown in the console "
    "window\rbefore it closed.");

const QStringList kAllControls = {"txt_output",      "cmd_output",     "txt_input", "cmd_input",
                                  "chk_s2336",       "chk_noextpsd",   "chk_norip", "chk_nofiles",
                                  "chk_nosequences", "chk_nosegments", "cmd_about", "cmd_rip",
                                  "cmd_cancel"};

QStringList Without(QStringList names, const QStringList& gone) {
    for (const QString& name : gone)
        names.removeAll(name);
    return names;
}

}  // namespace

void VcdxripDialogTest::init() {
    fakes_.boxes.shown.clear();
    fakes_.boxes.answers.clear();
    fakes_.files.calls.clear();
    fakes_.desktop.viewed.clear();
    app_ = std::make_unique<FakeAppFolder>();
    work_ = std::make_unique<QTemporaryDir>();
    const QByteArray work = QFile::encodeName(work_->path());
    imgDir_ = work_->path() + QStringLiteral("/img & co/");
    ripDir_ = work_->path() + QStringLiteral("/rip dir; $x/");
    QVERIFY(QDir().mkpath(imgDir_));
    QVERIFY(QDir().mkpath(ripDir_));
    for (const char* name : {"-movie one.bin", "movie.nrg"}) {
        QFile image(imgDir_ + QLatin1String(name));
        QVERIFY(image.open(QIODevice::WriteOnly));
    }
    app_->addTool(QStringLiteral("vcdxrip.exe"),
                  "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" + work +
                      "/args.txt'\n"
                      "for a in \"$@\"; do case \"$a\" in\n"
                      "  --output-file=*) xml=\"${a#--output-file=}\";;\n"
                      "  --bin-file=*|--nrg-file=*) image=\"${a#--*-file=}\";;\n"
                      "esac; done\n"
                      "if [ ! -e \"$image\" ]; then printf '**ERROR: cannot open %s\\r\\n' "
                      "\"$image\"; exit 1; fi\n"
                      "echo '<videocd/>' > \"$xml\"; echo mpeg > avseq01.mpg\n"
                      "cat '" +
                      work + "/tool-log.txt'");
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, app_->path());
    dialog_ = qobject_cast<frm_vcdxrip*>(menu_->openTool(QStringLiteral("vcdxrip")));
    QVERIFY(dialog_);
}

void VcdxripDialogTest::cleanup() {
    CloseDialog(dialog_, fakes_.boxes);
    menu_.reset();
}

void VcdxripDialogTest::writeToolLog(const QByteArray& log) {
    QFile file(work_->path() + QStringLiteral("/tool-log.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(log);
}

void VcdxripDialogTest::choosePaths(const QString& input, const QString& output) {
    const auto chosen = [](const QString& name) {
        return name.isEmpty() ? std::nullopt : std::optional<QString>(name);
    };
    fakes_.files.names = {chosen(input), chosen(output)};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
}

QStringList VcdxripDialogTest::enabledControls() const {
    return EnabledControls(*dialog_, kAllControls);
}

QStringList VcdxripDialogTest::toolArguments() const {
    return RecordedArguments(work_->path() + QStringLiteral("/args.txt"));
}

void VcdxripDialogTest::runJobToIdle(int answer) {
    QVERIFY(RunJobToIdle(*dialog_->cmd_rip, dialog_->frame, fakes_.boxes, answer));
}

void VcdxripDialogTest::browseOffersImagesThenDescriptors() {
    choosePaths(imgDir_ + QStringLiteral("movie.cue"), QString());
    QCOMPARE(fakes_.files.calls.size(), 2u);
    QVERIFY(!fakes_.files.calls[0].save);
    QCOMPARE(fakes_.files.calls[0].filter,
             QStringLiteral("All Files (*.*)|*.*|BIN Files (*.bin)|*.bin|NRG Files (*.nrg)|*.nrg"));
    QVERIFY(fakes_.files.calls[1].save);
    QCOMPARE(fakes_.files.calls[1].filter,
             QStringLiteral("All Files (*.*)|*.*|XML Files (*.xml)|*.xml"));
    QCOMPARE(fakes_.files.calls[0].filterIndex, 2);
    QCOMPARE(fakes_.files.calls[1].filterIndex, 2);
    // Any name is taken here; Go is where an image type is refused.
    QCOMPARE(dialog_->txt_input->text(), imgDir_ + QStringLiteral("movie.cue"));
    QVERIFY(dialog_->txt_output->text().isEmpty());
}

void VcdxripDialogTest::noripGreysTheThreeAndKeepsTheirTicks() {
    dialog_->chk_nosegments->click();
    dialog_->chk_norip->click();
    const QStringList three = {"chk_nofiles", "chk_nosequences", "chk_nosegments"};
    QCOMPARE(enabledControls(), Without(kAllControls, three));
    QVERIFY(dialog_->chk_nosegments->isChecked());
    QVERIFY(!dialog_->chk_nofiles->isChecked());
    dialog_->chk_norip->click();
    QCOMPARE(enabledControls(), kAllControls);
    QVERIFY(dialog_->chk_nosegments->isChecked());
}

void VcdxripDialogTest::validationComesBeforeAnythingIsWritten_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    const QString notRecognised = QStringLiteral(
        "The CD Image has not been recognised as either\rCUE/BIN image type or NRG (Nero "
        "Burning Rom)!");
    QTest::newRow("both empty: only the output") << ""
                                                 << ""
                                                 << "You have not set an output file!";
    QTest::newRow("movie.cue") << "movie.cue"
                               << "d.xml" << notRecognised;
    QTest::newRow("quote in the output") << "movie.nrg"
                                         << "say \"hi\".xml" << QuotedPathMessage();
    QTest::newRow("quote in the input") << "\"q\".bin"
                                        << "d.xml" << QuotedPathMessage();
}

void VcdxripDialogTest::validationComesBeforeAnythingIsWritten() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(QString, message);
    choosePaths(input.isEmpty() ? input : imgDir_ + input,
                output.isEmpty() ? output : ripDir_ + output);
    dialog_->chk_norip->click();
    dialog_->cmd_rip->click();
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].title, QStringLiteral("Information"));
    QCOMPARE(fakes_.boxes.shown[0].text, message);
    QCOMPARE(fakes_.boxes.shown[0].buttons, MessageBoxRequest::Buttons::Ok);
    QCOMPARE(dialog_->frame.job_running, 0);
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QCOMPARE(enabledControls(),
             Without(kAllControls, {"chk_nofiles", "chk_nosequences", "chk_nosegments"}));
    QVERIFY(QDir(ripDir_).isEmpty());
}

void VcdxripDialogTest::job_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<QByteArray>("toolLog");
    QTest::addColumn<QString>("box");
    QTest::newRow("bin, done") << "-movie one.bin" << kDoneLog << kSuccessBox;
    QTest::newRow("nrg, done with more behind")
        << "movie.nrg" << QByteArray("x\r\n   INFO: done (2 files)\r\n") << kSuccessBox;
    QTest::newRow("failure") << "movie.nrg"
                             << QByteArray("   INFO: start\r\n**ERROR: bad image\r\n")
                             << kFailureBox;
    QTest::newRow("done followed by another line") << "movie.nrg" << kDoneLog + "++ WARN: late\r\n"
                                                   << kFailureBox;
    QTest::newRow("done followed by line ends only") << "movie.nrg" << kDoneLog + "\r\n\n\r\n"
                                                     << kSuccessBox;
    QTest::newRow("a log with one line end")
        << "movie.nrg" << QByteArray("   INFO: done\r\n") << kFailureBox;
    QTest::newRow("image not found") << "gone.bin" << kDoneLog << kFailureBox;
}

void VcdxripDialogTest::job() {
    QFETCH(QString, image);
    QFETCH(QByteArray, toolLog);
    QFETCH(QString, box);
    writeToolLog(toolLog);
    const QString input = imgDir_ + image;
    const QString xml = ripDir_ + QStringLiteral("disc one.xml");
    const QString script = ripDir_ + QStringLiteral("run.bat");
    choosePaths(input, xml);

    dialog_->cmd_rip->click();
    // Armed: script in the output folder; every control is off.
    QCOMPARE(dialog_->frame.job_running, -1);
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("0"));
    QVERIFY(ReadFile(script).startsWith("echo off\r\ncls\r\necho VCDXRIP Tool"));
    QCOMPARE(enabledControls(), QStringList());

    // Running: minimised, polling.
    QVERIFY(WaitForPause(dialog_->frame));
    QCOMPARE(dialog_->frame.Timer1.Tag, QStringLiteral("1"));
    QVERIFY(dialog_->isMinimized());
    QCOMPARE(dialog_->frame.console->title(), QStringLiteral("Torvane -- VCDXRIP Tool"));
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
    const bool success = box == kSuccessBox;
    QCOMPARE(shown.title, QStringLiteral("Information"));
    QCOMPARE(shown.text, box);
    QCOMPARE(shown.defaultAnswer, success ? vbNo : vbOK);
    QVERIFY(minimised);
    QVERIFY(consoleGone);
    QCOMPARE(enabledAtReport, QStringList());
    QCOMPARE(fakes_.desktop.viewed,
             success ? QStringList{ripDir_ + QStringLiteral("log.txt")} : QStringList());

    // Idle: log stays, script gone, the image untouched.
    QVERIFY(!ReadFile(ripDir_ + QStringLiteral("log.txt")).isEmpty());
    QVERIFY(!QFile::exists(script));
    QCOMPARE(QFile::exists(input), image != QLatin1String("gone.bin"));
    QVERIFY(!dialog_->isMinimized());
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QCOMPARE(enabledControls(), kAllControls);
    const QString inputSwitch = image.endsWith(QLatin1String(".bin"))
                                    ? QStringLiteral("--bin-file=")
                                    : QStringLiteral("--nrg-file=");
    QCOMPARE(toolArguments(), (QStringList{"-v", "--output-file=" + xml, inputSwitch + input}));
    if (image != QLatin1String("gone.bin")) {
        // The tool extracts into its current directory: the output folder.
        QCOMPARE(ReadFile(xml), QByteArray("<videocd/>\n"));
        QVERIFY(QFile::exists(ripDir_ + QStringLiteral("avseq01.mpg")));
    }
}

void VcdxripDialogTest::noripJobOverridesTheThreeAndKeepsThemGrey() {
    writeToolLog(kDoneLog);
    const QString input = imgDir_ + QStringLiteral("movie.nrg");
    const QString xml = ripDir_ + QStringLiteral("disc.xml");
    choosePaths(input, xml);
    dialog_->chk_s2336->click();
    dialog_->chk_nofiles->click();
    dialog_->chk_nosegments->click();
    dialog_->chk_norip->click();
    runJobToIdle(vbNo);

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, kSuccessBox);
    QVERIFY(fakes_.desktop.viewed.isEmpty());
    QCOMPARE(toolArguments(), (QStringList{"--sector-2336", "--norip", "-v", "--output-file=" + xml,
                                           "--nrg-file=" + input}));
    QCOMPARE(enabledControls(),
             Without(kAllControls, {"chk_nofiles", "chk_nosequences", "chk_nosegments"}));
    QVERIFY(dialog_->chk_nofiles->isChecked());
    QVERIFY(dialog_->chk_nosegments->isChecked());
    QVERIFY(!dialog_->chk_nosequences->isChecked());
}

void VcdxripDialogTest::outputFolderThatDoesNotExistFailsAtOnce() {
    const QString missing = work_->path() + QStringLiteral("/no such dir/");
    choosePaths(imgDir_ + QStringLiteral("movie.nrg"), missing + QStringLiteral("disc.xml"));
    dialog_->cmd_rip->click();

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, kFailureBox);
    QCOMPARE(dialog_->frame.job_running, 0);
    QVERIFY(!dialog_->frame.Timer1.Enabled());
    QVERIFY(!QFileInfo::exists(missing));
    QVERIFY(QFile::exists(imgDir_ + QStringLiteral("movie.nrg")));
    QCOMPARE(enabledControls(), kAllControls);
}

void VcdxripDialogTest::unloadDuringAJobAnsweredNoKeepsIt() {
    writeToolLog(kDoneLog);
    choosePaths(imgDir_ + QStringLiteral("movie.nrg"), ripDir_ + QStringLiteral("disc.xml"));
    dialog_->cmd_rip->click();
    QVERIFY(WaitForPause(dialog_->frame));
    fakes_.boxes.answers = {vbNo};
    QVERIFY(!dialog_->close());
    QCOMPARE(fakes_.boxes.shown.back().text,
             QStringLiteral("The command is still running!  Are you\rsure that you want to quit?"));
    QVERIFY(dialog_->isVisible());
    QCOMPARE(dialog_->frame.job_running, -1);
    QCOMPARE(menu_->windowTitle(), QStringLiteral("VCDXRIP - Torvane"));

    fakes_.boxes.answers = {vbNo};
    PressKeyInConsole(dialog_->frame);
    QVERIFY(WaitForIdle(dialog_->frame));
    QCOMPARE(fakes_.boxes.shown.back().text, kSuccessBox);
    QVERIFY(dialog_->close());
    QCOMPARE(menu_->windowTitle(), QStringLiteral("Torvane"));
}

QTEST_MAIN(VcdxripDialogTest)
#include "vcdxrip_dialog_test.moc"
