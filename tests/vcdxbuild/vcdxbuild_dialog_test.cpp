// The VCDXBUILD dialog's own part: its checks at Go, the image type's interlock and
// filter, and its jobs through the real engine with a fake vcdxbuild.exe that records its
// arguments, writes a cue sheet with subindices where --cue-file says and prints a log.

#include "author/frm_vcdxbuild.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

namespace {
const QByteArray kSheet =
    "FILE \"movie.bin\" BINARY\r\n  TRACK 01 MODE2/2352\r\n    FLAGS DCP\r\n"
    "    INDEX 01 00:00:00\r\n  TRACK 02 MODE2/2352\r\n    INDEX 01 00:04:00\r\n"
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
}  // namespace

class VcdxbuildDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void init();
    void cleanup();
    void goRefusesInOrder_data();
    void goRefusesInOrder();
    void imageTypeGovernsSubindicesAndFilter();
    void job_data();
    void job();

private:
    FakeServices fakes_;
    std::unique_ptr<FakeAppFolder> app_;
    std::unique_ptr<QTemporaryDir> work_;
    std::unique_ptr<frm_mainmenu> menu_;
    QPointer<frm_vcdxbuild> dialog_;
};

void VcdxbuildDialogTest::init() {
    fakes_.boxes.shown.clear();
    fakes_.files.calls.clear();
    fakes_.desktop.viewed.clear();
    app_ = std::make_unique<FakeAppFolder>();
    work_ = std::make_unique<QTemporaryDir>();
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, app_->path());
    dialog_ = qobject_cast<frm_vcdxbuild*>(menu_->openTool(QStringLiteral("vcdxbuild")));
    QVERIFY(dialog_);
}

void VcdxbuildDialogTest::cleanup() {
    CloseDialog(dialog_, fakes_.boxes);
    menu_.reset();
}

void VcdxbuildDialogTest::goRefusesInOrder_data() {
    AddRefusalColumns();
    RefusalRow("nothing set", "", "", "You have not set an output file!");
    RefusalRow("no input", "", "m.bin", "You have not loaded an input XML file!");
    RefusalRow("a quote in the input", "\"v\".xml", "m.bin",
               "This file name cannot be passed to the tool:");
    RefusalRow("an input folder that does not exist", "gone/v.xml", "m.bin",
               "The folder does not exist:");
    RefusalRow("an image folder that does not exist", "v.xml", "gone/m.bin",
               "The folder does not exist:");
}

void VcdxbuildDialogTest::goRefusesInOrder() {
    PickAndExpectRefusal(fakes_, *dialog_, dialog_->frame, work_->path());
}

void VcdxbuildDialogTest::imageTypeGovernsSubindicesAndFilter() {
    dialog_->chk_subindex->click();
    dialog_->opt_toc->click();
    QVERIFY(!dialog_->chk_subindex->isEnabled() && dialog_->chk_subindex->isChecked());
    dialog_->cmd_output->click();
    dialog_->opt_cuebin->click();
    QVERIFY(dialog_->chk_subindex->isEnabled() && dialog_->chk_subindex->isChecked());
    dialog_->cmd_output->click();
    QCOMPARE(fakes_.files.calls.size(), 2u);
    QCOMPARE(fakes_.files.calls[0].filter, "All Files (*.*)|*.*|TOC Files (*.toc)|*.toc");
    QCOMPARE(fakes_.files.calls[1].filter, "All Files (*.*)|*.*|BIN Files (*.bin)|*.bin");
}

