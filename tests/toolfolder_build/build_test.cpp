// The authoring adapters on the shared media, started by the job script lines that their
// dialogs write, in folders whose names hold blanks, shell characters, markup and non-ASCII
// letters: the log passes the dialog's success test, the size it reports is the image's,
// and exactly the expected files are made.

#include "core/image_size_report.h"
#include "core/mod_general.h"
#include "tests/support/tool_run.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace torvane;
using namespace torvane::test;

namespace {

int Sectors(const ImageSize& size) {
    return (size.minutes * 60 + size.seconds) * 75 + size.sectors;
}

int Captured(const QRegularExpression& pattern, const QByteArray& text) {
    return pattern.match(QString::fromUtf8(text)).captured(1).toInt();
}

// The src of every sequence item of a descriptor, in order.
QStringList SequenceSources(const QByteArray& xml) {
    QStringList sources;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("sequence-item"))
            sources << reader.attributes().value(QLatin1String("src")).toString();
    return sources;
}

}  // namespace

class BuildToolsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        QVERIFY(work_.isValid());
        in_ = FreshFolder(work_.path(), QStringLiteral("proj ü & co; $x"));
        toolFolder_ = FreshFolder(work_.path(), QStringLiteral("app dir/VCDImager"));
        for (const QString name : {"vcdxgen.exe", "vcdimager.exe"})
            QVERIFY(QFile::copy(AppTool(name), toolFolder_ + "/" + name));
        // The folder's name and the clip's together hold "</log>" in the middle of the path.
        QVERIFY(QDir().mkpath(in("a & <b> &amp; c<")));
        for (const QString name : {"clip one.mpg", "a & <b> &amp; c</log>.mpg"})
            QVERIFY(QFile::copy(Media("clip-vcd.mpg"), in(name)));
        QVERIFY(QFile::copy(Media("clip-svcd.mpg"), in("Süper (svcd).mpg")));
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
        const int sectors =
            Captured(QRegularExpression(R"(created with (\d+) sectors \[\d\d:\d\d:\d\d\]$)"), last);
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

    // The fork's builder as the lkVCDxBUILD job starts it; its reader takes a BIN or a real NRG
    // back into the clips (Debian's vcdxrip rips nothing from a TOC image of several files).
    void lkvcdxbuildMakesEachImageType_data() {
        QTest::addColumn<QByteArray>("switches");  // the image type and file switches
        QTest::addColumn<QString>("made");         // empty: nothing may be made
        QTest::addColumn<QStringList>("rip");      // lkvcdxrip.exe's switches, if it can rip it
        QTest::newRow("cuebin, 2336-byte sectors")
            << QByteArray("cuebin -c \"m.cue\" -b \"m.bin\" -s") << "m.cue"
            << QStringList{"/s", "/o", ".", "/b", "m.bin"};
        QTest::newRow("tocimg") << QByteArray("tocimg -c \"m\"") << "m.toc" << QStringList();
        QTest::newRow("nrg: a real Nero image")
            << QByteArray("nrg -b \"m.nrg\" ") << "m.nrg" << QStringList{"/o", ".", "/n", "m.nrg"};
        QTest::newRow("an unknown type builds nothing")
            << QByteArray("iso -b \"m.iso\"") << "" << QStringList();
    }

    void lkvcdxbuildMakesEachImageType() {
        QFETCH(QByteArray, switches);
        QFETCH(QString, made);
        QFETCH(QStringList, rip);
        const QString out = FreshFolder(work_.path(), "lk " + QString(QTest::currentDataTag()));
        RunScriptLine(Quoted(TORVANE_APP_DIR "/lkVCDImager/lkvcdxbuild.exe") + " -x " +
                          Quoted(in("vcd.xml")) + " -i " +
                          switches.replace("\"m", "\"" + out.toUtf8() + "/m") + " -v 2 > " +
                          Quoted(out + "/log.txt"),
                      in_);
        QCOMPARE(LogSucceeded(ReadBytes(out + "/log.txt"), "   INFO: finished ok"),
                 !made.isEmpty());
        QVERIFY(made.isEmpty() ? EntriesOf(out) == QStringList{"log.txt"}
                               : QFile::exists(out + "/" + made));
        if (rip.isEmpty())
            return;
        QCOMPARE(RunProgram(TORVANE_APP_DIR "/lkVCDImager/lkvcdxrip.exe", rip, out).exitCode, 0);
        QVERIFY(ReadBytes(out + "/avseq01.mpg") == ReadBytes(Media("clip-vcd.mpg")) &&
                ReadBytes(out + "/avseq02.mpg") == ReadBytes(Media("clip-vcd.mpg")));
    }

    // The list as the VCDXGEN and VCDIMAGER dialogs write it into the tool folder, where the
    // job runs: one double-quoted path a line, CR LF between lines, none after the last.
    void listToolsTakeTheListedFiles_data() {
        QTest::addColumn<QByteArray>("line");  // less the list and the log
        QTest::addColumn<QStringList>("listed");
        QTest::addColumn<QStringList>("described");  // by vcdxgen; none: vcdimager's image
        QTest::addColumn<int>("sectorSize");
        const QString one = in("clip one.mpg"), two = in("a & <b> &amp; c</log>.mpg");
        const QByteArray gen =
            "vcdxgen.exe  -v  --type=vcd2 -l VIDEOCD --info-album-id=MYVCD "
            "--volume-count=1 --volume-number=1 --output-file=" +
            Quoted(work_.filePath("video cd é.xml"));
        const QByteArray image =
            " -l VIDEOCD --info-album-id=MYVCD --volume-count=1 "
            "--volume-number=1 --cue-file=" +
            Quoted(work_.filePath("my movie ü.cue")) +
            " --bin-file=" + Quoted(work_.filePath("my movie ü.bin"));
        QTest::newRow("vcdxgen: three files, in list order")
            << gen << QStringList{two, one, two} << QStringList{two, one, two} << 0;
        QTest::newRow("vcdimager: VCD 2.0, two files")
            << "vcdimager.exe  -v  --type=vcd2" + image << QStringList{one, two} << QStringList()
            << 2352;
        QTest::newRow("vcdimager: SVCD, 2336-byte sectors, scan offsets")
            << "vcdimager.exe --sector-2336 --update-scan-offsets -v  --type=svcd" + image
            << QStringList{in("Süper (svcd).mpg")} << QStringList() << 2336;
    }

    void listToolsTakeTheListedFiles() {
        QFETCH(QByteArray, line);
        QFETCH(QStringList, listed);
        QFETCH(QStringList, described);
        QFETCH(int, sectorSize);
        QByteArrayList list;
        for (const QString& path : listed)
            list << Quoted(path);
        QVERIFY(WriteBytes(toolFolder_ + "/list.txt", list.join("\r\n")));
        const QString log = work_.filePath("log.txt");
        QVERIFY(RunScriptLine(line + " @list.txt > " + Quoted(log), toolFolder_).finished);
        const QByteArray text = ReadBytes(log), last = LastLine(text);
        if (!sectorSize) {
            QVERIFY2(text.startsWith("(Super) VideoCD xml description created successfully") &&
                         text.endsWith("\r\n"),
                     text.constData());
            QCOMPARE(SequenceSources(ReadBytes(work_.filePath("video cd é.xml"))), described);
            return;
        }
        QVERIFY2(LogSucceeded(text, "finished ok"), text.constData());
        const int sectors = Captured(
            QRegularExpression("^finished ok, image created with (\\d+) sectors \\[\\d\\d:"), last);
        QVERIFY2(sectors > 0, last.constData());
        QCOMPARE(Sectors(SizeAtFirstBracket(last)), sectors);
        QCOMPARE(QFileInfo(work_.filePath("my movie ü.bin")).size(), qint64(sectors) * sectorSize);
        QCOMPARE(ReadBytes(work_.filePath("my movie ü.cue")).count("  TRACK "), listed.size() + 1);
    }

private:
    QString in(const QString& name) const { return in_ + "/" + name; }
    QTemporaryDir work_;
    QString in_, toolFolder_;
};

QTEST_GUILESS_MAIN(BuildToolsTest)
#include "build_test.moc"
