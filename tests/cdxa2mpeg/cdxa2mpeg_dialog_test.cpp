// The CDXA2MPEG dialog: its script, checks at Go, and real jobs on a RIFF/CDXA file made
// from a track of the shared media, as a disc's AVSEQ01.DAT is when copied off it.

#include "core/cdxa2mpeg_builder.h"
#include "inspect/frm_cdxa2mpeg.h"
#include "tests/support/job_driver.h"

#include <QtEndian>

using namespace torvane;
using namespace torvane::test;

namespace {

const char* const kBanner =
    "echo CDXA2MPEG Tool - Batch File (quelmora productions)\n"
    "echo ==================================================\n";
using Fixture = DialogFixture<frm_cdxa2mpeg>;

QByteArray LittleEndian32(quint32 value) {
    const quint32 bytes = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

// The MPEG track of the VCD image, from its first sector on (the cue sheet's INDEX 01),
// as raw sectors behind a RIFF header with a CDXA "fmt " chunk.
QByteArray RiffOfTrack() {
    const QByteArray sectors = ReadBytes(Media("vcd-2352.bin")).mid(450 * 2352);
    const QByteArray body = "CDXA" + QByteArray("fmt ") + LittleEndian32(16) +
                            QByteArray(16, '\0') + "data" + LittleEndian32(sectors.size()) +
                            sectors;
    return "RIFF" + LittleEndian32(body.size()) + body;
}

}  // namespace

class Cdxa2mpegDialogTest : public QObject {
    Q_OBJECT
private slots:
    void commandAndScript_data() {
        QTest::addColumn<Cdxa2mpegInputs>("in");
        QTest::addColumn<QString>("jobDir");
        QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
        QTest::newRow("windows") << Cdxa2mpegInputs{"D:\\in\\AVSEQ01.DAT", "D:\\out\\clip.mpg",
                                                    "C:\\App\\VCDImager\\", QLatin1Char('\\')}
                                 << "D:\\out\\"
                                 << R"(echo Input S/VCD File:  D:\in\AVSEQ01.DAT
echo Output MPEG File:  clip.mpg
"C:\App\VCDImager\cdxa2mpeg.exe" "D:\in\AVSEQ01.DAT" "D:\out\clip.mpg")";
        QTest::newRow("posix") << Cdxa2mpegInputs{"/in/-av & co.dat", "/out/$x; c.mpg",
                                                  "/opt/app/VCDImager/", QLatin1Char('/')}
                               << "/out/"
                               << R"(echo Input S/VCD File:  /in/-av & co.dat
echo Output MPEG File:  $x; c.mpg
"/opt/app/VCDImager/cdxa2mpeg.exe" "/in/-av & co.dat" "/out/$x; c.mpg")";
    }

    void commandAndScript() {
        QFETCH(Cdxa2mpegInputs, in);
        QFETCH(QString, script);
        const JobPlan plan = BuildCdxa2mpegJob(in);
        QCOMPARE(plan.scriptLines, Script(kBanner, script, false));
        QTEST(plan.jobDir, "jobDir");
    }

    void job_data() {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<bool>("inPlace");        // the output is the input
        QTest::addColumn<QByteArray>("written");  // the output after the job; null: none
        const QByteArray clip = ReadBytes(Media("clip-vcd.mpg"));
        QTest::newRow("RIFF/CDXA file: the MPEG it came from") << RiffOfTrack() << false << clip;
        QTest::newRow("converted in place") << RiffOfTrack() << true << clip;
        QTest::newRow("plain MPEG: nothing written, the old output kept")
            << clip << false << QByteArray("an older file");
        QTest::newRow("plain MPEG, no output before: none there") << clip << false << QByteArray();
    }

    void job() {
        QFETCH(QByteArray, input);
        QFETCH(bool, inPlace);
        QFETCH(QByteArray, written);
        Fixture f("cdxa2mpeg", TORVANE_APP_DIR);
        const QString folder = FreshFolder(f.work.path(), "in & co; $x <y> |z");
        const QString in = folder + "/-AVSEQ01 été.DAT";
        const QString out = inPlace ? in : folder + "/clip été.mpg";
        QVERIFY(WriteBytes(in, input) &&
                (inPlace || written.isNull() || WriteBytes(out, "an older file")));
        f.prepare(nullptr, "", in, out);
        QVERIFY(f.go(vbOK));

        QVERIFY(ReadBytes(out) == written && QFile::exists(out) == !written.isNull());
        QCOMPARE(f.fakes.boxes.shown.size(), 1u);
        QCOMPARE(f.fakes.boxes.shown[0].title, QStringLiteral("Information"));
        const QString text = f.fakes.boxes.shown[0].text;
        const QString none = written.isNull() ? "there is none at:\r" : "this file is as it was:\r";
        const bool converted = !written.isNull() && written != "an older file";
        QVERIFY2(converted ? text == "Finished!\r\rConverted file written in:\r" + out
                           : text.startsWith("Finished!\r\rNo converted file was written; " + none +
                                             out + "\r\r"),
                 qPrintable(text));
        // No stand-in, no script left.
        QCOMPARE(EntriesOf(folder).size(), inPlace || written.isNull() ? 1 : 2);
    }
};

QTEST_MAIN(Cdxa2mpegDialogTest)
#include "cdxa2mpeg_dialog_test.moc"
