// The regenerator's jobs, byte for byte with either separator, and the reading of its
// stage logs as vcddebug.exe really writes them.

#include "additional/regen_builder.h"

#include <QTest>

using namespace torvane;

Q_DECLARE_METATYPE(std::optional<QByteArray>)

namespace {

enum Stage { DetectFirst, DetectSecond, Rip, Build };

// The script of a stage; "%c" stands for its command line.
QStringList Script(Stage stage) {
    const bool detect = stage == DetectFirst || stage == DetectSecond;
    QStringList head{"echo off", "cls"};
    if (detect)
        head << "echo CUE/BIN Regenerator Tool - Stage 1 (quelmora productions)"
             << "echo " + QString(57, '=') << "echo Please wait..."
             << "echo.";
    else
        head << QString("echo CUE/BIN Regenerator - Phase %1 (quelmora productions)")
                    .arg(stage == Rip ? 2 : 3)
             << "echo " + QString(52, '=') << "echo."
             << "echo Please wait for this process to complete. It may take"
             << "echo a few minutes.";
    return head + QStringList{"%c", "echo.", "echo Finished!", "cls", "echo ***end***"};
}

// The head of vcd-info's report, as the adapter passes it on.
const QByteArray kReportHead =
    QByteArray(79, '-') + "\r\nvcd-info - GNU VCDImager - (Super) Video CD Report\r\n$Id$\r\n\r\n";

}  // namespace

class RegenBuilderTest : public QObject {
    Q_OBJECT
private slots:
    void jobsAreExact_data() {
        QTest::addColumn<QChar>("sep");
        QTest::addColumn<int>("stage");
        QTest::addColumn<bool>("sector2336");
        QTest::addColumn<QString>("jobDir");
        QTest::addColumn<QString>("commandLine");
        const QString win = R"(C:\app\VCDImager\)", lost = R"(D:\dl\lost.bin)";
        QTest::newRow("\\ first detection")
            << QChar('\\') << int(DetectFirst) << false << R"(D:\img\)"
            << R"("C:\app\VCDImager\vcddebug.exe"  -q --bin-file="D:\dl\lost.bin" > "D:\img\log.txt")";
        QTest::newRow("\\ rip, 2352")
            << QChar('\\') << int(Rip) << false << R"(D:\img\_vtools\)"
            << R"("C:\app\VCDImager\vcdxrip.exe "  -v --output-file="D:\img\_vtools\videocd.xml" --bin-file="D:\dl\lost.bin" > "D:\img\log.txt")";
        QTest::newRow("\\ rip, 2336")
            << QChar('\\') << int(Rip) << true << R"(D:\img\_vtools\)"
            << R"("C:\app\VCDImager\vcdxrip.exe "  --sector-2336 -v --output-file="D:\img\_vtools\videocd.xml" --bin-file="D:\dl\lost.bin" > "D:\img\log.txt")";
        QTest::newRow("\\ build, 2352")
            << QChar('\\') << int(Build) << false << R"(D:\img\_vtools\)"
            << R"("C:\app\VCDImager\vcdxbuild.exe "  -v --image-type=bincue --cue-file="D:\img\new.cue" --bin-file="D:\img\new.bin" "D:\img\_vtools\videocd.xml" > "D:\img\log.txt")";
        QTest::newRow("/ build, 2336")
            << QChar('/') << int(Build) << true << "/home/u/my img/_vtools/"
            << R"("/opt/t/VCDImager/vcdxbuild.exe " --sector-2336 -v --image-type=bincue --cue-file="/home/u/my img/new.cue" --bin-file="/home/u/my img/new.bin" "/home/u/my img/_vtools/videocd.xml" > "/home/u/my img/log.txt")";
        QTest::newRow("/ second detection")
            << QChar('/') << int(DetectSecond) << false << "/home/u/my img/"
            << R"("/opt/t/VCDImager/vcddebug.exe" --sector-2336 -q --bin-file="/home/u/dl/-lost.bin" > "/home/u/my img/log.txt")";
    }

