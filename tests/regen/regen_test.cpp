// The regenerator: its jobs, byte for byte with either separator, and the reading of its
// stage logs as vcddebug.exe really writes them; then the dialog through the real job
// engine, with Debian's tools on the shared media (a lone BIN in, a new pair out that rips
// to the disc's own clips), and with tools that hold a stage open, so that the dialog can
// be closed in the middle of each stage.

#include "additional/frm_regen.h"
#include "core/regen_builder.h"
#include "tests/support/job_driver.h"

#include <QLabel>

using namespace torvane;
using namespace torvane::test;

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

constexpr int kRunTimeoutMs = 60000;

struct Run {
    bool ended = false;
    QStringList results;  // the three result labels while the last box was open
    QStringList boxes;    // the texts of the boxes shown
};

}  // namespace

class RegenTest : public QObject {
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
        QTEST(plan.jobDir, "jobDir");
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
        QTEST(RegenDetectWarned(log), "warned");
        QTEST(RegenDiscType(log), "discType");
    }
    void init() {
        UseBuiltInterpreter();
        work_ = std::make_unique<QTemporaryDir>();
        in_ = FreshFolder(work_->path(), "dl & co; $HOME |<x>");
        out_ = FreshFolder(work_->path(), "new 'image' ü");
    }

    void cleanup() { f_.reset(); }

    void aRunEndsAsExpected_data() {
        QTest::addColumn<QString>("image");   // copied as the lone BIN; none: none picked
        QTest::addColumn<QString>("output");  // in the output folder; "=": the input itself
        QTest::addColumn<QString>("box");     // the one box; of a success, the report's description
        QTest::addColumn<QStringList>("results");
        const auto row = [](const char* name, const char* image, const char* output,
                            const QString& box, const QStringList& results = {}) {
            QTest::newRow(name) << QString(image) << QString(output) << box << results;
        };
        const QStringList success{"Success!", "Success!", "Success!"};
        const QString disc = "image of a %1 disc in %2 byte sectors.";
        row("VCD 2.0, 2352", "vcd-2352.bin", "-new disc.bin", disc.arg("VCD 2.0", "2352"), success);
        row("VCD 2.0, 2336: found on the second attempt", "vcd-2336.bin", "new.bin",
            disc.arg("VCD 2.0", "2336"), success);
        row("SVCD, 2352, named without .bin", "svcd-2352.bin", "plain", disc.arg("SVCD", "2352"),
            success);
        row("SVCD, 2336, over its own source: Yes", "svcd-2336.bin", "=", disc.arg("SVCD", "2336"),
            success);
        row("an MPEG clip is no disc", "clip-vcd.mpg", "x.bin",
            "The BIN file you selected isn't that of a S(VCD)!", {"Failed!", "", ""});
        row("both empty: the output first", "", "", "You have not set an output file!");
        row("no input", "", "n.bin", "You have not loaded an input XML file!");
        row("an input that is not there", "gone", "n.bin",
            "The BIN file could not be read:\r\r%in");
    }

    void aRunEndsAsExpected() {
        QFETCH(QString, image);
        QFETCH(QString, output);
        QFETCH(QString, box);
        QFETCH(QStringList, results);
        const QString input = image.isEmpty() ? QString() : in_ + "/lost ü & co.bin";
        if (!image.isEmpty() && image != "gone")
            QVERIFY(QFile::copy(Media(image), input));
        const QString bin = output == "=" ? input : output.isEmpty() ? output : out_ + "/" + output;
        const QString cue = (bin.endsWith(".bin") ? bin.chopped(4) : bin) + ".cue";
        open(TORVANE_APP_DIR);
        const Run run = go(input, bin, {vbYes});

        QVERIFY(run.ended && !f_->dialog.status && f_->dialog.cmd_rip->isEnabled());
        QVERIFY(!f_->dialog.isMinimized());
        QCOMPARE(run.results, results);
        if (!results.contains("Success!")) {
            QCOMPARE(run.boxes, QStringList{box.replace("%in", input)});
            QCOMPARE(EntriesOf(out_), QStringList());
            QVERIFY(image.isEmpty() || image == "gone" ||
                    ReadBytes(input) == ReadBytes(Media(image)));
            return;
        }
        const QString report = run.boxes.value(run.boxes.size() - 1);
        QVERIFY2(
            report.startsWith("The process has finished successfully!\r\rThe CUE/BIN files that "
                              "were regenerated is an \r" +
                              box + "\r\rThe image size is: 0 minutes, "),
            qPrintable(report));
        QVERIFY(report.endsWith("It should fit on a 21min/180MB (8 cm) CD-R disc."));
        QStringList pair{QFileInfo(bin).fileName(), QFileInfo(cue).fileName()};
        pair.sort();
        QCOMPARE(EntriesOf(QFileInfo(bin).path()), pair);
        // The sheet names the new BIN; the BIN rips to the disc's clips, read as a lone BIN
        // because the tools read no sheet of 2336-byte tracks.
        const bool s2336 = box.contains("2336");
        QVERIFY(ReadBytes(cue).startsWith("FILE " + test::Quoted(bin) + " BINARY\r\n  TRACK 01 MODE2/" +
                                          (s2336 ? "2336" : "2352")));
        const QString rip = FreshFolder(work_->path(), "rip");
        QStringList args{"--output-file=" + rip + "/v.xml", "--bin-file=" + bin};
        if (s2336)
            args.prepend("--sector-2336");
        QCOMPARE(RunProgram(AppTool("vcdxrip.exe"), args, rip).exitCode, 0);
        const QString ref = Media("ref-" + image.section('-', 0, 0));
        for (const QString& clip : QDir(ref).entryList({"*.mpg"}))
            QVERIFY2(ReadBytes(rip + "/" + clip) == ReadBytes(ref + "/" + clip), qPrintable(clip));
    }

    // No at the overwrite question, or a tool missing: nothing happens.
    void overwritingTheSourceNeedsAYes() {
        QVERIFY(WriteBytes(in_ + "/lost.bin", "not a disc"));
        const FakeAppFolder& app = open().app;
        app.addTool("vcddebug.exe", "");
        app.addTool("vcdxbuild.exe", "");
        Run run = go(in_ + "/lost.bin", in_ + "/x.bin");
        QCOMPARE(run.boxes,
                 QStringList{"The tool folder has no vcdxrip.exe:\r\r" + app.toolFolder()});
        open(TORVANE_APP_DIR);
        run = go(in_ + "/lost.bin", in_ + "/lost.bin", {vbNo});
        QCOMPARE(run.boxes, QStringList{"Are you sure you want to overwrite the \rexisting file?"});
        QVERIFY(!f_->dialog.status && f_->dialog.cmd_rip->isEnabled());
        QCOMPARE(EntriesOf(in_), QStringList{"lost.bin"});
    }

    void closingDuringAStageLeavesOnlyTheUsersFiles_data() {
        QTest::addColumn<int>("stage");
        QTest::addColumn<bool>("workFolderBefore");  // with a file of the user's in it
        QTest::newRow("stage 1") << 1 << false;
        QTest::newRow("stage 2") << 2 << false;
        QTest::newRow("stage 2, a work folder of the user's") << 2 << true;
        QTest::newRow("stage 3") << 3 << false;
        QTest::newRow("stage 3, a work folder of the user's, its avseq01.mpg rewritten")
            << 3 << true;
    }

    void closingDuringAStageLeavesOnlyTheUsersFiles() {
        QFETCH(int, stage);
        QFETCH(bool, workFolderBefore);
        // Each tool writes what the next stage needs, then the tool of `stage` holds it open.
        const FakeAppFolder& app = open().app;
        const QString pidFile = work_->filePath("tool.pid");
        const QByteArray hold = "echo $$ > '" + QFile::encodeName(pidFile) + "'; exec sleep 300\n";
        app.addTool("vcddebug.exe",
                    (stage == 1 ? hold : "") + "printf 'vcd-info\\r\\nSVCD detected\\r\\n'");
        app.addTool("vcdxrip.exe",
                    (stage == 2 ? hold : "") +
                        "printf rip > avseq01.mpg; printf 'x\\r\\n   INFO: done\\r\\n'");
        app.addTool("vcdxbuild.exe", hold);
        const QStringList mine{"avseq01.mpg", "mine.txt"};
        for (const QString& name : workFolderBefore ? mine : QStringList())
            QVERIFY(QDir().mkpath(out_ + "/_vtools") &&
                    WriteBytes(out_ + "/_vtools/" + name, "mine"));
        QVERIFY(WriteBytes(in_ + "/lost.bin", "disc"));
        start(in_ + "/lost.bin", out_ + "/new.bin", {vbYes});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pidFile), kJobStepTimeoutMs);
        const qint64 tool = ReadBytes(pidFile).trimmed().toLongLong();
        QCOMPARE(f_->dialog.status->row(stage).result->text(), "Working...");

        QVERIFY(f_->dialog.close());
        QCOMPARE(
            run_.boxes,
            QStringList{"The command is still running!  Are you\rsure that you want to quit?"});
        QTRY_VERIFY_WITH_TIMEOUT(ProcessGone(tool), kJobStepTimeoutMs);
        QCOMPARE(EntriesOf(in_), QStringList{"lost.bin"});
        QCOMPARE(ReadBytes(in_ + "/lost.bin"), QByteArray("disc"));
        QCOMPARE(EntriesOf(out_), workFolderBefore ? QStringList{"_vtools"} : QStringList());
        if (workFolderBefore)
            QVERIFY(EntriesOf(out_ + "/_vtools") == mine &&
                    ReadBytes(out_ + "/_vtools/avseq01.mpg") == "mine");
        for (const QWidget* window : QApplication::topLevelWidgets())
            QVERIFY(window->objectName() != "frm_regen_status");
    }

