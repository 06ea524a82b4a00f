// vcdxbuild.exe on projects made at test time, started by the job script lines of the
// VCDXBUILD dialog: the image files, the log that the dialog reads, the cue sheet that the
// subindex remover rewrites, and the progress that stays on the console.

#include "build_fixture.h"
#include "shell/image_size_report.h"
#include "shell/mod_general.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

namespace {

const QByteArray kSuccessLine = "   INFO: finished ok";

// "image created with N sectors" of the last line.
int SectorsOf(const QByteArray& lastLine) {
    static const QRegularExpression pattern(QStringLiteral("created with (\\d+) sectors"));
    return pattern.match(QString::fromLatin1(lastLine)).captured(1).toInt();
}

qint64 SizeOfFiles(const QString& folder, const QString& pattern) {
    qint64 size = 0;
    for (const QFileInfo& file : QDir(folder).entryInfoList({pattern}, QDir::Files))
        size += file.size();
    return size;
}

}  // namespace

class VcdxbuildAdapterTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void buildsTheImage_data();
    void buildsTheImage();
    void markupInNamesComesThroughIntact();
    void aMissingProjectFailsTheLog();

private:
    void checkCueSheet(const QString& stem);
    QString project(const QString& disc) const { return projectDir_ + "/" + disc + ".xml"; }
    QTemporaryDir work_;
    QString projectDir_;
    QString markupClip_;
};

void VcdxbuildAdapterTest::initTestCase() {
    QVERIFY(work_.isValid());
    projectDir_ = MakeFolder(work_.path(), QStringLiteral("proj ü & co; $x"));
    QVERIFY(!projectDir_.isEmpty());
    const QString vcdClip = projectDir_ + QStringLiteral("/clip one.mpg");
    const QString svcdClip = projectDir_ + QStringLiteral("/Süper clip.mpg");
    // The folder's name and the clip's together hold "</log>" in the middle of the path.
    QVERIFY(!MakeFolder(projectDir_, QStringLiteral("a & <b> &amp; c<")).isEmpty());
    markupClip_ = projectDir_ + QStringLiteral("/a & <b> &amp; c</log>.mpg");
    QVERIFY(MakeClip(QStringLiteral("ntsc-vcd"), 3, vcdClip));
    QVERIFY(MakeClip(QStringLiteral("pal-svcd"), 3, svcdClip));
    QVERIFY(QFile::copy(vcdClip, markupClip_));
    const QString vcdgen = QStringLiteral("/usr/bin/vcdxgen");
    QCOMPARE(
        RunProgram(vcdgen, {"--type=vcd2", "--output-file=" + project("vcd"), vcdClip, markupClip_},
                   projectDir_)
            .exitCode,
        0);
    QCOMPARE(RunProgram(vcdgen, {"--type=svcd", "--output-file=" + project("svcd"), svcdClip},
                        projectDir_)
                 .exitCode,
             0);
}

void VcdxbuildAdapterTest::buildsTheImage_data() {
    QTest::addColumn<QString>("disc");
    QTest::addColumn<bool>("sector2336");
    QTest::addColumn<bool>("toc");
    QTest::addColumn<QString>("outputFolder");
    QTest::addColumn<QString>("base");  // the output name less ".bin" / ".toc"
    QTest::newRow("CUE/BIN") << "vcd" << false << false << "img out é"
                             << "movie";
    QTest::newRow("CUE/BIN, 2336-byte sectors, shell characters")
        << "svcd" << true << false << "img $HOME; & <x> |y"
        << "-movie (1)";
    QTest::newRow("CDRDAO/TOC, 2336-byte sectors") << "svcd" << true << true << "toc 2336"
                                                   << "m";
}

