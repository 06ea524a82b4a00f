// vcddebug.exe and vcdxrip.exe on discs made at test time, started with the switches of
// the dialogs and of the regenerator, on an image copied alone into a folder whose name
// holds blanks, shell characters, non-ASCII letters, a leading dash and an equal sign.
// After every run that folder holds just the image, and the adapter's temporary folder
// is gone. The discs are those of the shared media; the reference rip of each is what the
// real vcdxrip gives from its 2352-byte image with its cue sheet.

#include "core/mod_general.h"
#include "tests/support/tool_run.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

namespace {

const QString kVcddebug = QStringLiteral(TORVANE_APP_DIR "/VCDImager/vcddebug.exe");
const QString kVcdxrip = QStringLiteral(TORVANE_APP_DIR "/VCDImager/vcdxrip.exe");
const QString kS2336 = QStringLiteral("--sector-2336");
const QByteArray kWarning = "++ WARN: INFO.SVD: signature not found";
const QByteArray kDone = "   INFO: done";
const QString kXmlName = QStringLiteral("-videocd été=1.xml");

// A report with LF line ends and without its "Source:" line, which names the file read.
QByteArray Comparable(QByteArray report) {
    report.replace("\r\n", "\n");
    const int source = report.indexOf("\nSource: image file ");
    if (source >= 0)
        report.remove(source + 1, report.indexOf('\n', source + 1) - source);
    return report;
}

}  // namespace

class ReadTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        imageFolder_ = FreshFolder(scratch_.path(), QStringLiteral("dl & co; $HOME |<x>/Ünïcødé"));
        outputFolder_ = FreshFolder(scratch_.path(), QStringLiteral("out $dir; & <x>/_vtools"));
        tmp_ = FreshFolder(scratch_.path(), QStringLiteral("tmp"));
        imageName_ = QStringLiteral("-lost disc=1 ü.bin");
    }

    void cleanup() {
        QCOMPARE(EntriesOf(imageFolder_), QStringList{imageName_});
        QCOMPARE(EntriesOf(tmp_), QStringList());
    }

    void vcddebugReportsTheDisc_data() {
        QTest::addColumn<QString>("image");
        QTest::addColumn<QStringList>("switches");
        QTest::newRow("VCD, 2352, verbose") << "vcd-2352.bin" << QStringList{"-v"};
        QTest::newRow("VCD, 2336") << "vcd-2336.bin" << QStringList{kS2336, "-v"};
        QTest::newRow("SVCD, 2336, quiet") << "svcd-2336.bin" << QStringList{kS2336, "-q"};
    }

    void vcddebugReportsTheDisc() {
        QFETCH(QString, image);
        QFETCH(QStringList, switches);
        const ToolRun result = run(kVcddebug, image, switches);
        QVERIFY2(!result.crashed && result.exitCode == 0, result.errors.constData());
        QCOMPARE(result.out.count('\n'), result.out.count("\r\n"));
        QVERIFY(!result.out.contains(kWarning));
        // The whole structure, tracks included, as the real tool reports it from the 2352-byte
        // image with its cue sheet; the "Source:" line names the user's file.
        const QString cue = "--cue-file=" + Media(image.section('-', 0, 0) + "-2352.cue");
        const QStringList args =
            switches.contains("-q") ? QStringList{"-q", cue} : QStringList{cue};
        const QByteArray real = RunProgram("/usr/bin/vcd-info", args, {}).out;
        QVERIFY(real.contains("CD-ROM TRACKS (1 - 2)"));
        QCOMPARE(Comparable(result.out), Comparable(real));
        QVERIFY(result.out.contains("Source: image file `" + QFile::encodeName(imageFolder_) + "/" +
                                    QFile::encodeName(imageName_) + "'"));
    }

    void vcdxripGivesTheDiscsFiles_data() {
        QTest::addColumn<QString>("image");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("VCD, BIN of 2336") << "vcd-2336.bin" << QStringList{kS2336};
        QTest::newRow("SVCD, BIN of 2336") << "svcd-2336.bin" << QStringList{kS2336};
        QTest::newRow("VCD, NRG") << "vcd.nrg" << QStringList();
        QTest::newRow("--norip: the descriptor only") << "vcd-2352.bin" << QStringList{"--norip"};
        QTest::newRow("the other switches")
            << "vcd-2352.bin" << QStringList{"--no-ext-psd", "--nofiles", "--nosegments"};
    }

    void vcdxripGivesTheDiscsFiles() {
        QFETCH(QString, image);
        QFETCH(QStringList, options);
        // The disc whose reference rip is expected, or none.
        const QString mediaOf =
            options.contains("--norip") ? "" : image.section('-', 0, 0).section('.', 0, 0);
        const QString xml = outputFolder_ + "/" + kXmlName;
        const bool plainRip =
            !mediaOf.isEmpty() && (options.isEmpty() || options == QStringList{kS2336});
        options << "-v"
                << "--output-file=" + xml;
        const ToolRun result = run(kVcdxrip, image, options);
        QVERIFY2(!result.crashed && result.exitCode == 0, result.errors.constData());
        QVERIFY2(LogSucceeded(result.out, kDone), result.out.constData());
        QMap<QString, QByteArray> made = FilesIn(outputFolder_);
        // The descriptor's comment names the arguments the adapter was given, the user's image
        // among them, not its temporary cue sheet; the rest is what the real tool writes from
        // the disc's own cue sheet.
        QByteArray descriptor = made.take(kXmlName);
        const QByteArray comment = descriptor.split('\n').value(2);
        const QString given = (options << (image.endsWith(".nrg") ? "--nrg-file=" : "--bin-file=") +
                                              imageFolder_ + "/" + imageName_)
                                  .join(' ');
        QVERIFY2(comment.endsWith(" " + given.toUtf8().replace("--", "-=") + " -->"),
                 comment.constData());
        if (plainRip) {
            QByteArray real = ReadBytes(Media("ref-" + mediaOf + "/ref.xml"));
            QCOMPARE(descriptor.replace(comment, ""), real.replace(real.split('\n').value(2), ""));
        }
        QMap<QString, QByteArray> expected = FilesIn(Media("ref-" + mediaOf));
        expected.remove("ref.xml");
        QVERIFY(mediaOf.isEmpty() || expected.contains(QStringLiteral("avseq01.mpg")));
        QCOMPARE(made.keys(), expected.keys());
        QVERIFY(made == expected);
    }

    void whatCannotBeReadFailsTheJob_data() {
        QTest::addColumn<QString>("adapter");
        QTest::addColumn<QString>("image");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("logged");
        QTest::addColumn<QByteArray>("toolEnd");
        const QByteArray status = "ended with status";
        QTest::newRow("vcddebug: random bytes as 2336, no multiple of it")
            << kVcddebug << "random.bin" << QStringList{kS2336, "-v"} << kWarning << status;
        QTest::newRow("vcddebug: damaged INFO.VCD, vcd-info crashes")
            << kVcddebug << "damaged.bin" << QStringList{"-v"} << kWarning
            << QByteArray("ended by signal");
        const QStringList xml{"-v", "--output-file=videocd.xml"};
        QTest::newRow("vcdxrip: 2352-byte image read as 2336")
            << kVcdxrip << "svcd-2352.bin" << xml + QStringList{kS2336} << QByteArray()
            << QByteArray();
        QTest::newRow("vcdxrip: random bytes as 2336")
            << kVcdxrip << "random.bin" << xml + QStringList{kS2336} << QByteArray()
            << QByteArray();
    }

    void whatCannotBeReadFailsTheJob() {
        QFETCH(QString, adapter);
        QFETCH(QString, image);
        QFETCH(QStringList, options);
        QFETCH(QByteArray, logged);
        QFETCH(QByteArray, toolEnd);
        const ToolRun result = run(adapter, image, options);
        QVERIFY(!result.crashed && result.exitCode != 0);
        QVERIFY2(result.errors.contains(QFileInfo(adapter).fileName().toUtf8() + ": ") &&
                     result.errors.contains(toolEnd),
                 result.errors.constData());
        QVERIFY2(result.out.contains(logged + "\r\n") && !result.out.contains(kDone),
                 result.out.constData());
    }

private:
    // Copies `image` alone into the image folder and runs `adapter` in the output folder with
    // `args` and the image's switch, --nrg-file= for an NRG and --bin-file= for the rest.
    ToolRun run(const QString& adapter, const QString& image, QStringList args) {
        if (image.endsWith(QLatin1String(".nrg")))
            imageName_.replace(".bin", ".nrg");
        const QString copy = imageFolder_ + "/" + imageName_;
        QFile::copy(Media(image), copy);
        args << (image.endsWith(QLatin1String(".nrg")) ? "--nrg-file=" : "--bin-file=") + copy;
        const QString log = outputFolder_ + "/log.txt";
        ToolRun result = RunProgram(adapter, args, outputFolder_, log, tmp_);
        result.out = ReadBytes(log);
        QFile::remove(log);
        return result;
    }

    QTemporaryDir scratch_;
    QString imageFolder_, imageName_, outputFolder_, tmp_;
};

QTEST_MAIN(ReadTest)
#include "read_test.moc"
