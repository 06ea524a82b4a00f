// The lkVCDxRIP dialog: its script, the drive list read from the scan's file, and real
// scans and rips: from a "drive" that an image file stands in for, and after a failed scan.

#include "core/lkvcdxrip_builder.h"
#include "core/scan_list.h"
#include "rip/frm_lkvcdxrip.h"
#include "rip/scan_forms.h"
#include "tests/support/job_driver.h"

#include <QComboBox>
#include <QRadioButton>
#include <QTimer>

using namespace torvane;
using namespace torvane::test;

namespace {

const char* const kBanner =
    "echo lkVCDxRIP Tool - Batch File (quelmora productions)\n"
    "echo ==================================================\n";

LkvcdxripInputs Inputs(const QString& output, const QString& input, bool fromDrive) {
    LkvcdxripInputs in;
    in.output = output;
    in.input = input;
    in.fromDrive = fromDrive;
    in.drive = "HL-DT-ST DVDRAM GH24NSD1        1, 0, 0";
    in.driver = "GENERIC";
    in.toolFolder = "C:\\app\\lkVCDImager\\";
    in.sep = '\\';
    return in;
}

// A scan list: a heading of `heading` characters, then the drive lines, each line ending
// in CR LF.
QByteArray ScanText(int heading, const QStringList& drives) {
    QByteArray text = QByteArray(heading, 'h') + "\r\n";
    for (const QString& drive : drives)
        text += "     " + drive.leftJustified(32).toUtf8() + "1, 0, " +
                QByteArray::number(text.count("1, 0, ")) + "\r\n";
    return text;
}

// Waits until the scan has ended: the wait box gone, the dialog restored.
bool ScanEnded(frm_lkvcdxrip& dialog) {
    return QTest::qWaitFor([&dialog] { return dialog.wait->isHidden(); }, kJobStepTimeoutMs);
}

}  // namespace

class LkvcdxripDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }  // the scan starts as the dialog opens

    void commandAndScript_data() {
        QTest::addColumn<LkvcdxripInputs>("in");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        QTest::newRow("image") << Inputs("E:\\rip\\disc.xml", "D:\\img\\movie.bin", false)
                               << R"(echo Input image:     "D:\img\movie.bin"
echo Ouput directory: E:\rip\
echo Output XML file: disc.xml
echo Option switches: 
"C:\app\lkVCDImager\lkvcdxrip.exe "  /o "E:\rip" /b "D:\img\movie.bin" > log.txt)";
        LkvcdxripInputs drive = Inputs("E:\\disc.xml", "", true);
        drive.norip = drive.sector2336 = true;
        QTest::newRow("drive, the root, 2336 counting")
            << drive << R"(echo Input image:     1,0,0 /d GENERIC
