// The VCDXBUILD dialog: script, checks at Go, report, interlock and the cue sheet's rewrite;
// and the real tools through it and the VCDXRIP dialog, in folders with blanks, shell
// characters and non-ASCII letters.

#include "author/frm_vcdxbuild.h"
#include "rip/frm_vcdxrip.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/job_driver.h"

#include <QRegularExpression>

using namespace torvane;
using namespace torvane::test;

const char* const kBanner =
    "echo VCDXBUILD Tool - Batch File (quelmora productions)\n"
    "echo ==================================================\n";
using Fixture = DialogFixture<frm_vcdxbuild>;

const QByteArray kSheet = "    INDEX 01 00:00:00\r\n    INDEX 02 00:10:00\r\n";
const QByteArray kLog74 =
    "   INFO: write\r\n   INFO: finished ok, image created with 333440 sectors [74:03:40]\r\n";
const QString kBox74 = QStringLiteral(
    "The process has finished successfully!\r\rThe image size is: 74 minutes, 3 seconds, 40 "
    "sectors.\r\rIt may fit on a 74min/650MB CD-R disc with a small\rdegree of overburning.  "
    "Otherwise, use an 80min/700MB\rCD-R disc.\r\rDo you want to read the log file?");

class VcdxbuildDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<VcdxbuildInputs>("in");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        const VcdxbuildInputs windows{
            "C:\\proj\\videocd.xml", "D:\\img\\movie.BIN", true, false, false,
            "C:\\app\\VCDImager\\",  QLatin1Char('\\')};
        const VcdxbuildInputs posix{
            "/home/u/my proj/video cd.xml", "/movie.TOC",    false, true, false,
            "/opt/app/VCDImager/",          QLatin1Char('/')};
        // ".bin" and ".toc" are dropped from the image's name only as written so.
        QTest::newRow("cue/bin, .BIN") << windows << R"(echo Input XML File:   C:\proj\videocd.xml
echo Output directory: D:\img\
echo Output imagetype: bincue
echo Output image:     movie.BIN
echo Option switches:   -v
"C:\app\VCDImager\vcdxbuild.exe "  -v --image-type=bincue --cue-file="D:\img\movie.BIN.cue" --bin-file="D:\img\movie.BIN.bin"  "C:\proj\videocd.xml" > "D:\img\log.txt")";
        QTest::newRow("posix toc, 2336, .TOC in the root")
            << posix << R"(echo Input XML File:   /home/u/my proj/video cd.xml
