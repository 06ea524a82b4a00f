// The MPEG maker: its scripts, the standard read from a file's frame rate, real jobs on
// clips made here by ffmpeg, then built into a disc image, and the files Go refuses or the
// job cannot convert.

#include "core/mpegmaker_builder.h"
#include "core/mpegmaker_report.h"
#include "forms/mpeg_load_dialog.h"
#include "maker/frm_mpegmaker.h"
#include "tests/mpegmaker/mpegmaker_scripts.h"
#include "tests/support/job_driver.h"

#include <QLabel>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTimer>

using namespace torvane;
using namespace torvane::test;

namespace {

using Fixture = DialogFixture<frm_mpegmaker>;
const QString kHead =
    "echo off\ncls\necho MPEG MAKER Tool - Batch File (quelmora productions)\n"
    "echo " +
    QString(51, '=') + "\n";
const QString kWait =
    "echo.\necho Please wait for this process to complete. It may take\n"
    "echo a few minutes.\n";
const QString kEnd = "\necho.\necho Finished!\npause\ncls\necho ***end***";

// A clip of `seconds` with a tone, H.264/AAC in MP4.
bool MakeClip(const QString& path, const char* size, const char* rate, int seconds = 2) {
    const QString source =
        QString("testsrc=size=%1:rate=%2:duration=%3").arg(size, rate).arg(seconds);
    return RunProgram("ffmpeg",
                      {"-v", "error", "-y", "-f", "lavfi", "-i", source, "-f", "lavfi", "-i",
                       QString("sine=duration=%1").arg(seconds), "-c:v", "libx264", "-c:a", "aac",
                       "-shortest", path},
                      "/")
               .exitCode == 0;
}

// Loads `names` in the list dialog and picks `folder` for the output.
void Pick(Fixture& f, const QStringList& names, const QString& folder) {
    QTimer::singleShot(0, [&] {
        auto* list = qobject_cast<MpegLoadDialog*>(QApplication::activeModalWidget());
        for (const QString& name : names) {
            f.fakes.files.names = {name};
            list->cmd_load->click();
        }
        list->cmd_okay->click();
    });
    f.dialog.cmd_input->click();
    f.fakes.files.names = {folder};
    f.dialog.cmd_output->click();
}

// The picture's rows that are not black, from ffmpeg's cropdetect: "352:216".
QString ActiveArea(const QString& mpeg) {
    const ToolRun run = RunProgram(
        "ffmpeg", {"-nostdin", "-i", mpeg, "-vf", "cropdetect=24:2:0", "-f", "null", "-"}, "/");
    const auto all = QRegularExpression("crop=(\\d+:\\d+)").globalMatch(run.errors);
    QString last;
    for (auto it = all; it.hasNext();)
        last = it.next().captured(1);
    return last;
}

}  // namespace

class MpegmakerDialogTest : public QObject {
    Q_OBJECT
private slots:
    void mpegmaker_script_data() {
        QTest::addColumn<MakerInputs>("in");
        QTest::addColumn<QString>("script");  // between the fixed head and end
        QTest::newRow("windows") << MakerInputs{{"D:\\in\\a.b.mp4"}, "E:\\out",
                                                MakerTarget::Vcd,    TvStandard::Pal,
                                                "C:\\App\\MPEG\\",   '\\'}
                                 << WindowsScript(kWait);
        QTest::newRow("posix") << MakerInputs{{"/in/-x & y's été.mp4", "/in/$z;|<>"},
                                              "/out/",
                                              MakerTarget::Svcd,
                                              TvStandard::Ntsc,
                                              "/app/MPEG/",
                                              '/'}
                               << PosixScript(kWait);
    }

    void mpegmaker_script() {
        QFETCH(MakerInputs, in);
        QFETCH(QString, script);
        QCOMPARE(BuildMpegmakerJob(in).scriptLines.join('\n'), kHead + script + kEnd);
    }

    void mpegmaker_standard_data() {
        QTest::addColumn<QByteArray>("probe");
        QTest::addColumn<QString>("reason");
        QTest::newRow("25") << QByteArray("r_frame_rate=25/1\n")
                            << "PAL: the first file runs at 25 frames a second";
        QTest::newRow("29.97") << QByteArray("r_frame_rate=30000/1001\n")
                               << "NTSC: the first file runs at 29.97 frames a second";
        QTest::newRow("59.94 fields") << QByteArray("r_frame_rate=0/0\navg_frame_rate=60000/1001")
                                      << "NTSC: the first file runs at 59.94 frames a second";
        QTest::newRow("23.976 film") << QByteArray("r_frame_rate=24000/1001")
                                     << "PAL: the first file runs at 23.976 frames a second";
        QTest::newRow("no video") << QByteArray()
                                  << "PAL: the frame rate of the first file could not be read";
    }

    void mpegmaker_standard() {
        QFETCH(QByteArray, probe);
        QTEST(NearerStandard(ProbedFrameRate(probe)).reason, "reason");
    }

    // What VCDXMINFO says of a written file decides whether VCDIMAGER would take it.
    void mpegmaker_readiness_data() {
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QString>("reason");
        const QByteArray info =
            "<mpeg-info><video-stream><version>%v</version><horizontal-size>"
            "%w</horizontal-size><vertical-size>%h</vertical-size>";
        const auto row = [&info](const char* name, const char* v, const char* w, const char* h,
                                 const char* reason) {
            QTest::newRow(name) << QByteArray(info).replace("%v", v).replace("%w", w).replace("%h",
                                                                                              h)
                                << QString(reason);
        };
        row("PAL VCD", "1", "352", "288", "");
        row("MPEG-2", "2", "352", "240", "a VCD takes MPEG-1 video, this is MPEG-2.");
        row("a picture of its own", "1", "320", "240",
            "a VCD takes pictures of 352x288 or 352x240, this one is 320x240.");
        QTest::newRow("no report") << QByteArray("**ERROR: x") << "VCDXMINFO could not read it.";
    }

