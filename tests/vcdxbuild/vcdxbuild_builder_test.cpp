// The VCDXBUILD command line, job script, file names and report, verbatim, with the
// Windows separator and again with '/'.

#include "author/vcdxbuild_builder.h"

#include <QTest>

using namespace torvane;

class VcdxbuildBuilderTest : public QObject {
    Q_OBJECT
private slots:
    void commandLine_data();
    void commandLine();
    void script_data();
    void script();
    void fileNames_data();
    void fileNames();
    void report_data();
    void report();
};

namespace {

enum ImageType { CueBin, Toc };

VcdxbuildInputs Windows(ImageType type, bool s2336, const QString& output) {
    VcdxbuildInputs in;
    in.toolFolder = QStringLiteral("C:\\app\\VCDImager\\");
    in.input = QStringLiteral("C:\\proj\\videocd.xml");
    in.output = output;
    in.cueBin = type == CueBin;
    in.sector2336 = s2336;
    in.sep = QLatin1Char('\\');
    return in;
}

VcdxbuildInputs Posix(ImageType type, bool s2336, const QString& output) {
    VcdxbuildInputs in = Windows(type, s2336, output);
    in.toolFolder = QStringLiteral("/opt/app/VCDImager/");
    in.input = QStringLiteral("/home/u/my proj/video cd.xml");
    in.sep = QLatin1Char('/');
    return in;
}

QStringList Lines(const char* text) {
    return QString::fromUtf8(text).split(QLatin1Char('\n'));
}

const QByteArray kSizeLog =
    "   INFO: writing track 1 (ISO9660)...\r\n"
    "   INFO: finished ok, image created with 333440 sectors [74:03:40]\r\n";

}  // namespace

void VcdxbuildBuilderTest::commandLine_data() {
    QTest::addColumn<VcdxbuildInputs>("in");
    QTest::addColumn<QString>("expected");
    QTest::newRow("cue/bin")
        << Windows(CueBin, false, QStringLiteral("D:\\img\\movie.bin"))
        << R"("C:\app\VCDImager\vcdxbuild.exe "  -v --image-type=bincue --cue-file="D:\img\movie.cue" --bin-file="D:\img\movie.bin"  "C:\proj\videocd.xml" > "D:\img\log.txt")";
    QTest::newRow("toc, 2336")
        << Windows(Toc, true, QStringLiteral("D:\\img\\movie.toc"))
        << R"("C:\app\VCDImager\vcdxbuild.exe " --sector-2336 -v --image-type=cdrdao --cdrdao-file="D:\img\movie"  "C:\proj\videocd.xml" > "D:\img\log.txt")";
    QTest::newRow("cue/bin, 2336")
        << Windows(CueBin, true, QStringLiteral("D:\\img\\movie.bin"))
        << R"("C:\app\VCDImager\vcdxbuild.exe " --sector-2336 -v --image-type=bincue --cue-file="D:\img\movie.cue" --bin-file="D:\img\movie.bin"  "C:\proj\videocd.xml" > "D:\img\log.txt")";
    QTest::newRow("posix cue/bin")
        << Posix(CueBin, false, QStringLiteral("/srv/img/movie.bin"))
        << R"("/opt/app/VCDImager/vcdxbuild.exe "  -v --image-type=bincue --cue-file="/srv/img/movie.cue" --bin-file="/srv/img/movie.bin"  "/home/u/my proj/video cd.xml" > "/srv/img/log.txt")";
    QTest::newRow("posix toc, 2336")
        << Posix(Toc, true, QStringLiteral("/srv/img/movie.toc"))
        << R"("/opt/app/VCDImager/vcdxbuild.exe " --sector-2336 -v --image-type=cdrdao --cdrdao-file="/srv/img/movie"  "/home/u/my proj/video cd.xml" > "/srv/img/log.txt")";
}

void VcdxbuildBuilderTest::commandLine() {
    QFETCH(VcdxbuildInputs, in);
    QFETCH(QString, expected);
    QCOMPARE(BuildVcdxbuildJob(in).plan.commandLine, expected);
}

void VcdxbuildBuilderTest::script_data() {
    QTest::addColumn<VcdxbuildInputs>("in");
    QTest::addColumn<QString>("jobDir");
    QTest::addColumn<QString>("logPath");
    QTest::addColumn<QString>("cuePath");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("windows cue/bin")
        << Windows(CueBin, false, QStringLiteral("D:\\img\\movie.bin"))
        << QStringLiteral("C:\\proj\\") << QStringLiteral("D:\\img\\log.txt")
        << QStringLiteral("D:\\img\\movie.cue") << Lines(R"(echo off
cls
echo VCDXBUILD Tool - Batch File (quelmora productions)
echo ==================================================
echo Input XML File:   C:\proj\videocd.xml
echo Output directory: D:\img\
echo Output imagetype: bincue
echo Output image:     movie.bin
echo Option switches:   -v
echo.
echo Please wait for this process to complete. It may take
echo a few minutes.
"C:\app\VCDImager\vcdxbuild.exe "  -v --image-type=bincue --cue-file="D:\img\movie.cue" --bin-file="D:\img\movie.bin"  "C:\proj\videocd.xml" > "D:\img\log.txt"
echo.
echo Finished!
pause
cls
echo ***end***)");
    QTest::newRow("posix toc, 2336, image in the root")
        << Posix(Toc, true, QStringLiteral("/movie.toc")) << QStringLiteral("/home/u/my proj/")
        << QStringLiteral("/log.txt") << QString() << Lines(R"(echo off
cls
echo VCDXBUILD Tool - Batch File (quelmora productions)
echo ==================================================
echo Input XML File:   /home/u/my proj/video cd.xml
echo Output directory: /
echo Output imagetype: cdrdao
echo Output image:     movie.toc
echo Option switches:  --sector-2336 -v
echo.
echo Please wait for this process to complete. It may take
echo a few minutes.
"/opt/app/VCDImager/vcdxbuild.exe " --sector-2336 -v --image-type=cdrdao --cdrdao-file="/movie"  "/home/u/my proj/video cd.xml" > "/log.txt"
echo.
echo Finished!
pause
cls
echo ***end***)");
}

