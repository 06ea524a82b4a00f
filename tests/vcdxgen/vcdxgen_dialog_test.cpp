// The VCDXGEN dialog and its list dialog: the script, the checks at Go, the list's ways
// in and out, and real jobs whose descriptor names the clips in list order.

#include "author/frm_vcdxgen.h"
#include "core/vcdxgen_builder.h"
#include "forms/mpeg_load_dialog.h"
#include "tests/support/job_driver.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <QXmlStreamReader>

using namespace torvane;
using namespace torvane::test;

namespace {

const char* const kBanner =
    "echo VCDXGEN Tool - Batch File (quelmora productions)\n"
    "echo ================================================\n";
using Fixture = DialogFixture<frm_vcdxgen>;

DiscSettings Disc(const QString& output, const QString& toolFolder, QChar sep) {
    DiscSettings disc;
    disc.files = {1, "\"clip.mpg\""};
    disc.output = output;
    disc.toolFolder = toolFolder;
    disc.sep = sep;
    return disc;
}

// Runs `steps` in the list dialog that the form's Add button is about to open.
void InListDialog(Fixture& f, const std::function<void(MpegLoadDialog&)>& steps) {
    QTimer::singleShot(
        0, [&steps] { steps(*qobject_cast<MpegLoadDialog*>(QApplication::activeModalWidget())); });
    f.dialog.cmd_input->click();
}

}  // namespace

class VcdxgenDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<VcdxgenInputs>("in");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        const QString tools = "C:\\App\\VCDImager\\";
        QTest::newRow("defaults") << VcdxgenInputs{Disc("D:\\proj\\videocd.xml", tools, '\\'),
                                                   false}
                                  << R"(echo Ouput directory: D:\proj\
echo Output XML file: videocd.xml
echo Option switches:  -v
vcdxgen.exe  -v  --type=vcd2 -l VIDEOCD --info-album-id=MYVCD --volume-count=1 --volume-number=1 --output-file="D:\proj\videocd.xml" @list.txt > "D:\proj\log.txt")";
        VcdxgenInputs svcd{Disc("D:\\proj\\videocd.xml", tools, '\\'), true};
        svcd.disc.type = DiscType::Svcd;
        svcd.disc.brokenSvcd = true;
        svcd.disc.volumeLabel = "MYDISC";
        svcd.disc.volumeCount = "3";
        svcd.disc.volumeNumber = "2";
        QTest::newRow("SVCD, every box, 2 of 3") << svcd << R"(echo Ouput directory: D:\proj\
echo Output XML file: videocd.xml
echo Option switches: --nopbc --broken-svcd-mode --update-scan-offsets -v
vcdxgen.exe --nopbc --broken-svcd-mode --update-scan-offsets -v  --type=svcd -l MYDISC --info-album-id=MYVCD --volume-count=3 --volume-number=2 --output-file="D:\proj\videocd.xml" @list.txt > "D:\proj\log.txt")";
        VcdxgenInputs vcd11{Disc("/my proj/$x & y.xml", "/opt/a/VCDImager/", '/'), true};
        vcd11.disc.type = DiscType::Vcd11;
        vcd11.disc.brokenSvcd = true;
        vcd11.disc.volumeLabel = vcd11.disc.albumId = "";
        vcd11.disc.volumeCount = "007";
        QTest::newRow("VCD 1.1: no box counts; empty label and album; 007")
            << vcd11 << R"(echo Ouput directory: /my proj/