private:
    using Fixture = DialogFixture<frm_regen>;

    // A new dialog on the tools of `appDir`, or on a tool folder the test fills.
    Fixture& open(const QString& appDir = {}) {
        f_.reset();
        f_ = std::make_unique<Fixture>("regen", appDir);
        return *f_;
    }

    // Picks the two names and presses Go; `answers` go to the boxes in turn, and each box is
    // recorded in run_ with the stage results it saw.
    void start(const QString& input, const QString& output, std::deque<int> answers) {
        run_ = Run();
        f_->fakes.boxes.answers = answers;
        f_->fakes.boxes.onShow = [this](const MessageBoxRequest& box) {
            run_.boxes << box.text;
            run_.results.clear();
            for (int stage = 1; f_->dialog.status && stage <= 3; ++stage)
                run_.results << f_->dialog.status->row(stage).result->text();
        };
        f_->prepare(nullptr, {}, input, output);
        f_->dialog.cmd_rip->click();
    }

    // As start(), then waits until the run is over.
    Run go(const QString& input, const QString& output, std::deque<int> answers = {}) {
        start(input, output, answers);
        run_.ended = QTest::qWaitFor([this] { return !f_->dialog.job_running; }, kRunTimeoutMs);
        return run_;
    }

    Run run_;
    std::unique_ptr<QTemporaryDir> work_;  // outlives the dialog of each test
    QString in_, out_;
    std::unique_ptr<Fixture> f_;
};

QTEST_MAIN(RegenTest)
#include "regen_test.moc"
