// The VCDXRIP command line, job script, option switches, image-type check and report,
// verbatim, with the Windows separator and again with '/'.

#include "rip/vcdxrip_builder.h"

#include <QTest>

using namespace torvane;

class VcdxripBuilderTest : public QObject {
    Q_OBJECT
private slots:
    void commandLine_data();
    void commandLine();
    void script_data();
    void script();
    void imageType_data();
    void imageType();
    void report_data();
    void report();
};

namespace {

// Ticks by name: "s2336 noextpsd norip nofiles nosequences nosegments".
VcdxripInputs Windows(const QString& input, const QString& ticks = {}) {
    VcdxripInputs in;
    in.toolFolder = QStringLiteral("C:\\app\\VCDImager\\");
    in.input = input;
    in.output = QStringLiteral("E:\\rip\\disc.xml");
    const QStringList ticked = ticks.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    in.sector2336 = ticked.contains(QStringLiteral("s2336"));
    in.noExtPsd = ticked.contains(QStringLiteral("noextpsd"));
    in.norip = ticked.contains(QStringLiteral("norip"));
    in.noFiles = ticked.contains(QStringLiteral("nofiles"));
    in.noSequences = ticked.contains(QStringLiteral("nosequences"));
    in.noSegments = ticked.contains(QStringLiteral("nosegments"));
    in.sep = QLatin1Char('\\');
    return in;
}

VcdxripInputs Posix(const QString& input, const QString& output, const QString& ticks = {}) {
    VcdxripInputs in = Windows(input, ticks);
    in.toolFolder = QStringLiteral("/opt/app/VCDImager/");
    in.output = output;
    in.sep = QLatin1Char('/');
    return in;
}

QStringList Lines(const char* text) {
    return QString::fromUtf8(text).split(QLatin1Char('\n'));
}

const QString kNotRecognised = QStringLiteral(
    "The CD Image has not been recognised as either\rCUE/BIN image type or NRG (Nero Burning "
    "Rom)!");

}  // namespace

void VcdxripBuilderTest::commandLine_data() {
    QTest::addColumn<VcdxripInputs>("in");
    QTest::addColumn<QString>("expected");
    QTest::newRow("bin, nothing ticked")
        << Windows(QStringLiteral("D:\\img\\movie.bin"))
        << R"("C:\app\VCDImager\vcdxrip.exe "  -v --output-file="E:\rip\disc.xml" --bin-file="D:\img\movie.bin" > log.txt)";
    QTest::newRow("nrg, 2336 and norip over nofiles")
        << Windows(QStringLiteral("D:\\img\\movie.nrg"), QStringLiteral("s2336 norip nofiles"))
        << R"("C:\app\VCDImager\vcdxrip.exe "  --sector-2336 --norip -v --output-file="E:\rip\disc.xml" --nrg-file="D:\img\movie.nrg" > log.txt)";
    QTest::newRow("all but norip, in their fixed order")
        << Windows(QStringLiteral("D:\\m.bin"),
                   QStringLiteral("nosegments nosequences nofiles noextpsd s2336"))
        << R"("C:\app\VCDImager\vcdxrip.exe "  --sector-2336 --no-ext-psd --nofiles --nosequences --nosegments -v --output-file="E:\rip\disc.xml" --bin-file="D:\m.bin" > log.txt)";
    QTest::newRow("posix, blanks and shell characters")
        << Posix(QStringLiteral("/img/my movie & co.bin"), QStringLiteral("/rip/$x; dir/d.xml"))
        << R"("/opt/app/VCDImager/vcdxrip.exe "  -v --output-file="/rip/$x; dir/d.xml" --bin-file="/img/my movie & co.bin" > log.txt)";
    QTest::newRow("posix nrg, 2336 and norip over nofiles")
        << Posix(QStringLiteral("/img/movie.nrg"), QStringLiteral("/rip/disc.xml"),
                 QStringLiteral("s2336 norip nofiles"))
        << R"("/opt/app/VCDImager/vcdxrip.exe "  --sector-2336 --norip -v --output-file="/rip/disc.xml" --nrg-file="/img/movie.nrg" > log.txt)";
}

void VcdxripBuilderTest::commandLine() {
    QFETCH(VcdxripInputs, in);
    QFETCH(QString, expected);
    QCOMPARE(BuildVcdxripJob(in).commandLine, expected);
}

