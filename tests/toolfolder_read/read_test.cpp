// vcddebug.exe and vcdxrip.exe on discs made at test time, started with the switches of
// the dialogs and of the regenerator, on an image copied alone into a folder whose name
// holds blanks, shell characters, non-ASCII letters, a leading dash and an equal sign.
// After every run that folder holds just the image, and the adapter's temporary folder
// is gone.

#include "read_fixture.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using namespace torvane::test;

namespace {

const QString kVcddebug = QStringLiteral(TORVANE_APP_DIR "/VCDImager/vcddebug.exe");
const QString kVcdxrip = QStringLiteral(TORVANE_APP_DIR "/VCDImager/vcdxrip.exe");
const QString kS2336 = QStringLiteral("--sector-2336");
const QByteArray kWarning = "++ WARN: INFO.SVD: signature not found";
const QByteArray kDone = "   INFO: done";
const QString kXmlName = QStringLiteral("-videocd été=1.xml");

// The disc type as the regenerator reads it: the text from the start of the line that
// holds the first " detected" up to it; that line must not be the first.
QByteArray DiscType(const QByteArray& report) {
    const int p = report.indexOf(" detected");
    const int lineEnd = p < 0 ? -1 : report.lastIndexOf("\r\n", p);
    return lineEnd < 0 ? QByteArray() : report.mid(lineEnd + 2, p - lineEnd - 2);
}

// A report with LF line ends and without its "Source:" line, which names the file read.
QByteArray Comparable(QByteArray report) {
    report.replace("\r\n", "\n");
    const int source = report.indexOf("\nSource: image file ");
    if (source >= 0)
        report.remove(source + 1, report.indexOf('\n', source + 1) - source);
    return report;
}

// What Debian's vcd-info reports from `cueSheet`, with -q if `switches` hold it.
QByteArray RealReport(const QString& cueSheet, const QStringList& switches) {
    QStringList args{"--cue-file=" + cueSheet};
    if (switches.contains(QStringLiteral("-q")))
        args.prepend(QStringLiteral("-q"));
    QProcess process;
    process.start(QStringLiteral("/usr/bin/vcd-info"), args);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

}  // namespace

class ReadTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void vcddebugReportsTheDisc_data();
    void vcddebugReportsTheDisc();
    void vcddebugWarnsWhenTheImageCannotBeRead_data();
    void vcddebugWarnsWhenTheImageCannotBeRead();
    void vcdxripGivesTheDiscsFiles_data();
    void vcdxripGivesTheDiscsFiles();
    void vcdxripFailsOnWhatIsNoVcd_data();
    void vcdxripFailsOnWhatIsNoVcd();

private:
    AdapterRun run(const QString& adapter, const QString& image, QStringList args);
    ReadFixture fixture_;
    QString imageFolder_, imageName_, outputFolder_, tmp_;
};

void ReadTest::initTestCase() {
    QVERIFY(QFile::exists(kVcddebug) && QFile::exists(kVcdxrip));
    QVERIFY(fixture_.make());
}

void ReadTest::init() {
    imageFolder_ = FreshFolder(fixture_.scratch(), QStringLiteral("dl & co; $HOME |<x>/Ünïcødé"));
    outputFolder_ = FreshFolder(fixture_.scratch(), QStringLiteral("out $dir; & <x>/_vtools"));
    tmp_ = FreshFolder(fixture_.scratch(), QStringLiteral("tmp"));
    imageName_ = QStringLiteral("-lost disc=1 ü.bin");
}

void ReadTest::cleanup() {
    QCOMPARE(EntriesOf(imageFolder_), QStringList{imageName_});
    QCOMPARE(EntriesOf(tmp_), QStringList());
}

// Copies `image` alone into the image folder and runs `adapter` in the output folder with
// `args` and the image's switch, --nrg-file= for an NRG and --bin-file= for the rest.
AdapterRun ReadTest::run(const QString& adapter, const QString& image, QStringList args) {
    if (image.endsWith(QLatin1String(".nrg")))
        imageName_.replace(".bin", ".nrg");
    const QString copy = LoneCopy(fixture_.image(image), imageFolder_, imageName_);
    args << (image.endsWith(QLatin1String(".nrg")) ? "--nrg-file=" : "--bin-file=") + copy;
    return RunAdapter(adapter, args, outputFolder_, tmp_);
}

void ReadTest::vcddebugReportsTheDisc_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<QByteArray>("discType");
    QTest::newRow("VCD, 2352, verbose")
        << "vcd-2352.bin" << QStringList{"-v"} << QByteArray("VCD 2.0");
    QTest::newRow("VCD, 2336") << "vcd-2336.bin" << QStringList{kS2336, "-v"}
                               << QByteArray("VCD 2.0");
    QTest::newRow("SVCD, 2336, quiet")
        << "svcd-2336.bin" << QStringList{kS2336, "-q"} << QByteArray("SVCD");
}

