// The VCDXRIP dialog: its script with either separator, checks at Go, report and interlock.

#include "rip/frm_vcdxrip.h"
#include "tests/support/job_driver.h"

using namespace torvane;
using namespace torvane::test;

const char* const kBanner =
    "echo VCDXRIP Tool - Batch File (quelmora productions)\n"
    "echo ================================================\n";
using Fixture = DialogFixture<frm_vcdxrip>;

class VcdxripDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<VcdxripInputs>("in");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        const VcdxripInputs windows{
            "D:\\img\\movie.bin",   "E:\\disc.xml",   false, false, false, false, false, false,
            "C:\\app\\VCDImager\\", QLatin1Char('\\')};
        const VcdxripInputs posix{
            "/img/my movie & co.nrg", "/rip/$x; dir/d.xml", true, false, true, true, false, false,
            "/opt/app/VCDImager/",    QLatin1Char('/')};
        QTest::newRow("bin, output in a drive's root")
            << windows << R"(echo Input image:     D:\img\movie.bin
echo Ouput directory: E:\
echo Output XML file: disc.xml
echo Option switches:  -v
"C:\app\VCDImager\vcdxrip.exe "  -v --output-file="E:\disc.xml" --bin-file="D:\img\movie.bin" > log.txt)";
        QTest::newRow("posix nrg, shell characters, norip over nofiles")
            << posix << R"(echo Input image:     /img/my movie & co.nrg
echo Ouput directory: /rip/$x; dir/
echo Output XML file: d.xml
echo Option switches:  --sector-2336 --norip -v
"/opt/app/VCDImager/vcdxrip.exe "  --sector-2336 --norip -v --output-file="/rip/$x; dir/d.xml" --nrg-file="/img/my movie & co.nrg" > log.txt)";
    }

    void commandAndScript() {
        QFETCH(VcdxripInputs, in);
        QFETCH(QString, script);
        QCOMPARE(BuildVcdxripJob(in).scriptLines, Script(kBanner, script, true));
    }

    void goRefusesInOrder_data() {
        AddRefusalColumns();
        RefusalRow("nothing set: only the output", "", "", "You have not set an output file!");
        RefusalRow("no input", "", "d.xml", "You have not set an input CD image!");
        RefusalRow("an image that is no .bin or .nrg", "/i/MOVIE.BIN", "d.xml",
                   "The CD Image has not been recognised as either\rCUE/BIN image type or NRG "
                   "(Nero Burning Rom)!");
        RefusalRow("a line feed that would run a command", "/i/movie\ntouch pwned\n.bin", "d.xml",
                   "This file name cannot be passed to the tool:\r\r/i/movie?touch pwned?.bin\r\r");
        RefusalRow("an output folder that does not exist", "/i/m.bin", "gone/d.xml",
                   "The folder does not exist:");
    }

    void goRefusesInOrder() { Fixture("vcdxrip").expectRefusal(); }

    void job_data() {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<bool>("threeFree");  // the three choices of what not to extract
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QStringList>("switches");
        // The switches in their fixed order, whatever the order of the clicks.
        QTest::newRow("bin, norip and back, done, log opened")
            << "chk_nosegments chk_nosequences chk_nofiles chk_noextpsd chk_norip chk_norip" << true
            << QByteArray("   INFO: extracting\r\n   INFO: done\r\n")
            << QStringList{"--no-ext-psd", "--nofiles", "--nosequences", "--nosegments", "-v"};
        QTest::newRow("nrg, norip over the three, failure")
            << "chk_s2336 chk_nofiles chk_nosequences chk_nosegments chk_norip" << false
            << QByteArray("   INFO: opening\r\n**ERROR: bad image\r\n")
            << QStringList{"--sector-2336", "--norip", "-v"};
    }

    void job() {
        QFETCH(QString, clicks);
        QFETCH(bool, threeFree);
        QFETCH(QByteArray, log);
        QFETCH(QStringList, switches);
        Fixture f("vcdxrip");
        const bool success = log.endsWith("done\r\n");
        const QString ripDir = FreshFolder(f.work.path(), "rip; $x & co") + '/',
                      xml = ripDir + "d.xml";
        const QString input = f.work.filePath(success ? "-movie one.bin" : "movie.nrg");
        f.prepare("vcdxrip.exe", clicks, input, xml, log);
        const auto enabled = [&f] {
            return QList<bool>{f.dialog.chk_nofiles->isEnabled(),
                               f.dialog.chk_nosequences->isEnabled(),
                               f.dialog.chk_nosegments->isEnabled()};
        };
        QCOMPARE(enabled(), QList<bool>(3, threeFree));
        QVERIFY(f.go(vbYes));

        QCOMPARE(f.fakes.boxes.shown.size(), 1u);
        QCOMPARE(f.fakes.boxes.shown[0].text,
                 success
                     ? "The process has finished successfully!\r\rDo you want to read the log file?"
                     : "There appears to have been an error!\r\rThe error may have been shown in "
                       "the console window\rbefore it closed.");
        QCOMPARE(f.fakes.desktop.viewed, success ? QStringList{ripDir + "log.txt"} : QStringList());
        const QString inputSwitch = success ? "--bin-file=" : "--nrg-file=";
        QCOMPARE(f.arguments(),
                 (switches + QStringList{"--output-file=" + xml, inputSwitch + input}));
        // Back to Idle with the interlock applied anew, the ticks kept.
        QCOMPARE(enabled(), QList<bool>(3, threeFree));
        QVERIFY(f.dialog.chk_nosegments->isChecked());
    }
};

QTEST_MAIN(VcdxripDialogTest)
#include "vcdxrip_dialog_test.moc"