void VcdxripBuilderTest::script_data() {
    QTest::addColumn<VcdxripInputs>("in");
    QTest::addColumn<QString>("jobDir");
    QTest::addColumn<QStringList>("lines");
    VcdxripInputs root = Windows(QStringLiteral("D:\\img\\movie.bin"));
    root.output = QStringLiteral("E:\\disc.xml");
    QTest::newRow("windows, output in a drive's root")
        << root << QStringLiteral("E:\\") << Lines(R"(echo off
cls
echo VCDXRIP Tool - Batch File (quelmora productions)
echo ================================================
echo Input image:     D:\img\movie.bin
echo Ouput directory: E:\
echo Output XML file: disc.xml
echo Option switches:  -v
echo.
echo Please wait for this process to complete. It may take
echo a few minutes.
"C:\app\VCDImager\vcdxrip.exe "  -v --output-file="E:\disc.xml" --bin-file="D:\img\movie.bin" > log.txt
echo.
echo Finished!
pause
cls
echo ***end***)");
    QTest::newRow("posix, names with blanks, options")
        << Posix(QStringLiteral("/img/my movie.nrg"), QStringLiteral("/rip/out dir/my disc.xml"),
                 QStringLiteral("noextpsd nosegments"))
        << QStringLiteral("/rip/out dir/") << Lines(R"(echo off
cls
echo VCDXRIP Tool - Batch File (quelmora productions)
echo ================================================
echo Input image:     /img/my movie.nrg
echo Ouput directory: /rip/out dir/
echo Output XML file: my disc.xml
echo Option switches:  --no-ext-psd --nosegments -v
echo.
echo Please wait for this process to complete. It may take
echo a few minutes.
"/opt/app/VCDImager/vcdxrip.exe "  --no-ext-psd --nosegments -v --output-file="/rip/out dir/my disc.xml" --nrg-file="/img/my movie.nrg" > log.txt
echo.
echo Finished!
pause
cls
echo ***end***)");
}

void VcdxripBuilderTest::script() {
    QFETCH(VcdxripInputs, in);
    QFETCH(QString, jobDir);
    QFETCH(QStringList, lines);
    const JobPlan plan = BuildVcdxripJob(in);
    QCOMPARE(plan.scriptLines, lines);
    QCOMPARE(plan.jobDir, jobDir);
    QCOMPARE(plan.scriptPath, jobDir + QStringLiteral("run.bat"));
    QCOMPARE(plan.logPath, jobDir + QStringLiteral("log.txt"));
}

void VcdxripBuilderTest::imageType_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("inputSwitch");
    QTest::newRow(".bin") << "D:\\img\\movie.bin"
                          << R"(--bin-file="D:\img\movie.bin")";
    QTest::newRow(".nrg") << "D:\\img\\movie.nrg"
                          << R"(--nrg-file="D:\img\movie.nrg")";
    QTest::newRow("MOVIE.BIN") << "D:\\img\\MOVIE.BIN"
                               << "";
    QTest::newRow("movie.bin.txt") << "D:\\img\\movie.bin.txt"
                                   << "";
    QTest::newRow("posix, leading dash") << "/img/-movie.bin"
                                         << R"(--bin-file="/img/-movie.bin")";
}

void VcdxripBuilderTest::imageType() {
    QFETCH(QString, input);
    QFETCH(QString, inputSwitch);
    const VcdxripInputs in = Windows(input);
    QCOMPARE(VcdxripInputSwitch(in), inputSwitch);
    QCOMPARE(VcdxripValidation(in), inputSwitch.isEmpty() ? kNotRecognised : QString());
}

void VcdxripBuilderTest::report_data() {
    QTest::addColumn<std::optional<QByteArray>>("log");
    QTest::addColumn<bool>("succeeded");
    const auto row = [](const char* name, std::optional<QByteArray> log, bool succeeded) {
        QTest::newRow(name) << log << succeeded;
    };
    row("done", QByteArray("   INFO: extracting track 1\r\n   INFO: done\r\n"), true);
    row("more text behind done", QByteArray("x\r\n   INFO: done, 3 files\r\n"), true);
    row("done followed by another line", QByteArray("   INFO: done\r\n++ WARN: late warning\r\n"),
        false);
    row("one line end only", QByteArray("   INFO: done\r\n"), false);
    row("failure", QByteArray("   INFO: opening\r\n**ERROR: no such image\r\n"), false);
    row("log that cannot be read", std::nullopt, false);
}

void VcdxripBuilderTest::report() {
    QFETCH(std::optional<QByteArray>, log);
    QFETCH(bool, succeeded);
    const VcdxripReport report = BuildVcdxripReport(log);
    QCOMPARE(report.succeeded, succeeded);
    QCOMPARE(report.text,
             succeeded ? QStringLiteral("The process has finished successfully!\r\rDo you want "
                                        "to read the log file?")
                       : QStringLiteral("There appears to have been an error!\r\rThe error may "
                                        "have been shown in the console window\rbefore it "
                                        "closed."));
}

QTEST_APPLESS_MAIN(VcdxripBuilderTest)
#include "vcdxrip_builder_test.moc"
