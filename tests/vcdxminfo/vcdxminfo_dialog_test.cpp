// The VCDXMINFO dialog: its script with either separator, checks at Go, interlock and report;
// its jobs, one of them the real vcdxminfo on a clip of the shared media.

#include "core/vcdxminfo_builder.h"
#include "inspect/frm_vcdxminfo.h"
#include "tests/support/job_driver.h"

using namespace torvane;
using namespace torvane::test;

const char* const kBanner =
    "echo VCDXMINFO Tool - Batch File (quelmora productions)\n"
    "echo ==================================================\n";
using Fixture = DialogFixture<frm_vcdxminfo>;
const char* const kWritesReport =
    "for a; do case \"$a\" in --output-file=*) printf '<r/>' > \"${a#*=}\";; esac; done";

class VcdxminfoDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<VcdxminfoInputs>("in");
        QTest::addColumn<QString>("jobDir");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        const VcdxminfoInputs windows{
            "D:\\in\\clip.mpg",     "D:\\out\\report.xml", true, true, false,
            "C:\\App\\VCDImager\\", QLatin1Char('\\')};
        const VcdxminfoInputs posix{"/in/clip one.mpg",    "/out/report.xml", false, true, true,
                                    "/opt/app/VCDImager/", QLatin1Char('/')};
        QTest::newRow("generic and aps") << windows << "D:\\out\\"
                                         << R"(echo Input MPEG File:  D:\in\clip.mpg
echo Output XML File:  report.xml
echo Option switches:  -i -a -v -p
"C:\App\VCDImager\vcdxminfo.exe" -i -a -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
        QTest::newRow("posix, relaxed aps alone") << posix << "/out/"
                                                  << R"(echo Input MPEG File:  /in/clip one.mpg
echo Output XML File:  report.xml
echo Option switches:   -a --relaxed-aps -v -p
"/opt/app/VCDImager/vcdxminfo.exe"  -a --relaxed-aps -v  -p --output-file="/out/report.xml" "/in/clip one.mpg")";
    }

    void commandAndScript() {
        QFETCH(VcdxminfoInputs, in);
        QFETCH(QString, script);
        const JobPlan plan = BuildVcdxminfoJob(in);
        QCOMPARE(plan.scriptLines, Script(kBanner, script, false));
        QTEST(plan.jobDir, "jobDir");
    }

    void goRefusesInOrder_data() {
        AddRefusalColumns();
        RefusalRow("nothing set: the output first", "", "", "You have not set an output file!");
        RefusalRow("no input", "", "r.xml", "You have not loaded an input XML file!");
        RefusalRow("an output folder that does not exist", "/m/a.mpg", "gone/r.xml",
                   "The folder does not exist:");
    }

    void goRefusesInOrder() { Fixture("vcdxminfo").expectRefusal(); }

    void job_data() {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<QStringList>("switches");
        QTest::addColumn<bool>("writes");  // the tool writes its report; an older one stands
        QTest::addColumn<int>("answer");   // to opening the report
        QTest::addColumn<QString>("box");  // of a report not written, less the output
        // Without APS the relaxed tick is moot: grey, kept, and left out of the command.
        QTest::newRow("no aps, opened")
            << "chk_apsrelaxed chk_aps" << QStringList{"-i"} << true << vbYes << "";
        QTest::newRow("relaxed aps, not opened")
            << "chk_apsrelaxed" << QStringList{"-i", "-a", "--relaxed-aps"} << true << vbNo << "";
        QTest::newRow("the tool fails: the older report is not offered as its own")
            << "chk_apsrelaxed" << QStringList{"-i", "-a", "--relaxed-aps"} << false << vbOK
            << "Finished!\r\rNo XML report was written; this file is as it was:\r";
        QTest::newRow("real vcdxminfo on a clip")
            << "chk_apsrelaxed" << QStringList{"-i", "-a", "--relaxed-aps"} << true << vbYes << "";
    }

    void job() {
        QFETCH(QString, clicks);
        QFETCH(QStringList, switches);
        QFETCH(bool, writes);
        QFETCH(int, answer);
        QFETCH(QString, box);
        const bool real = QByteArray(QTest::currentDataTag()).startsWith("real");
        Fixture f("vcdxminfo", real ? TORVANE_APP_DIR : QString());
        const QString input = FreshFolder(f.work.path(), "in & co; $HOME") + "/-Ünï & o.mpg";
        const QString output = FreshFolder(f.work.path(), "out $x; <y>") + "/-r été.xml";
        QVERIFY(WriteBytes(output, "an older report") &&
                (!real || QFile::copy(Media("clip-vcd.mpg"), input)));
        f.prepare(real ? nullptr : "vcdxminfo.exe", clicks, input, output, {},
                  writes ? kWritesReport : "");
        const bool aps = switches.contains("-a");
        QCOMPARE(f.dialog.chk_apsrelaxed->isEnabled(), aps);
        QVERIFY(f.go(answer));

        if (real)
            QVERIFY(ReadBytes(output).startsWith("<mpeg-info src=") &&
                    ReadBytes(output).contains("<horizontal-size>352</horizontal-size>"));
        else
            QCOMPARE(f.arguments(),
                     (switches + QStringList{"-v", "-p", "--output-file=" + output, input}));
        QCOMPARE(f.fakes.boxes.shown.size(), 1u);
        QCOMPARE(f.fakes.boxes.shown[0].text,
                 box.isEmpty()
                     ? "Finished!\r\rDo you want to open the XML file now?\r\n\r\n" + output
                     : box + output + "\r\rThe console showed why.");
        QCOMPARE(f.fakes.desktop.viewed, answer == vbYes ? QStringList{output} : QStringList());
        QVERIFY(f.dialog.chk_apsrelaxed->isEnabled() == aps &&
                f.dialog.chk_apsrelaxed->isChecked());
    }
};

QTEST_MAIN(VcdxminfoDialogTest)
#include "vcdxminfo_dialog_test.moc"