    void jobsAreExact() {
        QFETCH(QChar, sep);
        QFETCH(int, stage);
        QFETCH(bool, sector2336);
        QFETCH(QString, jobDir);
        QFETCH(QString, commandLine);
        const RegenInputs in = sep == '/'
                                   ? RegenInputs{"/home/u/dl/-lost.bin", "/home/u/my img/new.bin",
                                                 "/opt/t/VCDImager/", sep}
                                   : RegenInputs{R"(D:\dl\lost.bin)", R"(D:\img\new.bin)",
                                                 R"(C:\app\VCDImager\)", sep};
        const JobPlan plan = stage == Rip     ? BuildRegenRipJob(in, sector2336)
                             : stage == Build ? BuildRegenBuildJob(in, sector2336)
                                              : BuildRegenDetectJob(in, stage == DetectSecond);
        QCOMPARE(plan.commandLine, commandLine);
        QCOMPARE(plan.jobDir, jobDir);
        QCOMPARE(plan.scriptPath, jobDir + "run.bat");
        QCOMPARE(plan.logPath, RegenOutputDir(in) + "log.txt");
        QCOMPARE(plan.scriptLines, Script(Stage(stage)).replaceInStrings("%c", commandLine));
    }

    // The texts the dialog shows that its own test does not reach.
    void namesAndBoxes() {
        QCOMPARE(RegenCueName("/a/X.BIN"), "/a/X.BIN.cue");
        QCOMPARE(RegenRipFailureText(), "There appears to have been an error!\r");
        QCOMPARE(RegenBuildFailureText(), "There appears to have been an error!");
        QCOMPARE(
            RegenFinalReport("   INFO: finished ok, image created with 744 sectors [00:09:69]",
                             "SVCD", true),
            "The process has finished successfully!\r\rThe CUE/BIN files that were regenerated "
            "is an \rimage of a SVCD disc in 2336 byte sectors.\r\rThe image size is: 0 "
            "minutes, 9 seconds, 69 sectors.\r\rIt should fit on a 21min/180MB (8 cm) CD-R "
            "disc.");
        QVERIFY(!RegenBuildSucceeded(QByteArray("   INFO: done\r\n   INFO: done\r\n")));
    }

    void stageOneLogIsRead_data() {
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<bool>("warned");
        QTest::addColumn<std::optional<QByteArray>>("discType");
        QTest::newRow("a 2336-byte image read as 2352")
            << kReportHead +
                   "++ WARN: image lost.bin size (1737984) not multiple of blocksize (2352)\r\n"
                   "++ WARN: this may be a 2336-type disc image\r\n++ WARN: unexpected PVD type "
                   "32\r\n"
                   "++ WARN: INFO.SVD: signature not found\r\n"
            << true << std::optional<QByteArray>();
        QTest::newRow("an SVCD")
            << kReportHead +
                   "Source: image file `lost.bin'\r\nImage size: 744 sectors\r\n"
                   "SVCD detected\r\n" +
                   QByteArray(79, '-') + "\r\n"
            << false << std::optional<QByteArray>("SVCD");
        QTest::newRow("a VCD 2.0, the first of two, leading blanks kept")
            << kReportHead + "  VCD 2.0 detected here, and detected again\r\nSVCD detected\r\n"
            << false << std::optional<QByteArray>("  VCD 2.0");
        QTest::newRow("the warning and a disc type: a warning")
            << kReportHead + "VCD 2.0 detected\r\n++ WARN: INFO.SVD: signature not found\r\n"
            << true << std::optional<QByteArray>("VCD 2.0");
        QTest::newRow("in the first line: no start of line")
            << QByteArray("SVCD detected\r\nmore\r\n") << false << std::optional<QByteArray>();
        QTest::newRow("no disc type at all") << kReportHead << false << std::optional<QByteArray>();
    }

    void stageOneLogIsRead() {
        QFETCH(QByteArray, log);
        QFETCH(bool, warned);
        QFETCH(std::optional<QByteArray>, discType);
        QCOMPARE(RegenDetectWarned(log), warned);
        QCOMPARE(RegenDiscType(log), discType);
    }
};

QTEST_APPLESS_MAIN(RegenBuilderTest)
#include "regen_builder_test.moc"