void VcdxbuildBuilderTest::script() {
    QFETCH(VcdxbuildInputs, in);
    QFETCH(QString, jobDir);
    QFETCH(QString, logPath);
    QFETCH(QString, cuePath);
    QFETCH(QStringList, lines);
    const VcdxbuildJob job = BuildVcdxbuildJob(in);
    QCOMPARE(job.plan.scriptLines, lines);
    QCOMPARE(job.plan.jobDir, jobDir);
    QCOMPARE(job.plan.scriptPath, jobDir + QStringLiteral("run.bat"));
    QCOMPARE(job.plan.logPath, logPath);
    QCOMPARE(job.cue_path, cuePath);
}

void VcdxbuildBuilderTest::fileNames_data() {
    QTest::addColumn<VcdxbuildInputs>("in");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("cuePath");
    const auto row = [](const char* name, VcdxbuildInputs in, const char* files,
                        const char* cuePath) {
        QTest::newRow(name) << in << QString::fromUtf8(files) << QString::fromUtf8(cuePath);
    };
    row("X.bin", Windows(CueBin, false, "D:\\i\\X.bin"),
        R"(--cue-file="D:\i\X.cue" --bin-file="D:\i\X.bin")", "D:\\i\\X.cue");
    row("X.BIN is not recognised", Windows(CueBin, false, "D:\\i\\X.BIN"),
        R"(--cue-file="D:\i\X.BIN.cue" --bin-file="D:\i\X.BIN.bin")", "D:\\i\\X.BIN.cue");
    row("X.iso", Windows(CueBin, false, "D:\\i\\X.iso"),
        R"(--cue-file="D:\i\X.iso.cue" --bin-file="D:\i\X.iso.bin")", "D:\\i\\X.iso.cue");
    row("toc X.toc", Windows(Toc, false, "D:\\i\\X.toc"), R"(--cdrdao-file="D:\i\X")", "");
    row("toc X.TOC is not recognised", Windows(Toc, false, "D:\\i\\X.TOC"),
        R"(--cdrdao-file="D:\i\X.TOC")", "");
    row("posix X.bin with blanks", Posix(CueBin, false, "/i/my movie.bin"),
        R"(--cue-file="/i/my movie.cue" --bin-file="/i/my movie.bin")", "/i/my movie.cue");
    row("posix -X.toc", Posix(Toc, false, "/i/-X.toc"), R"(--cdrdao-file="/i/-X")", "");
}

void VcdxbuildBuilderTest::fileNames() {
    QFETCH(VcdxbuildInputs, in);
    QFETCH(QString, files);
    QFETCH(QString, cuePath);
    const VcdxbuildSwitches sw = BuildVcdxbuildSwitches(in);
    QCOMPARE(sw.files, files);
    QCOMPARE(sw.cuePath, cuePath);
    QCOMPARE(BuildVcdxbuildJob(in).cue_path, cuePath);
}

void VcdxbuildBuilderTest::report_data() {
    QTest::addColumn<std::optional<QByteArray>>("log");
    QTest::addColumn<bool>("succeeded");
    QTest::addColumn<QString>("text");
    const QString failure = QStringLiteral(
        "There appears to have been an error!\r\rThe error may have been shown in the console "
        "window\rbefore it closed.  Otherwise, check your XML file.");
    const auto success = [](const char* sizeAndAdvice) {
        return QStringLiteral("The process has finished successfully!\r\r") +
               QString::fromUtf8(sizeAndAdvice) +
               QStringLiteral("\r\rDo you want to read the log file?");
    };
    QTest::newRow("size field 74/03/40")
        << std::optional<QByteArray>(kSizeLog) << true
        << success(
               "The image size is: 74 minutes, 3 seconds, 40 sectors.\r\r"
               "It may fit on a 74min/650MB CD-R disc with a small\rdegree of "
               "overburning.  Otherwise, use an 80min/700MB\rCD-R disc.");
    QTest::newRow("size field of the newer tool, only line ends behind")
        << std::optional<QByteArray>(
               "   INFO: start\r\n   INFO: finished ok, image created with 1879 sectors "
               "[00:25:04]\r\n\r\n\n\r")
        << true
        << success(
               "The image size is: 0 minutes, 25 seconds, 4 sectors.\r\r"
               "It should fit on a 21min/180MB (8 cm) CD-R disc.");
    QTest::newRow("success line followed by another line")
        << std::optional<QByteArray>(kSizeLog + "++ WARN: late warning\r\n") << false << failure;
    QTest::newRow("log that cannot be read") << std::optional<QByteArray>() << false << failure;
}

void VcdxbuildBuilderTest::report() {
    QFETCH(std::optional<QByteArray>, log);
    QFETCH(bool, succeeded);
    QFETCH(QString, text);
    const VcdxbuildReport report = BuildVcdxbuildReport(log);
    QCOMPARE(report.succeeded, succeeded);
    QCOMPARE(report.text, text);
}

QTEST_APPLESS_MAIN(VcdxbuildBuilderTest)
#include "vcdxbuild_builder_test.moc"