void ReadTest::vcddebugReportsTheDisc() {
    QFETCH(QString, image);
    QFETCH(QStringList, switches);
    QFETCH(QByteArray, discType);
    const AdapterRun result = run(kVcddebug, image, switches);
    QVERIFY2(!result.crashed && result.exitCode == 0, result.errors.constData());
    QCOMPARE(DiscType(result.log), discType);
    QCOMPARE(result.log.count('\n'), result.log.count("\r\n"));
    QVERIFY(!result.log.contains(kWarning));
    // The whole structure, tracks included, as the real tool reports it from the 2352-byte
    // image with its cue sheet; the "Source:" line names the user's file.
    const QString cue = fixture_.image(image.section('-', 0, 0) + "-2352.cue");
    const QByteArray real = RealReport(cue, switches);
    QVERIFY(real.contains("CD-ROM TRACKS (1 - 2)"));
    QCOMPARE(Comparable(result.log), Comparable(real));
    QVERIFY(result.log.contains("Source: image file `" + QFile::encodeName(imageFolder_) + "/" +
                                QFile::encodeName(imageName_) + "'"));
}

void ReadTest::vcddebugWarnsWhenTheImageCannotBeRead_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<QByteArray>("toolEnd");
    const QByteArray failed = "ended with status";
    QTest::newRow("2336-byte image read as 2352") << "vcd-2336.bin" << QStringList{"-q"} << failed;
    QTest::newRow("2336-byte SVCD read as 2352") << "svcd-2336.bin" << QStringList{"-v"} << failed;
    QTest::newRow("damaged INFO.VCD: vcd-info crashes")
        << "damaged.bin" << QStringList{"-v"} << QByteArray("ended by signal");
}

void ReadTest::vcddebugWarnsWhenTheImageCannotBeRead() {
    QFETCH(QString, image);
    QFETCH(QStringList, switches);
    QFETCH(QByteArray, toolEnd);
    const AdapterRun result = run(kVcddebug, image, switches);
    QVERIFY2(result.log.contains(kWarning + "\r\n"), result.log.constData());
    QVERIFY(!result.crashed && result.exitCode != 0);
    QVERIFY2(result.errors.contains("vcddebug.exe: ") && result.errors.contains(toolEnd),
             result.errors.constData());
}

void ReadTest::vcdxripGivesTheDiscsFiles_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("mediaOf");  // the disc whose reference rip is expected, or none
    QTest::newRow("VCD, BIN of 2352") << "vcd-2352.bin" << QStringList() << "vcd";
    QTest::newRow("VCD, BIN of 2336") << "vcd-2336.bin" << QStringList{kS2336} << "vcd";
    QTest::newRow("SVCD, BIN of 2336") << "svcd-2336.bin" << QStringList{kS2336} << "svcd";
    QTest::newRow("VCD, NRG") << "vcd.nrg" << QStringList() << "vcd";
    QTest::newRow("--norip: the descriptor only") << "vcd-2352.bin" << QStringList{"--norip"} << "";
    QTest::newRow("the other switches")
        << "vcd-2352.bin" << QStringList{"--no-ext-psd", "--nofiles", "--nosegments"} << "vcd";
}

void ReadTest::vcdxripGivesTheDiscsFiles() {
    QFETCH(QString, image);
    QFETCH(QStringList, options);
    QFETCH(QString, mediaOf);
    const QString xml = outputFolder_ + "/" + kXmlName;
    const AdapterRun result = run(kVcdxrip, image,
                                  options << "-v"
                                          << "--output-file=" + xml);
    QVERIFY2(!result.crashed && result.exitCode == 0, result.errors.constData());
    QVERIFY2(LogPasses(result.log, kDone), result.log.constData());
    QMap<QString, QByteArray> made = FilesIn(outputFolder_);
    QVERIFY(made.take(kXmlName).contains("<sequence-items>"));
    const QMap<QString, QByteArray> expected = fixture_.referenceMedia(mediaOf);
    QVERIFY(mediaOf.isEmpty() || expected.contains(QStringLiteral("avseq01.mpg")));
    QCOMPARE(made.keys(), expected.keys());
    QVERIFY(made == expected);
}

void ReadTest::vcdxripFailsOnWhatIsNoVcd_data() {
    QTest::addColumn<QString>("image");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("2336-byte image read as 2352") << "vcd-2336.bin" << QStringList();
    QTest::newRow("2352-byte image read as 2336") << "svcd-2352.bin" << QStringList{kS2336};
    QTest::newRow("an MPEG clip") << "vcd.mpg" << QStringList();
    QTest::newRow("random bytes as 2336") << "random.bin" << QStringList{kS2336};
}

void ReadTest::vcdxripFailsOnWhatIsNoVcd() {
    QFETCH(QString, image);
    QFETCH(QStringList, options);
    const AdapterRun result = run(kVcdxrip, image,
                                  options << "-v"
                                          << "--output-file=videocd.xml");
    QVERIFY(!result.crashed && result.exitCode != 0);
    QVERIFY2(result.errors.contains("vcdxrip.exe: "), result.errors.constData());
    QVERIFY(!result.log.contains(kDone));
}

QTEST_MAIN(ReadTest)
#include "read_test.moc"