void VcdxbuildAdapterTest::buildsTheImage() {
    QFETCH(QString, disc);
    QFETCH(bool, sector2336);
    QFETCH(bool, toc);
    QFETCH(QString, outputFolder);
    QFETCH(QString, base);
    const QString out = MakeFolder(work_.path(), outputFolder);
    const QString stem = out + "/" + base;
    const QString log = out + "/log.txt";
    const QByteArray fileSwitches =
        toc ? "--image-type=cdrdao --cdrdao-file=" + Quoted(stem)
            : "--image-type=bincue --cue-file=" + Quoted(stem + ".cue") +
                  " --bin-file=" + Quoted(stem + ".bin");
    const QByteArray line = Quoted(AppTool(QStringLiteral("vcdxbuild.exe "))) + " " +
                            (sector2336 ? "--sector-2336" : "") + " -v " + fileSwitches + "  " +
                            Quoted(project(disc)) + " > " + Quoted(log);
    const ToolRun run = RunScriptLine(line, projectDir_);
    QVERIFY(run.finished);

    const QByteArray text = ReadBytes(log);
    QVERIFY2(LogSucceeded(text, kSuccessLine), LastLogLine(text).constData());
    const QByteArray last = LastLogLine(text);
    QVERIFY2(QRegularExpression(QStringLiteral("\\[\\d\\d:\\d\\d:\\d\\d\\]$"))
                 .match(QString::fromLatin1(last))
                 .hasMatch(),
             last.constData());
    const ImageSize size = SizeAtLineEnd(last);
    const int sectors = SectorsOf(last);
    QVERIFY(sectors > 0);
    QCOMPARE((size.minutes * 60 + size.seconds) * 75 + size.sectors, sectors);
    const qint64 imageBytes =
        toc ? SizeOfFiles(out, base + "_*.img") : QFileInfo(stem + ".bin").size();
    QCOMPARE(imageBytes, qint64(sectors) * (sector2336 ? 2336 : 2352));

    if (!toc)
        checkCueSheet(stem);
    QVERIFY2(!text.contains("<log ") && !text.contains("<progress ") && !text.contains("#write"),
             text.right(300).constData());
    const QRegularExpression written(QStringLiteral("#write: \\d+/\\d+ \\(100%\\)"));
    QVERIFY2(written.match(QString::fromUtf8(run.errors)).hasMatch(),
             run.errors.right(300).constData());
    QStringList expected{"log.txt"};
    expected << (toc ? QStringList{base + ".toc"} : QStringList{base + ".bin", base + ".cue"});
    expected.sort();
    QStringList made = QDir(out).entryList(QDir::Files);
    made.removeIf([&](const QString& name) { return toc && name.endsWith(".img"); });
    QCOMPARE(made, expected);
}

// CR LF line ends and the indentation that the subindex remover matches.
void VcdxbuildAdapterTest::checkCueSheet(const QString& stem) {
    const QByteArray cue = ReadBytes(stem + ".cue");
    QVERIFY2(cue.startsWith("FILE " + Quoted(stem + ".bin") + " BINARY\r\n"), cue.constData());
    QCOMPARE(cue.count('\n'), cue.count("\r\n"));
    QVERIFY(cue.contains("\r\n    FLAGS DCP\r\n"));
    QVERIFY(cue.contains("\r\n    INDEX 01 00:00:00\r\n"));
    const QByteArray stripped = RemoveSubindices(cue);
    QVERIFY(!stripped.contains("FLAGS"));
    QCOMPARE(stripped.count("\r\n    INDEX 01 "), cue.count("\r\n  TRACK "));
}

void VcdxbuildAdapterTest::markupInNamesComesThroughIntact() {
    QTemporaryDir out;
    const QString log = out.filePath(QStringLiteral("log.txt"));
    const ToolRun run =
        RunProgram(AppTool(QStringLiteral("vcdxbuild.exe")),
                   {"-v", "--image-type=bincue", "--cue-file=" + out.filePath("x.cue"),
                    "--bin-file=" + out.filePath("x.bin"), project("vcd")},
                   projectDir_, log);
    QCOMPARE(run.exitCode, 0);
    const QByteArray text = ReadBytes(log);
    QVERIFY(LogSucceeded(text, kSuccessLine));
    const QRegularExpression line("\r\n--DEBUG: adding sequence #\\d+, " +
                                  QRegularExpression::escape(markupClip_) + "\r\n");
    QVERIFY2(line.match(QString::fromUtf8(text)).hasMatch(), text.constData());
}

void VcdxbuildAdapterTest::aMissingProjectFailsTheLog() {
    QTemporaryDir out;
    const QString log = out.filePath(QStringLiteral("log.txt"));
    const QString missing = projectDir_ + QStringLiteral("/no such & <project>.xml");
    const ToolRun run =
        RunProgram(AppTool(QStringLiteral("vcdxbuild.exe")),
                   {"-v", "--image-type=bincue", "--cue-file=" + out.filePath("y.cue"),
                    "--bin-file=" + out.filePath("y.bin"), missing},
                   projectDir_, log);
    QVERIFY(run.finished);
    QVERIFY(run.exitCode != 0);
    const QByteArray text = ReadBytes(log);
    QVERIFY(!LogSucceeded(text, kSuccessLine));
    QVERIFY2(text.contains("++ WARN: error while parsing file `" + missing.toUtf8() + "'"),
             text.constData());
    QVERIFY2(run.errors.contains("vcdxbuild.exe: vcdxbuild ended with status"),
             run.errors.constData());
    QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList{"log.txt"});
}

QTEST_GUILESS_MAIN(VcdxbuildAdapterTest)
#include "vcdxbuild_test.moc"