echo Output directory: /
echo Output imagetype: cdrdao
echo Output image:     movie.TOC
echo Option switches:  --sector-2336 -v
"/opt/app/VCDImager/vcdxbuild.exe " --sector-2336 -v --image-type=cdrdao --cdrdao-file="/movie.TOC"  "/home/u/my proj/video cd.xml" > "/log.txt")";
    }

    void commandAndScript() {
        QFETCH(VcdxbuildInputs, in);
        QFETCH(QString, script);
        const VcdxbuildJob job = BuildVcdxbuildJob(in);
        QCOMPARE(job.plan.scriptLines, Script(kBanner, script, true));
        // The job runs in the input's folder, where the descriptor names its clips from.
        QCOMPARE(job.plan.jobDir, in.sep == '\\' ? "C:\\proj\\" : "/home/u/my proj/");
    }

    void goRefusesInOrder_data() {
        AddRefusalColumns();
        RefusalRow("nothing set", "", "", "You have not set an output file!");
        RefusalRow("no input", "", "m.bin", "You have not loaded an input XML file!");
        RefusalRow("an input folder that does not exist", "gone/v.xml", "m.bin",
                   "The folder does not exist:");
        RefusalRow("an image folder that does not exist", "v.xml", "gone/m.bin",
                   "The folder does not exist:");
    }

    void goRefusesInOrder() { Fixture("vcdxbuild").expectRefusal(); }

    void job_data() {
        QTest::addColumn<QString>("clicks");  // in this order, before the image is picked
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("cue");  // rewritten, kept, or unwritable (a full disk)
        QTest::newRow("cue/bin: subindices removed after the question")
            << "chk_subindex" << kLog74 << kBox74 << "rewritten";
        QTest::newRow("back to cue/bin, a failure: the cue kept")
            << "opt_toc opt_cuebin chk_subindex"
            << QByteArray("   INFO: start\r\n**ERROR: bad XML\r\n")
            << "There appears to have been an error!\r\rThe error may have been shown in the "
               "console window\rbefore it closed.  Otherwise, check your XML file."
            << "kept";
        QTest::newRow("toc, 2336: the subindex tick kept but grey; the newer tool's size field")
            << "chk_subindex chk_s2336 opt_toc"
            << QByteArray(
                   "   INFO: finished ok, image created with 1879 sectors [00:25:04]\r\n\r\n\n\r")
            << "The process has finished successfully!\r\rThe image size is: 0 minutes, 25 "
               "seconds, 4 sectors.\r\rIt should fit on a 21min/180MB (8 cm) CD-R disc.\r\rDo "
               "you want to read the log file?"
            << "kept";
        QTest::newRow("a cue that cannot be rewritten is reported")
            << "chk_subindex" << kLog74 << kBox74 << "unwritable";
    }

    void job() {
        QFETCH(QString, clicks);
        QFETCH(QByteArray, log);
        QFETCH(QString, box);
        QFETCH(QString, cue);
        std::optional<FileSizeLimit> full;  // outlives the dialog, whose box would set it
        Fixture f("vcdxbuild");
        const bool toc = clicks.endsWith("opt_toc"), diskFull = cue == "unwritable";
        const QString input = f.work.filePath("-v & o.xml"), imgDir = f.work.filePath("img; $x/");
        const QString cuePath = imgDir + "m.cue", image = imgDir + (toc ? "m.toc" : "m.bin");
        // The tool's own cue sheet, there before the job ends.
        QVERIFY(QDir().mkpath(imgDir) && WriteBytes(cuePath, kSheet));
        f.prepare("vcdxbuild.exe", clicks, input, image, log);
        QCOMPARE(f.dialog.chk_subindex->isEnabled(), !toc);
        if (diskFull)
            f.fakes.boxes.onShow = [&full](const MessageBoxRequest&) { full.emplace(10); };
        QVERIFY(f.go(vbYes));

        QCOMPARE(f.fakes.boxes.shown.size(), diskFull ? 2u : 1u);
        QCOMPARE(f.fakes.boxes.shown[0].text, box);
        QCOMPARE(f.fakes.boxes.shown.back().text.startsWith("The file could not be written:\r\r" +
                                                            cuePath),
                 diskFull);
        const bool success = box.startsWith("The process");
        QCOMPARE(f.fakes.desktop.viewed, success ? QStringList{imgDir + "log.txt"} : QStringList());
        const QStringList expected =
            toc ? QStringList{"--sector-2336", "-v", "--image-type=cdrdao",
                              "--cdrdao-file=" + imgDir + "m"}
                : QStringList{"-v", "--image-type=bincue", "--cue-file=" + cuePath,
                              "--bin-file=" + image};
        QCOMPARE(f.arguments(), expected + QStringList{input});
        QCOMPARE(ReadBytes(cuePath).contains("INDEX 02"), cue != "rewritten");
        // Back to Idle with the interlock applied anew, the tick kept.
        QCOMPARE(f.dialog.chk_subindex->isEnabled(), !toc);
        QVERIFY(f.dialog.chk_subindex->isChecked());
    }

    // The shared descriptor, which names its clip from its own folder, built into an image
    // without subindices in its cue sheet, and the image ripped back into the clip.
    void buildThenRipGivesTheClipBack() {
        Fixture build("vcdxbuild", TORVANE_APP_DIR);
        const QString source = FreshFolder(build.work.path(), "src ü & co"),
                      images = FreshFolder(build.work.path(), "img; $x <y>"),
                      rip = FreshFolder(build.work.path(), "rip été |z");
        const QString xml = source + "/-vidéo cd.xml", image = images + "/bild Ä.bin";
        QVERIFY(QFile::copy(Media("vcd.xml"), xml) &&
                QFile::copy(Media("clip-vcd.mpg"), source + "/clip-vcd.mpg"));
        build.prepare(nullptr, "chk_subindex", xml, image);
        QVERIFY(build.go(vbNo));
        // The size printed back is the tool's own, without zeros in front.
        const QStringList size =
            QRegularExpression(R"(finished ok.*\[0?(\d+):0?(\d+):0?(\d+)\]\s*$)")
                .match(QString::fromUtf8(ReadBytes(images + "/log.txt")))
                .capturedTexts();
        QCOMPARE(size.size(), 4);
        QCOMPARE(build.fakes.boxes.shown.size(), 1u);
        QCOMPARE(
            build.fakes.boxes.shown[0].text,
            QStringLiteral("The process has finished successfully!\r\rThe image size is: %1 "
                           "minutes, %2 seconds, %3 sectors.\r\rIt should fit on a 21min/180MB "
                           "(8 cm) CD-R disc.\r\rDo you want to read the log file?")
                .arg(size[1], size[2], size[3]));
        const QByteArray cue = ReadBytes(images + "/bild Ä.cue");
        QCOMPARE(cue.count("    INDEX 01 "), 2);
        QVERIFY2(!cue.contains("FLAGS DCP"), cue.constData());

        DialogFixture<frm_vcdxrip> ripper("vcdxrip", TORVANE_APP_DIR);
        ripper.prepare(nullptr, "", image, rip + "/disc ö.xml");
        QVERIFY(ripper.go(vbNo));
        QCOMPARE(ripper.fakes.boxes.shown.size(), 1u);
        QCOMPARE(ripper.fakes.boxes.shown[0].text,
                 "The process has finished successfully!\r\rDo you want to read the log file?");
        QVERIFY(ReadBytes(rip + "/disc ö.xml").contains("<sequence-items>"));
        QVERIFY(ReadBytes(rip + "/avseq01.mpg") == ReadBytes(Media("clip-vcd.mpg")));
        QVERIFY(!QFile::exists(rip + "/avseq02.mpg") && !QFile::exists(rip + "/run.bat"));
    }
};

QTEST_MAIN(VcdxbuildDialogTest)
#include "vcdxbuild_dialog_test.moc"
