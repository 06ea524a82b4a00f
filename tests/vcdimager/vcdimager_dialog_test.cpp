// The VCDIMAGER dialog: its script, the image size report, and a real job whose image
// rips back into the clips.

#include "author/frm_vcdimager.h"
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

    // The size is read at the first bracket of the log's last line (the rest of the report
    // is that of the VCDXBUILD dialog).
    void reportTakesTheFirstBracket() {
        const ListToolReport outcome =
            BuildVcdimagerReport(QByteArray("a\r\nfinished ok [01:02:03] [74:03:40]\r\n"));
        QVERIFY(outcome.succeeded);
        QVERIFY2(
            outcome.text.contains("!\r\rThe image size is: 1 minutes, 2 seconds, 3 sectors.\r\r"),
            qPrintable(outcome.text));
    }

    // The real vcdimager through the dialog on clips copied into a folder whose name holds
    // shell characters and non-ASCII letters: the size it reports is its image's, and the
    // image rips back into the clips.
    void realJob_data() {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<QStringList>("clips");  // of the shared media, in list order
        QTest::addColumn<int>("sectorSize");     // 0: no image, the failure box
        QTest::newRow("VCD 2.0, two clips")
            << "" << QStringList{"clip-vcd.mpg", "clip-vcd2.mpg"} << 2352;
        QTest::newRow("SVCD, 2336-byte sectors, the clip left as it is")
            << "opt_svcd chk_s2336 chk_update" << QStringList{"clip-svcd.mpg"} << 2336;
        QTest::newRow("a file that is no MPEG") << "" << QStringList{"random.bin"} << 0;
    }

    void realJob() {
        QFETCH(QString, clicks);
        QFETCH(QStringList, clips);
        QFETCH(int, sectorSize);
        DialogFixture<frm_vcdimager> f("vcdimager");
        f.app.linkAppTools({"vcdimager.exe", "vcdxrip.exe"});
        const QString folder = FreshFolder(f.work.path(), "img & 'co' été");
        QByteArrayList listed;
        for (const QString& clip : clips) {
            QVERIFY(QFile::copy(Media(clip), folder + "/<b> &amp; ü " + clip));
            listed << test::Quoted(folder + "/<b> &amp; ü " + clip);
        }
        f.dialog.file_count = qint16(clips.size());
        f.dialog.file_list = listed.join("\r\n");
        f.prepare(nullptr, clicks, QString(), folder + "/-film ü.bin");
        QVERIFY(f.go(sectorSize ? vbYes : vbOK));
        const QString box = f.fakes.boxes.shown.at(0).text, log = folder + "/log.txt";
        if (!sectorSize) {
            QVERIFY2(box.startsWith("There appears to have been an error!"), qPrintable(box));
            return;
        }
        const QStringList size =
            QRegularExpression(
                R"(finished ok, image created with (\d+) sectors \[0?(\d+):0?(\d+):0?(\d+)\])")
                .match(QString::fromUtf8(ReadBytes(log)))
                .capturedTexts();
        QCOMPARE(size.size(), 5);
        QVERIFY2(box.contains(QString("The image size is: %1 minutes, %2 seconds, %3 sectors.")
                                  .arg(size[2], size[3], size[4])),
                 qPrintable(box));
        QCOMPARE(QFileInfo(folder + "/-film ü.bin").size(), size[1].toLongLong() * sectorSize);
        QCOMPARE(f.fakes.desktop.viewed, QStringList{log});
        QVERIFY(QFile::exists(folder + "/-film ü.cue"));
        const QStringList rip{"--bin-file=-film ü.bin",
                              sectorSize == 2336 ? "--sector-2336" : "-v"};
        QCOMPARE(RunProgram(f.app.toolFolder() + "vcdxrip.exe", rip, folder).exitCode, 0);
        for (int i = 0; i < clips.size(); ++i)
            QVERIFY(ReadBytes(folder + QString("/avseq%1.mpg").arg(i + 1, 2, 10, QChar('0'))) ==
                    ReadBytes(Media(clips[i])));
    }
};

QTEST_MAIN(VcdimagerDialogTest)
#include "vcdimager_dialog_test.moc"