echo Output XML file: $x & y.xml
echo Option switches:  -v
vcdxgen.exe  -v  --type=vcd11 -l   --info-album-id=  --volume-count=7 --volume-number=1 --output-file="/my proj/$x & y.xml" @list.txt > "/my proj/log.txt")";
    }

    void commandAndScript() {
        QFETCH(VcdxgenInputs, in);
        QFETCH(QString, script);
        const JobPlan plan = BuildVcdxgenJob(in);
        QCOMPARE(plan.scriptLines, Script(kBanner, script, true));
        QCOMPARE(plan.jobDir, in.disc.toolFolder);
    }

    void checksInOrder_data() {
        QTest::addColumn<int>("files");
        QTest::addColumn<QStringList>("fields");  // output, label, album, count, number
        QTest::addColumn<QString>("message");     // its start; empty: Go goes on
        const QString capitals =
            "The %1 can only contain CAPITAL characters (A-Z),\rnumbers "
            "(0-9), and underscore (_).";
        const QString count = "The Volume Count must be a number between 1 and 65535";
        const QString number = "The Volume Number must be a number between 1 and 65535";
        const auto row = [](const char* name, int files, const QStringList& fields,
                            const QString& message) {
            QTest::newRow(name) << files << fields << message;
        };
        row("no files, no output: the files first", 0, {"", "A", "A", "1", "1"},
            "You haven't selected any video files to put on the\rS/VCD!  You must select at "
            "least one video file.");
        row("no output", 1, {"", "A", "A", "1", "1"}, "You have not set an output file!");
        row("label in lower case", 1, {"o", "Disc", "A", "1", "1"}, capitals.arg("Volume Label"));
        row("album with a hyphen", 1, {"o", "A", "MY-ALBUM", "1", "1"}, capitals.arg("Album ID"));
        row("count empty", 1, {"o", "A", "A", "", "1"}, count);
        row("number 65536", 1, {"o", "A", "A", "1", "65536"}, number);
        row("3 of 2", 1, {"o", "A", "A", "2", "3"},
            "The Volume Number must be smaller than the Volume Count");
        row("2 of 2, 65535, digit 0, underscore", 1, {"o", "DISC_0", "A", "65535", "65535"}, "");
    }

    void checksInOrder() {
        QFETCH(int, files);
        QFETCH(QStringList, fields);
        DiscSettings disc;
        disc.files.count = files;
        disc.output = fields[0];
        disc.volumeLabel = fields[1];
        disc.albumId = fields[2];
        disc.volumeCount = fields[3];
        disc.volumeNumber = fields[4];
        QTEST(DiscSettingsValidation(disc), "message");
    }

    // Loading, deleting and the two ways out, as the tool dialog sees them.
    void listTravelsOnlyOnOkay() {
        Fixture f("vcdxgen");
        f.fakes.files.names = {"/a/one.mpg",     std::nullopt, "/b/two files.x.mpg",
                               "/d/x\"\r\n\"/y", "/a/one.mpg", "/c/three.mpg"};
        InListDialog(f, [](MpegLoadDialog& list) {
            for (int i = 0; i < 6; ++i)
                list.cmd_load->click();  // the second cancelled, the fourth two entries: refused
            list.cmd_delete->click();
            list.cmd_okay->click();
        });
        const QString three = "\"/a/one.mpg\"\r\n\"/b/two files.x.mpg\"\r\n\"/a/one.mpg\"";
        QCOMPARE(f.dialog.file_list, three);
        QVERIFY(f.fakes.boxes.shown.at(0).text.contains("/d/x\"??\"/y"));
        QCOMPARE(f.dialog.txt_inputnumber->text(), QStringLiteral("3"));

        f.fakes.boxes.answers = {vbYes, vbYes};  // clear, then cancel
        InListDialog(f, [three](MpegLoadDialog& list) {
            QCOMPARE(list.txt_inputlist->toPlainText(), QString(three).replace("\r\n", "\n"));
            list.cmd_clear->click();
            QCOMPARE(list.txt_inputnumber->text(), QStringLiteral("0"));
            QTest::keyClick(&list, Qt::Key_Escape);
        });
        QCOMPARE(f.dialog.file_count, 3);
        QCOMPARE(f.dialog.file_list, three);
        QVERIFY(f.dialog.Tag.isEmpty());

        InListDialog(f, [](MpegLoadDialog& list) {
            for (int i = 0; i < 3; ++i)
                list.cmd_delete->click();  // down to the empty list
            list.cmd_delete->click();      // and once more on it
            list.cmd_okay->click();
        });
        QCOMPARE(f.dialog.file_count, 0);
        f.prepare(nullptr, "", QString(), f.work.filePath("x.xml"));
        f.dialog.cmd_rip->click();
        QVERIFY(f.fakes.boxes.shown.back().text.startsWith("You haven't selected any video"));
    }

    // The real vcdxgen through the dialog, on clips whose folder and names hold shell
    // characters, quotes and non-ASCII letters.
    void realJob_data() {
        QTest::addColumn<QString>("type");               // the option button
        QTest::addColumn<QStringList>("clips");          // of the shared media
        QTest::addColumn<QString>("boxes");              // ticks to toggle
        QTest::addColumn<QStringList>("settings");       // label, album, count, number
        QTest::addColumn<QByteArrayList>("descriptor");  // "!": what it must not hold
        QTest::newRow("VCD 2.0, no PBC")
            << "opt_vcd2" << QStringList{"clip-vcd.mpg", "clip-vcd2.mpg"} << "chk_nopbc"
            << QStringList{"MY_DISC", "ALBUM_7", "3", "002"}
            << QByteArrayList{"class=\"vcd\" version=\"2.0\"",  "<album-id>ALBUM_7</album-id>",
                              "<volume-count>3</volume-count>", "<volume-number>2</volume-number>",
                              "<volume-id>MY_DISC</volume-id>", "!<pbc>"};
        QTest::newRow("SVCD, broken mode, no scan offsets")
            << "opt_svcd" << QStringList{"clip-svcd.mpg"} << "chk_brokensvcd chk_update"
            << QStringList{"", "", "1", "1"}
            << QByteArrayList{"class=\"svcd\"", "svcd vcd30 mpegav", "<pbc>"};
    }

    void realJob() {
        QFETCH(QString, type);
        QFETCH(QStringList, clips);
        QFETCH(QString, boxes);
        QFETCH(QStringList, settings);
        QFETCH(QByteArrayList, descriptor);
        Fixture f("vcdxgen");
        f.app.linkAppTools({"vcdxgen.exe"});
        const QString folder = FreshFolder(f.work.path(), "clips & 'co' été");
        MpegList list;
        QStringList copies;
        for (const QString& clip : clips) {
            copies << folder + "/-" + clip.chopped(4) + " ü's.mpg";
            QVERIFY(QFile::copy(Media(clip), copies.back()));
            list = WithFileAdded(list, copies.back());
        }
        f.dialog.file_count = qint16(list.count);
        f.dialog.file_list = list.text;
        const QList<QLineEdit*> fields{f.dialog.txt_volumelabel, f.dialog.txt_albumid,
                                       f.dialog.txt_volumecount, f.dialog.txt_volumenumber};
        for (int i = 0; i < 4; ++i)
            fields[i]->setText(settings[i]);
        f.prepare(nullptr, type + " " + boxes, QString(), folder + "/disc été.xml");
        QVERIFY(f.go(vbYes));
        QCOMPARE(f.fakes.desktop.viewed, QStringList{folder + "/disc été.xml"});
        QVERIFY(!QFile::exists(f.app.toolFolder() + "list.txt") &&
                !QFile::exists(f.app.toolFolder() + "run.bat"));
        const QByteArray xml = ReadBytes(folder + "/disc été.xml");
        for (const QByteArray& item : descriptor)
            QVERIFY2(item.startsWith('!') ? !xml.contains(item.mid(1)) : xml.contains(item),
                     item.constData());
        // The clips, in list order, as the descriptor names them once its markup is read.
        QStringList sources;
        for (QXmlStreamReader reader(xml); !reader.atEnd();)
            if (reader.readNext() == QXmlStreamReader::StartElement &&
                reader.name() == QLatin1String("sequence-item"))
                sources << reader.attributes().value(QLatin1String("src")).toString();
        QCOMPARE(sources, copies);
    }

    // The list holds 98 entries: a 99th is refused before any file dialog, and the 98 go
    // through the list file intact to the tool, which sees every one.
    void listHoldsAndPasses98() {
        Fixture f("vcdxgen");
        f.app.linkAppTools({"vcdxgen.exe"});
        f.fakes.files.names.assign(99, Media("clip-vcd.mpg"));
        InListDialog(f, [](MpegLoadDialog& list) {
            for (int i = 0; i < 99; ++i)
                list.cmd_load->click();
            QCOMPARE(list.txt_inputnumber->text(), QStringLiteral("98"));
            list.cmd_okay->click();
        });
        QCOMPARE(f.fakes.boxes.shown.size(), 1u);
        QVERIFY(f.fakes.boxes.shown[0].text.startsWith("You have already selected 98 MPEG files."));
        QCOMPARE(f.fakes.files.names.size(), 1u);  // no file dialog for the 99th
        f.prepare(nullptr, "", QString(), f.work.filePath("d.xml"));
        QVERIFY(f.go(vbNo));
        QCOMPARE(ReadBytes(f.work.filePath("d.xml")).count("<sequence-item src="), 98);
    }
};

QTEST_MAIN(VcdxgenDialogTest)
#include "vcdxgen_dialog_test.moc"