void VcdxbuildDialogTest::job_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("ticks");  // "toc", "s2336", "subindex"
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<bool>("cueRewritten");
    QTest::addColumn<bool>("diskFull");  // from the report on
    QTest::newRow("cue/bin, subindices removed after the question")
        << "movie.bin"
        << "subindex" << kSuccessLog << kSuccessBox << QStringList{"-v", "--image-type=bincue"}
        << true << false;
    QTest::newRow("a failure never rewrites the cue")
        << "movie.bin"
        << "subindex" << QByteArray("   INFO: start\r\n**ERROR: bad XML\r\n") << kFailureBox
        << QStringList{"-v", "--image-type=bincue"} << false << false;
    QTest::newRow("toc, 2336, the subindex tick kept but grey")
        << "movie.toc"
        << "subindex s2336 toc" << kSuccessLog << kSuccessBox
        << QStringList{"--sector-2336", "-v", "--image-type=cdrdao"} << false << false;
    QTest::newRow("a rewrite that cannot be written keeps the cue")
        << "movie.bin"
        << "subindex" << kSuccessLog << kSuccessBox << QStringList{"-v", "--image-type=bincue"}
        << false << true;
}

void VcdxbuildDialogTest::job() {
    QFETCH(QString, image);
    QFETCH(QString, ticks);
    QFETCH(QByteArray, log);
    QFETCH(QString, box);
    QFETCH(QStringList, switches);
    QFETCH(bool, cueRewritten);
    QFETCH(bool, diskFull);
    const QString projDir = work_->filePath("proj dir & co/"), imgDir = work_->filePath("img; $x/");
    const QString input = projDir + "-video cd.xml", cue = imgDir + "movie.cue";
    QVERIFY(QDir().mkpath(projDir) && QDir().mkpath(imgDir));
    QFile sheet(work_->filePath("sheet.cue"));
    QVERIFY(sheet.open(QIODevice::WriteOnly) && sheet.write(kSheet) == kSheet.size());
    sheet.close();
    const QString args = work_->filePath("args.txt");
    app_->addTool("vcdxbuild.exe", "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" +
                                       QFile::encodeName(args) +
                                       "'\nfor a in \"$@\"; do case \"$a\" in --cue-file=*) "
                                       "cp '" +
                                       QFile::encodeName(sheet.fileName()) +
                                       "' \"${a#--cue-file=}\";; esac; done\nprintf '" +
                                       QByteArray(log).replace("\r\n", "\\r\\n") + "'");
    fakes_.files.names = {input, imgDir + image};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
    for (const QString& tick : ticks.split(' '))
        dialog_->findChild<QAbstractButton*>(tick == "toc" ? "opt_toc" : "chk_" + tick)->click();
    std::optional<FileSizeLimit> full;
    if (diskFull)
        fakes_.boxes.onShow = [&full](const MessageBoxRequest&) { full.emplace(40); };
    QVERIFY(RunJobToIdle(*dialog_->cmd_rip, dialog_->frame, fakes_.boxes, vbYes));
    full.reset();
    fakes_.boxes.onShow = nullptr;

    const bool success = box == kSuccessBox, toc = ticks.contains("toc");
    QCOMPARE(fakes_.boxes.shown.size(), diskFull ? 2u : 1u);
    QCOMPARE(fakes_.boxes.shown[0].text, box);
    if (diskFull)
        QVERIFY(fakes_.boxes.shown[1].text.startsWith("The file could not be written:\r\r" + cue));
    QCOMPARE(fakes_.desktop.viewed, success ? QStringList{imgDir + "log.txt"} : QStringList());
    const QStringList files =
        toc ? QStringList{"--cdrdao-file=" + imgDir + "movie"}
            : QStringList{"--cue-file=" + cue, "--bin-file=" + imgDir + image};
    QCOMPARE(RecordedArguments(args), switches + files + QStringList{input});
    QCOMPARE(QFile::exists(cue), !toc);
    if (!toc) {
        const QByteArray written = ReadFile(cue);
        QCOMPARE(written == kSheet, !cueRewritten);
        QCOMPARE(written.contains("INDEX 02") || written.contains("FLAGS DCP"), !cueRewritten);
    }
    QVERIFY(!QFile::exists(projDir + "run.bat"));
    QCOMPARE(dialog_->chk_subindex->isEnabled(), !toc);
    QVERIFY(dialog_->chk_subindex->isChecked() && dialog_->cmd_rip->isEnabled());
}

QTEST_MAIN(VcdxbuildDialogTest)
#include "vcdxbuild_dialog_test.moc"
