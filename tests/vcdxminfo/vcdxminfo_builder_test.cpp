// The VCDXMINFO command line and job script, verbatim, with both separators.

#include "inspect/vcdxminfo_builder.h"

#include <QTest>

using namespace torvane;

class VcdxminfoBuilderTest : public QObject {
    Q_OBJECT
private slots:
    void commandLine_data();
    void commandLine();
    void script_data();
    void script();
};

namespace {

VcdxminfoInputs Windows(bool generic, bool aps, bool relaxed) {
    VcdxminfoInputs in;
    in.toolFolder = QStringLiteral("C:\\App\\VCDImager\\");
    in.input = QStringLiteral("D:\\in\\clip.mpg");
    in.output = QStringLiteral("D:\\out\\report.xml");
    in.generic = generic;
    in.aps = aps;
    in.apsRelaxed = relaxed;
    in.sep = QLatin1Char('\\');
    return in;
}

VcdxminfoInputs Posix(bool generic, bool aps, bool relaxed) {
    VcdxminfoInputs in = Windows(generic, aps, relaxed);
    in.toolFolder = QStringLiteral("/opt/app/VCDImager/");
    in.input = QStringLiteral("/in/clip one.mpg");
    in.output = QStringLiteral("/out/report.xml");
    in.sep = QLatin1Char('/');
    return in;
}

}  // namespace

void VcdxminfoBuilderTest::commandLine_data() {
    QTest::addColumn<VcdxminfoInputs>("in");
    QTest::addColumn<QString>("expected");
    QTest::newRow("defaults")
        << Windows(true, true, false)
        << R"("C:\App\VCDImager\vcdxminfo.exe" -i -a -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
    QTest::newRow("aps only: two blanks after the quote")
        << Windows(false, true, false)
        << R"("C:\App\VCDImager\vcdxminfo.exe"  -a -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
    QTest::newRow("none: two blanks then -v")
        << Windows(false, false, false)
        << R"("C:\App\VCDImager\vcdxminfo.exe"  -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
    QTest::newRow("relaxed with aps")
        << Windows(true, true, true)
        << R"("C:\App\VCDImager\vcdxminfo.exe" -i -a --relaxed-aps -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
    QTest::newRow("relaxed ignored without aps")
        << Windows(true, false, true)
        << R"("C:\App\VCDImager\vcdxminfo.exe" -i -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
    QTest::newRow("posix")
        << Posix(true, true, false)
        << R"("/opt/app/VCDImager/vcdxminfo.exe" -i -a -v  -p --output-file="/out/report.xml" "/in/clip one.mpg")";
}

void VcdxminfoBuilderTest::commandLine() {
    QFETCH(VcdxminfoInputs, in);
    QFETCH(QString, expected);
    QCOMPARE(BuildVcdxminfoJob(in).commandLine, expected);
}

void VcdxminfoBuilderTest::script_data() {
    QTest::addColumn<VcdxminfoInputs>("in");
    QTest::addColumn<QString>("jobDir");
    QTest::addColumn<QString>("script");
    const QString rule = QStringLiteral("echo ") + QString(50, QLatin1Char('='));
    QTest::newRow("windows")
        << Windows(true, true, false) << QStringLiteral("D:\\out\\")
        << QStringLiteral(
               "echo off\r\ncls\r\n"
               "echo VCDXMINFO Tool - Batch File (quelmora productions)\r\n") +
               rule +
               QStringLiteral(
                   "\r\necho Input MPEG File:  D:\\in\\clip.mpg\r\n"
                   "echo Output XML File:  report.xml\r\n"
                   "echo Option switches:  -i -a -v -p\r\n"
                   "echo.\r\n"
                   "\"C:\\App\\VCDImager\\vcdxminfo.exe\" -i -a -v  -p "
                   "--output-file=\"D:\\out\\report.xml\" \"D:\\in\\clip.mpg\"\r\n"
                   "echo.\r\necho Finished!\r\npause\r\ncls\r\necho ***end***");
    QTest::newRow("posix, no switches")
        << Posix(false, false, false) << QStringLiteral("/out/")
        << QStringLiteral(
               "echo off\r\ncls\r\n"
               "echo VCDXMINFO Tool - Batch File (quelmora productions)\r\n") +
               rule +
               QStringLiteral(
                   "\r\necho Input MPEG File:  /in/clip one.mpg\r\n"
                   "echo Output XML File:  report.xml\r\n"
                   "echo Option switches:   -v -p\r\n"
                   "echo.\r\n"
                   "\"/opt/app/VCDImager/vcdxminfo.exe\"  -v  -p "
                   "--output-file=\"/out/report.xml\" \"/in/clip one.mpg\"\r\n"
                   "echo.\r\necho Finished!\r\npause\r\ncls\r\necho ***end***");
}

void VcdxminfoBuilderTest::script() {
    QFETCH(VcdxminfoInputs, in);
    QFETCH(QString, jobDir);
    QFETCH(QString, script);
    const JobPlan plan = BuildVcdxminfoJob(in);
    QCOMPARE(plan.scriptLines.join(QStringLiteral("\r\n")), script);
    QCOMPARE(plan.jobDir, jobDir);
    QCOMPARE(plan.scriptPath, jobDir + QStringLiteral("run.bat"));
    QVERIFY(plan.logPath.isEmpty());
}

QTEST_APPLESS_MAIN(VcdxminfoBuilderTest)
#include "vcdxminfo_builder_test.moc"