    void mpegmaker_readiness() {
        QFETCH(QByteArray, log);
        QTEST(NotReadyReason(ReadMpegInfo(log), MakerTarget::Vcd), "reason");
    }

    // Two clips, 4:3 at 25 and 16:9 at 29.97 frames a second, made into one disc's files.
    void mpegmaker_job_data() {
        QTest::addColumn<QString>("target");  // the option button
        QTest::addColumn<QString>("type");    // vcdimager's disc type
        QTest::addColumn<QString>("wide");    // the 16:9 clip's active area
        QTest::addColumn<QString>("detected");
        QTest::newRow("VCD") << "opt_vcd"
                             << "vcd2"
                             << "352:216"
                             << "VCD 2.0 detected";
        QTest::newRow("SVCD") << "opt_svcd"
                              << "svcd"
                              << "480:432"
                              << "SVCD detected";
    }

    void mpegmaker_job() {
        QFETCH(QString, target);
        QFETCH(QString, type);
        Fixture f("mpegmaker", TORVANE_APP_DIR);
        const QString folder = FreshFolder(f.work.path(), "in & 'co' été");
        const QString square = folder + "/-4x3 $a;b.mp4", wide = folder + "/16x9 (ü).mp4";
        QVERIFY(MakeClip(square, "320x240", "25") && MakeClip(wide, "640x360", "30000/1001"));
        Pick(f, {square, wide}, folder);
        QCOMPARE(f.dialog.lbl_standard->text(), "PAL: the first file runs at 25 frames a second");
        f.dialog.findChild<QRadioButton*>(target)->click();
        QVERIFY(f.dialog.opt_pal->isChecked());  // the target leaves the standard as it was
        QVERIFY(f.go(vbOK));

        const QString text = f.fakes.boxes.shown.at(0).text;
        QVERIFY2(text.startsWith("Finished!  2 of 2 files converted.") &&
                     text.count("; ready for VCDIMAGER.") == 2 &&
                     text.contains("It should fit on a 21min"),
                 qPrintable(text));
        const QString a = folder + "/-4x3 $a;b.mpg", b = folder + "/16x9 (ü).mpg";
        QCOMPARE(ActiveArea(a), target == "opt_vcd" ? "352:288" : "480:576");
        QTEST(ActiveArea(b), "wide");
        QCOMPARE(EntriesOf(folder).size(), 6);  // the clips, their streams and logs: no stand-in
        const ToolRun image =
            RunProgram("vcdimager", {"-t", type, "-c", "d.cue", "-b", "d.bin", a, b}, folder);
        QVERIFY2(image.exitCode == 0, image.errors);
        QFETCH(QString, detected);
        QVERIFY(RunProgram("vcd-info", {"--cue-file", "d.cue"}, folder)
                    .out.contains(detected.toUtf8()));
    }

    // Each row's files lie in the test's folder, with an older "old.mpg"; nothing of them is
    // lost, whether Go refuses (one box, no job) or the job cannot convert a file.
    void mpegmaker_refusal_data() {
        QTest::addColumn<QStringList>("inputs");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("box");  // the start of the first box
        QTest::newRow("no video, an older output") << QStringList{"old.mp4"} << ""
                                                   << "These files exist already:";
        QTest::newRow("missing output folder") << QStringList{"a.mp4"} << "gone"
                                               << "The folder does not exist";
        QTest::newRow("output over its input") << QStringList{"old.mpg"} << ""
                                               << "This file would be written over";
        QTest::newRow("two inputs, one name") << QStringList{"a.mp4", "sub/a.mkv"} << ""
                                              << "Two of the video files would be made into one";
    }

    void mpegmaker_refusal() {
        QFETCH(QStringList, inputs);
        QFETCH(QString, folder);
        Fixture f("mpegmaker", TORVANE_APP_DIR);
        QDir(f.work.path()).mkpath("sub");
        for (QString& name : inputs) {
            name = f.work.filePath(name);
            QVERIFY(QFile::exists(name) || WriteBytes(name, "no video"));
        }
        QVERIFY(WriteBytes(f.work.filePath("old.mpg"), "an older file") &&
                WriteBytes(f.work.filePath("old.log"), "a log of the user's"));
        Pick(f, inputs, f.work.filePath(folder));
        f.fakes.boxes.answers = {vbYes};
        f.dialog.cmd_rip->click();
        QFETCH(QString, box);
        QVERIFY2(f.fakes.boxes.shown.at(0).text.startsWith(box),
                 qPrintable(f.fakes.boxes.shown.at(0).text));
        const bool job = box.startsWith("These");  // Yes, the older files may go: the job fails
        QVERIFY(!job || f.fakes.boxes.shown.at(0).text.contains("old.log"));
        if (job) {
            QVERIFY(WaitForPause(f.dialog.frame));
            PressKeyInConsole();
            QVERIFY(WaitForIdle(f.dialog.frame));
            const QString report = f.fakes.boxes.shown.at(1).text;
            QVERIFY2(report.startsWith("Finished!  0 of 1 files converted.") &&
                         report.contains("Invalid data found") &&
                         report.contains("is as it was:\r"),
                     qPrintable(report));
        }
        QCOMPARE(f.fakes.boxes.shown.size(), job ? 2u : 1u);
        QCOMPARE(ReadBytes(f.work.filePath("old.mpg")), QByteArray("an older file"));
    }
};

QTEST_MAIN(MpegmakerDialogTest)
#include "mpegmaker_dialog_test.moc"
