// The VCDXRIP dialog's own part: its checks at Go, its interlock, and its jobs through
// the real engine with a fake vcdxrip.exe that records its arguments and prints a log.

#include "rip/frm_vcdxrip.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

namespace {
const QString kSuccessBox =
    QStringLiteral("The process has finished successfully!\r\rDo you want to read the log file?");
const QString kFailureBox = QStringLiteral(
    "There appears to have been an error!\r\rThe error may have been shown in the console "
    "window\rbefore it closed.");
const QStringList kThree = {"chk_nofiles", "chk_nosequences", "chk_nosegments"};
}  // namespace

class VcdxripDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init();
    void cleanup();
    void goRefusesInOrder_data();
    void goRefusesInOrder();
    void job_data();
    void job();

private:
    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<frm_mainmenu> menu_;
    QPointer<frm_vcdxrip> dialog_;
};

void VcdxripDialogTest::init() {
    fakes_.boxes.shown.clear();
    fakes_.desktop.viewed.clear();
    app_ = std::make_unique<FakeAppFolder>();
    work_ = std::make_unique<QTemporaryDir>();
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, app_->path());
    dialog_ = qobject_cast<frm_vcdxrip*>(menu_->openTool(QStringLiteral("vcdxrip")));
    QVERIFY(dialog_);
}

void VcdxripDialogTest::cleanup() {
    CloseDialog(dialog_, fakes_.boxes);
    menu_.reset();
}

void VcdxripDialogTest::goRefusesInOrder_data() {
    AddRefusalColumns();
    RefusalRow("nothing set: only the output", "", "", "You have not set an output file!");
    RefusalRow("no input", "", "d.xml", "You have not set an input CD image!");
    RefusalRow("an image that is no BIN or NRG", "/i/m.cue", "d.xml",
               "The CD Image has not been recognised as either\rCUE/BIN image type or NRG "
               "(Nero Burning Rom)!");
    RefusalRow("a line feed that would run a command", "/i/movie\ntouch pwned\n.bin", "d.xml",
               "This file name cannot be passed to the tool:\r\r/i/movie?touch pwned?.bin\r\r");
    RefusalRow("a trailing backslash", "/i/m.bin", "d\\",
               "This file name cannot be passed to the tool:");
    RefusalRow("an output folder that does not exist", "/i/m.bin", "gone/d.xml",
               "The folder does not exist:");
}

void VcdxripDialogTest::goRefusesInOrder() {
    PickAndExpectRefusal(fakes_, *dialog_, dialog_->frame, work_->path());
}

void VcdxripDialogTest::job_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<bool>("norip");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<QString>("box");
    QTest::newRow("bin, done, log opened")
        << "-movie one.bin" << false << QByteArray("   INFO: extracting\r\n   INFO: done\r\n")
        << QStringList{"-v"} << kSuccessBox;
    QTest::newRow("nrg, norip over the three, failure")
        << "movie.nrg" << true << QByteArray("   INFO: opening\r\n**ERROR: bad image\r\n")
        << QStringList{"--sector-2336", "--norip", "-v"} << kFailureBox;
}

void VcdxripDialogTest::job() {
    QFETCH(QString, image);
    QFETCH(bool, norip);
    QFETCH(QByteArray, log);
    QFETCH(QStringList, switches);
    QFETCH(QString, box);
    const QString args = work_->filePath(QStringLiteral("args.txt"));
    app_->addRecordingTool(QStringLiteral("vcdxrip.exe"), args, log.replace("\r\n", "\\r\\n"));
    const QString ripDir = work_->filePath(QStringLiteral("rip dir; $x & co/"));
    QVERIFY(QDir().mkpath(ripDir));
    const QString input = work_->filePath(image), xml = ripDir + QStringLiteral("d.xml");
    fakes_.files.names = {input, xml};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
    if (norip) {
        dialog_->chk_s2336->click();
        for (const QString& name : kThree)
            dialog_->findChild<QCheckBox*>(name)->click();
        dialog_->chk_norip->click();
        QCOMPARE(EnabledControls(*dialog_, kThree), QStringList());
    }
    QVERIFY(RunJobToIdle(*dialog_->cmd_rip, dialog_->frame, fakes_.boxes, vbYes));

    const bool success = box == kSuccessBox;
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, box);
    QCOMPARE(fakes_.boxes.shown[0].defaultAnswer, success ? vbNo : vbOK);
    QCOMPARE(fakes_.desktop.viewed, success ? QStringList{ripDir + "log.txt"} : QStringList());
    const QString inputSwitch = image.endsWith(".bin") ? "--bin-file=" : "--nrg-file=";
    const QStringList expected =
        switches + QStringList{"--output-file=" + xml, inputSwitch + input};
    QCOMPARE(RecordedArguments(args), expected);
    // Back to Idle with the interlock applied, the ticks kept.
    QCOMPARE(EnabledControls(*dialog_, kThree), norip ? QStringList() : kThree);
    QCOMPARE(dialog_->chk_nosegments->isChecked(), norip);
    QVERIFY(dialog_->cmd_rip->isEnabled() && !QFile::exists(ripDir + "run.bat"));
}

QTEST_MAIN(VcdxripDialogTest)
#include "vcdxrip_dialog_test.moc"
