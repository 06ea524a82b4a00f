// The lkVCDxBUILD dialog: the fork's command line, and real jobs of each image type, ripped
// back by lkvcdxrip.exe.

#include "author/frm_lkvcdxbuild.h"
#include "tests/support/job_driver.h"

using namespace torvane;
using namespace torvane::test;

VcdxbuildInputs Inputs(const QString& output, bool cueBin, bool nrg, bool sector2336) {
    return {"C:\\proj\\videocd.xml",  output, cueBin, sector2336, false,
            "C:\\app\\lkVCDImager\\", '\\',   nrg};
}

class LkvcdxbuildDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandLine_data() {
        QTest::addColumn<VcdxbuildInputs>("in");
        QTest::addColumn<QString>("switches");  // of the command line, between -i and >
        QTest::newRow("NRG") << Inputs("D:\\img\\movie.nrg", false, true, true)
                             << R"(nrg -b "D:\img\movie.nrg"  -v 2)";
        QTest::newRow("CUE/BIN, 2336")
            << Inputs("D:\\img\\movie.bin", true, false, true)
            << R"(cuebin -c "D:\img\movie.cue" -b "D:\img\movie.bin" -s -v 2)";
        QTest::newRow("NRG of X.NRG")
            << Inputs("X.NRG", false, true, false) << R"(nrg -b "X.NRG.nrg"  -v 2)";
        QTest::newRow("TOC") << Inputs("X.toc", false, false, false) << R"(tocimg -c "X"  -v 2)";
    }

    void commandLine() {
        QFETCH(VcdxbuildInputs, in);
        QFETCH(QString, switches);
        const JobPlan plan = BuildLkvcdxbuildJob(in).plan;
        const QString log = in.output.startsWith("D:") ? "D:\\img\\log.txt" : "log.txt";
        QCOMPARE(plan.commandLine,
                 R"("C:\app\lkVCDImager\lkvcdxbuild.exe" -x "C:\proj\videocd.xml" -i )" + switches +
                     " > \"" + log + "\"");
        QCOMPARE(plan.scriptLines[2], "echo lkVCDxBUILD Tool - Batch File (quelmora productions)");
        QCOMPARE(plan.scriptLines[6], "echo Output imagetype: " + switches.section(' ', 0, 0));
    }

    // Debian's vcdxrip, behind lkvcdxrip.exe, rips nothing from a TOC image of several files.
    void realJob_data() {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<QString>("made");     // a file of the image
        QTest::addColumn<QStringList>("rip");  // lkvcdxrip.exe's source switches, if it can rip it
        // Under NRG the sector box goes grey with its tick, which counts for nothing.
        QTest::newRow("NRG") << "chk_s2336 chk_subindex opt_nrg"
                             << "-d é.nrg" << QStringList{"/n", "-d é.nrg"};
        QTest::newRow("CUE/BIN, 2336-byte sectors")
            << "chk_s2336 opt_cuebin"
            << "-d é.cue" << QStringList{"/s", "/b", "-d é.bin"};
        QTest::newRow("TOC") << "opt_toc"
                             << "-d é.toc" << QStringList();
    }

    void realJob() {
        QFETCH(QString, clicks);
        QFETCH(QString, made);
        QFETCH(QStringList, rip);
        DialogFixture<frm_lkvcdxbuild> f("lkvcdxbuild", TORVANE_APP_DIR);
        const QString folder = FreshFolder(f.work.path(), "proj & 'co' ü");
        QVERIFY(QFile::copy(Media("vcd.xml"), folder + "/vcd.xml") &&
                QFile::copy(Media("clip-vcd.mpg"), folder + "/clip-vcd.mpg"));
        f.prepare(nullptr, clicks, folder + "/vcd.xml", folder + "/-d é");
        QVERIFY(f.go(vbNo));
        QVERIFY(QFile::exists(folder + "/" + made));
        QVERIFY(f.dialog.chk_s2336->isEnabled() != clicks.endsWith("opt_nrg") &&
                f.dialog.chk_subindex->isEnabled() == clicks.endsWith("opt_cuebin"));
        f.dialog.findChild<QAbstractButton*>("opt_cuebin")->click();
        QVERIFY(f.dialog.chk_s2336->isEnabled() &&
                f.dialog.chk_s2336->isChecked() == clicks.contains("chk_s2336"));
        if (rip.isEmpty())
            return;
        QCOMPARE(RunProgram(TORVANE_APP_DIR "/lkVCDImager/lkvcdxrip.exe",
                            QStringList{"/o", folder} + rip, folder)
                     .exitCode,
                 0);
        QVERIFY(ReadBytes(folder + "/avseq01.mpg") == ReadBytes(Media("clip-vcd.mpg")));
    }
};

QTEST_MAIN(LkvcdxbuildDialogTest)
#include "lkvcdxbuild_dialog_test.moc"
