// The VCDDEBUG dialog: its script, checks at Go, and real jobs on the shared media.

#include "core/vcddebug_builder.h"
#include "inspect/frm_vcddebug.h"
#include "tests/support/job_driver.h"

#include <QRadioButton>

using namespace torvane;
using namespace torvane::test;

const char* const kBanner =
    "echo VCDDEBUG Tool - Batch File (quelmora productions)\n"
    "echo =================================================\n";
using Fixture = DialogFixture<frm_vcddebug>;

class VcddebugDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<VcddebugInputs>("in");
        QTest::addColumn<QString>("jobDir");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        const VcddebugInputs windows{"D:\\in\\disc.bin",     "D:\\out\\report.txt", false, true,
                                     "C:\\App\\VCDImager\\", QLatin1Char('\\')};
        const VcddebugInputs posix{"/in/-my disc & co.bin", "/out/$x; r.txt", true, false,
                                   "/opt/app/VCDImager/",   QLatin1Char('/')};
        QTest::newRow("defaults") << windows << "D:\\out\\"
                                  << R"(echo Input BIN File:   D:\in\disc.bin
echo Output Text File: report.txt
echo Option switches:   -v
"C:\App\VCDImager\vcddebug.exe"  -v --bin-file="D:\in\disc.bin" > "D:\out\report.txt")";
        QTest::newRow("posix, 2336, quiet") << posix << "/out/"
                                            << R"(echo Input BIN File:   /in/-my disc & co.bin
echo Output Text File: $x; r.txt
echo Option switches:  --sector-2336 -q
"/opt/app/VCDImager/vcddebug.exe" --sector-2336 -q --bin-file="/in/-my disc & co.bin" > "/out/$x; r.txt")";
    }

    void commandAndScript() {
        QFETCH(VcddebugInputs, in);
        QFETCH(QString, script);
        const JobPlan plan = BuildVcddebugJob(in);
        QCOMPARE(plan.scriptLines, Script(kBanner, script, false));
        QTEST(plan.jobDir, "jobDir");
    }

    void job_data() {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<QString>("image");
        QTest::addColumn<int>("answer");         // to opening the report
        QTest::addColumn<QByteArray>("report");  // a line of it
        QTest::newRow("SVCD in 2336-byte sectors, verbose, opened")
            << "chk_s2336"
            << "svcd-2336.bin" << vbYes << QByteArray("\r\nSVCD detected\r\n");
        QTest::newRow("2336-byte sectors read as 2352, quiet, not opened")
            << "opt_quiet"
            << "vcd-2336.bin" << vbNo << QByteArray("++ WARN: INFO.SVD: signature not found\r\n");
    }

    void job() {
        QFETCH(QString, clicks);
        QFETCH(QString, image);
        QFETCH(int, answer);
        QFETCH(QByteArray, report);
        Fixture f("vcddebug", TORVANE_APP_DIR);
        const QString input = FreshFolder(f.work.path(), "in & co; $x") + "/-disc é.bin";
        const QString output = FreshFolder(f.work.path(), "out <y> |z") + "/rapport été.txt";
        QVERIFY(QFile::copy(Media(image), input));
        f.prepare(nullptr, clicks, input, output);
        QVERIFY(f.go(answer));

        QVERIFY2(ReadBytes(output).contains(report), ReadBytes(output).left(400).constData());
        QCOMPARE(f.fakes.boxes.shown.size(), 1u);
        QCOMPARE(f.fakes.boxes.shown[0].text,
                 "Finished!\r\rDo you want to open the TXT file now?\r\n\r\n" + output);
        QCOMPARE(f.fakes.desktop.viewed, answer == vbYes ? QStringList{output} : QStringList());
        // Back to Idle: both option buttons usable, the choice kept.
        QVERIFY(f.dialog.opt_verbose->isEnabled() && f.dialog.opt_quiet->isEnabled() &&
                f.dialog.opt_quiet->isChecked() == (clicks == "opt_quiet"));
    }
};

QTEST_MAIN(VcddebugDialogTest)
#include "vcddebug_dialog_test.moc"
