// vcdxbuild.exe on the shared media, started by the job script line that its dialog writes,
// in folders whose names hold blanks, shell characters, markup and non-ASCII letters: the
// log passes the dialog's success test, the size it reports is the image's, and exactly the
// expected files are made.

#include "core/image_size_report.h"
#include "core/mod_general.h"
#include "tests/support/tool_run.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

namespace {

int Sectors(const ImageSize& size) {
    return (size.minutes * 60 + size.seconds) * 75 + size.sectors;
}

}  // namespace

class BuildToolsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        QVERIFY(work_.isValid());
        in_ = FreshFolder(work_.path(), QStringLiteral("proj ü & co; $x"));
        // The folder's name and the clip's together hold "</log>" in the middle of the path.
        QVERIFY(QDir().mkpath(in("a & <b> &amp; c<")));
        for (const QString name : {"clip one.mpg", "a & <b> &amp; c</log>.mpg"})
            QVERIFY(QFile::copy(Media("clip-vcd.mpg"), in(name)));
        const QStringList vcd{"--type=vcd2", "--output-file=vcd.xml", "clip one.mpg",
                              in("a & <b> &amp; c</log>.mpg")};
        QCOMPARE(RunProgram("/usr/bin/vcdxgen", vcd, in_).exitCode, 0);
        for (const QString name : {"svcd.xml", "clip-svcd.mpg"})
            QVERIFY(QFile::copy(Media(name), in(name)));
    }

    void vcdxbuildMakesTheImage_data() {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QByteArray>("switches");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("base");  // the output name less ".bin", ".cue" or ".toc"
        QTest::newRow("CUE/BIN, shell characters")
            << "vcd.xml" << QByteArray(" -v ") << "img $HOME; & <x> |y é"
            << "-movie (1)";
        QTest::newRow("CDRDAO/TOC of 2336-byte sectors")
            << "svcd.xml" << QByteArray("--sector-2336 -v --image-type=cdrdao") << "toc 2336"
            << "m";
    }

    void vcdxbuildMakesTheImage() {
        QFETCH(QString, project);
        QFETCH(QByteArray, switches);
        QFETCH(QString, folder);
        QFETCH(QString, base);
        const QString out = FreshFolder(work_.path(), folder), stem = out + "/" + base;
        const bool toc = switches.contains("cdrdao");
        const QByteArray files = toc ? " --cdrdao-file=" + Quoted(stem)
                                     : "--image-type=bincue --cue-file=" + Quoted(stem + ".cue") +
                                           " --bin-file=" + Quoted(stem + ".bin");
        const ToolRun run =
            RunScriptLine(Quoted(AppTool("vcdxbuild.exe ")) + " " + switches + " " + files + "  " +
                              Quoted(in(project)) + " > " + Quoted(out + "/log.txt"),
                          in_);
        QVERIFY(run.finished);
        const QByteArray log = ReadBytes(out + "/log.txt"), last = LastLine(log);
        QVERIFY2(LogSucceeded(log, "   INFO: finished ok"), last.constData());
        QVERIFY2(!log.contains("<log ") && !log.contains("#write"), log.right(300).constData());
        const int sectors = QRegularExpression(R"(created with (\d+) sectors \[\d\d:\d\d:\d\d\]$)")
                                .match(QString::fromUtf8(last))
                                .captured(1)
                                .toInt();
        QVERIFY2(sectors > 0, last.constData());
        QCOMPARE(Sectors(SizeAtLineEnd(last)), sectors);
        // The progress stays on the console, and ends at the size.
        QVERIFY2(QString::fromUtf8(run.errors)
                     .contains(QRegularExpression(R"(#write: (\d+)/\1 \(100%\))")),
                 run.errors.right(300).constData());
        qint64 imageBytes = 0;
        for (const QFileInfo& file : QDir(out).entryInfoList({"*.bin", "*.img"}, QDir::Files))
            imageBytes += file.size();
        QCOMPARE(imageBytes, qint64(sectors) * (switches.contains("2336") ? 2336 : 2352));
        QStringList made = QDir(out).entryList(QDir::Files);
        made.removeIf([](const QString& name) { return name.endsWith(".img"); });
        QStringList expected{"log.txt"};
        expected << (toc ? QStringList{base + ".toc"} : QStringList{base + ".bin", base + ".cue"});
        expected.sort();
        QCOMPARE(made, expected);
        if (project == QLatin1String("vcd.xml"))
            QVERIFY2(log.contains("\r\n--DEBUG: adding sequence #0, " +
                                  in("a & <b> &amp; c</log>.mpg").toUtf8() + "\r\n"),
                     log.constData());
    }

private:
    QString in(const QString& name) const { return in_ + "/" + name; }
    QTemporaryDir work_;
    QString in_;
};

QTEST_GUILESS_MAIN(BuildToolsTest)
#include "build_test.moc"
