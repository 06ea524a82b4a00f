// The VCDIMAGER dialog: its script, the image size report, and a real job whose image
// rips back into the clips.

#include "author/frm_vcdimager.h"
#include "core/mod_general.h"
#include "core/vcdimager_builder.h"
#include "tests/support/job_driver.h"

#include <QRegularExpression>

using namespace torvane;
using namespace torvane::test;

namespace {

const char* const kBanner =
    "echo VCDIMAGER Tool - Batch File (quelmora productions)\n"
    "echo ==================================================\n";

VcdimagerInputs Inputs(const QString& output, DiscType type, bool sector2336, QChar sep) {
    VcdimagerInputs in;
    in.disc.files = {1, "\"clip.mpg\""};
    in.disc.output = output;
    in.disc.type = type;
    in.disc.toolFolder = sep == '/' ? "/opt/a/VCDImager/" : "C:\\App\\VCDImager\\";
    in.disc.sep = sep;
    in.sector2336 = sector2336;
    return in;
}

}  // namespace

class VcdimagerDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<VcdimagerInputs>("in");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        QTest::newRow("defaults") << Inputs("D:\\img\\movie.bin", DiscType::Vcd2, false, '\\')
                                  << R"(echo Ouput directory: D:\img\
echo Output BIN file: movie.bin
echo Option switches:  -v
vcdimager.exe  -v  --type=vcd2 -l VIDEOCD --info-album-id=MYVCD --volume-count=1 --volume-number=1 --cue-file="D:\img\movie.cue" --bin-file="D:\img\movie.bin" @list.txt > "D:\img\log.txt")";
        QTest::newRow("SVCD, 2336") << Inputs("D:\\img\\movie.bin", DiscType::Svcd, true, '\\')
                                    << R"(echo Ouput directory: D:\img\
echo Output BIN file: movie.bin
echo Option switches: --sector-2336 --update-scan-offsets -v
vcdimager.exe --sector-2336 --update-scan-offsets -v  --type=svcd -l VIDEOCD --info-album-id=MYVCD --volume-count=1 --volume-number=1 --cue-file="D:\img\movie.cue" --bin-file="D:\img\movie.bin" @list.txt > "D:\img\log.txt")";
        QTest::newRow("HQVCD, .BIN kept, a blank before the switch")
            << Inputs("/i/X.BIN", DiscType::Hqvcd, false, '/') << R"(echo Ouput directory: /i/
echo Output BIN file: X.BIN
echo Option switches:  --update-scan-offsets -v
vcdimager.exe  --update-scan-offsets -v  --type=hqvcd -l VIDEOCD --info-album-id=MYVCD --volume-count=1 --volume-number=1 --cue-file="/i/X.BIN.cue" --bin-file="/i/X.BIN.bin" @list.txt > "/i/log.txt")";
    }

    void commandAndScript() {
        QFETCH(VcdimagerInputs, in);
        QFETCH(QString, script);
        QCOMPARE(BuildVcdimagerJob(in).scriptLines, Script(kBanner, script, true));
    }

    void report_data() {
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QString>("sizeLine");  // empty: the failure box
        QTest::newRow("the tool's figures")
            << QByteArray("a\r\nfinished ok, image created with 333 sectors [74:03:40]\r\n")
            << "The image size is: 74 minutes, 3 seconds, 40 sectors.\r\r" + DiscFitAdvice(74);
        QTest::newRow("the first bracket decides")
            << QByteArray("a\r\nfinished ok [01:02:03] [74:03:40]\r\n")
            << "The image size is: 1 minutes, 2 seconds, 3 sectors.";
        QTest::newRow("finished ok further along")
            << QByteArray("a\r\nx finished ok [00:01:02]\r\n") << QString();
        QTest::newRow("a line behind it")
            << QByteArray("finished ok [00:01:02]\r\nmore\r\n") << QString();
    }

    void report() {
        QFETCH(QByteArray, log);
        QFETCH(QString, sizeLine);
        const ListToolReport outcome = BuildVcdimagerReport(log);
        QCOMPARE(outcome.succeeded, !sizeLine.isEmpty());
        QVERIFY2(sizeLine.isEmpty()
                     ? outcome.text.startsWith("There appears to have been an error!")
                     : outcome.text.contains("!\r\r" + sizeLine),
                 qPrintable(outcome.text));
    }

    void realJobRipsBack() {
        DialogFixture<frm_vcdimager> f("vcdimager");
        f.app.linkAppTools({"vcdimager.exe", "vcdxrip.exe"});
        const QString folder = FreshFolder(f.work.path(), "img & 'co' été");
        f.dialog.file_count = 2;
        f.dialog.file_list =
            test::Quoted(Media("clip-vcd.mpg")) + "\r\n" + test::Quoted(Media("clip-vcd2.mpg"));
        f.prepare(nullptr, "", QString(), folder + "/-film ü.bin");
        QVERIFY(f.go(vbYes));

        const QString log = folder + "/log.txt";
        const QStringList size =
            QRegularExpression(R"(finished ok[^[]*\[0?(\d+):0?(\d+):0?(\d+)\])")
                .match(QString::fromUtf8(ReadBytes(log)))
                .capturedTexts();
        QCOMPARE(size.size(), 4);
        QVERIFY(f.fakes.boxes.shown.at(0).text.contains(
            QString("The image size is: %1 minutes, %2 seconds, %3 sectors.")
                .arg(size[1], size[2], size[3])));
        QCOMPARE(f.fakes.desktop.viewed, QStringList{log});
        QVERIFY(QFile::exists(folder + "/-film ü.cue"));
        QCOMPARE(RunProgram(f.app.toolFolder() + "vcdxrip.exe", {"--bin-file=-film ü.bin"}, folder)
                     .exitCode,
                 0);
        QVERIFY(ReadBytes(folder + "/avseq01.mpg") == ReadBytes(Media("clip-vcd.mpg")));
        QVERIFY(ReadBytes(folder + "/avseq02.mpg") == ReadBytes(Media("clip-vcd2.mpg")));
    }

    void aFileThatIsNoMpegFailsTheJob() {
        DialogFixture<frm_vcdimager> f("vcdimager");
        f.app.linkAppTools({"vcdimager.exe"});
        f.dialog.file_count = 1;
        f.dialog.file_list = test::Quoted(Media("random.bin"));
        f.prepare(nullptr, "", QString(), f.work.filePath("d.bin"));
        QVERIFY(f.go(vbOK));
        QVERIFY(f.fakes.boxes.shown.at(0).text.startsWith("There appears to have been an error!"));
    }
};

QTEST_MAIN(VcdimagerDialogTest)
#include "vcdimager_dialog_test.moc"