echo Ouput directory: E:\
echo Output XML file: disc.xml
echo Option switches:  /s /r
"C:\app\lkVCDImager\lkvcdxrip.exe "  /s /r /o "E:" /c 1,0,0 /d GENERIC > log.txt)";
    }

    void commandAndScript() {
        QFETCH(LkvcdxripInputs, in);
        QFETCH(QString, script);
        QCOMPARE(BuildLkvcdxripJob(in).scriptLines, Script(kBanner, script, true));
        QVERIFY(LkvcdxripValidation(in).isEmpty());
        in.output = "\\disc.xml";  // the root folder alone would leave "/o" with nothing
        QVERIFY(LkvcdxripValidation(in).startsWith("The output file cannot be saved in the root"));
        in.input = "movie.BIN";
        in.drive = QLatin1String(kScanFailedEntry);
        QVERIFY(!LkvcdxripValidation(in).isEmpty());  // refused in either mode
    }

    void scanList_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("drives");  // in list order
        QTest::addColumn<bool>("found");
        const QString a = QString("A").leftJustified(32) + "1, 0, 0";
        const QString b = QString("B").leftJustified(32) + "1, 0, 1";
        QTest::newRow("two drives: the last first")
            << ScanText(140, {"A", "B"}) << QStringList{b, a} << true;
        QTest::newRow("140 characters pass") << ScanText(140 - 46, {"A"}) << QStringList{a} << true;
        QTest::newRow("139 fail") << ScanText(139 - 46, {"A"}) << QStringList() << false;
        QTest::newRow("a heading only") << ScanText(200, {}) << QStringList() << false;
        QTest::newRow("no final line end")
            << ScanText(140, {"A"}).chopped(2) << QStringList() << false;
        const QByteArray alone = ScanText(0, {"A", "B", "C", "D"}).mid(2);
        QStringList all;  // the last taken before the text runs out
        for (int end = alone.size() - 2; end > 0; end -= 46)
            all << alone.mid(end - 39, 39);
        QTest::newRow("drive lines alone: failed, with the drives taken") << alone << all << false;
    }

    void scanList() {
        QFETCH(QByteArray, text);
        const ScanList list = ReadScanList(text);
        QTEST(list.found, "found");
        QTEST(list.drives, "drives");
    }

    // The scan lists a "drive" that is an image file; the rip from it takes the chosen name.
    void ripsFromTheScannedDrive() {
        const QString work = FreshFolder(QDir::tempPath(), "lkvcdxrip ü");
        const QString image = work + "/-disc é.bin";
        QVERIFY(QFile::copy(Media("vcd-2352.bin"), image));
        qputenv("TORVANE_CD_DEVICES",
                ("/dev/no-such-drive=Other;" + image + "=Image drive").toUtf8());
        DialogFixture<frm_lkvcdxrip> f("lkvcdxrip", TORVANE_APP_DIR);
        QVERIFY(ScanEnded(f.dialog));
        QCOMPARE(f.dialog.list_cd->currentText(),
                 QString("Image drive").leftJustified(32) + "1, 0, 1");
        QVERIFY(f.dialog.opt_cddrive->isEnabled() && !f.dialog.cmd_help->isVisible());
        f.dialog.opt_cddrive->click();
        QVERIFY(f.dialog.list_cd->isEnabled() && !f.dialog.cmd_input->isEnabled());
        f.prepare(nullptr, "", QString(), work + "/rip & co.xml");
        QVERIFY(f.go(vbNo));
        qunsetenv("TORVANE_CD_DEVICES");  // the rip looks the drive up again by its address
        QVERIFY(ReadBytes(work + "/avseq01.mpg") == ReadBytes(Media("clip-vcd.mpg")));
        QVERIFY(ReadBytes(work + "/rip & co.xml").contains("<videocd") &&
                !QFile::exists(work + "/videocd.xml"));
        QVERIFY(QDir(work).removeRecursively());
    }

    // No drive: the list reads as failed, image mode works, and Help explains.
    void aFailedScanKeepsImageMode() {
        qputenv("TORVANE_CD_DEVICES", "");
        DialogFixture<frm_lkvcdxrip> f("lkvcdxrip", TORVANE_APP_DIR);
        QVERIFY(ScanEnded(f.dialog));
        qunsetenv("TORVANE_CD_DEVICES");
        QCOMPARE(f.dialog.scan_failed, -1);
        QCOMPARE(f.dialog.list_cd->currentText(), QLatin1String(kScanFailedEntry));
        QVERIFY(!f.dialog.opt_cddrive->isEnabled() && f.dialog.cmd_help->isEnabled());
        QTimer::singleShot(0, [] {
            auto* help = qobject_cast<frm_scanfail*>(QApplication::activeModalWidget());
            help->cmd_download->click();
            help->cmd_cancel->click();
        });
        f.dialog.cmd_help->click();
        QCOMPARE(f.fakes.desktop.urls, QStringList{"https://torvane.example.org/aspilayer.html"});
        // A rip whose chosen name is videocd.xml itself keeps the file.
        const QString out = FreshFolder(f.work.path(), "out");
        f.prepare(nullptr, "", Media("vcd.nrg"), out + "/videocd.xml");
        QVERIFY(f.go(vbNo));
        QVERIFY(ReadBytes(out + "/videocd.xml").contains("<videocd"));
        QVERIFY(f.dialog.cmd_help->isEnabled() && !f.dialog.opt_cddrive->isEnabled());
    }
};

QTEST_MAIN(LkvcdxripDialogTest)
#include "lkvcdxrip_dialog_test.moc"
