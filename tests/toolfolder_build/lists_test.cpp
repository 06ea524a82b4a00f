// vcdxgen.exe and vcdimager.exe with "@list.txt" as the VCDXGEN and VCDIMAGER dialogs
// write it: one double-quoted path a line, CR LF between lines, none after the last. The
// job runs in the tool folder, which here is a copy of the adapters in a folder of the test.

#include "build_fixture.h"
#include "shell/image_size_report.h"
#include "shell/mod_general.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace torvane;
using namespace torvane::test;

namespace {

const QByteArray kXmlSuccess = "(Super) VideoCD xml description created successfully";

// The src of every sequence item of a VCDXGEN descriptor, in order.
QStringList SequenceSources(const QByteArray& xml) {
    QStringList sources;
    QXmlStreamReader reader(xml);
    while (reader.readNextStartElement() || !reader.atEnd()) {
        if (reader.isStartElement() && reader.name() == QLatin1String("sequence-item"))
            sources << reader.attributes().value(QLatin1String("src")).toString();
        if (!reader.isStartElement())
            reader.readNext();
    }
    return sources;
}

// The list text: each path in double quotes, CR LF between them, none after the last.
QByteArray ListText(const QStringList& paths) {
    QByteArrayList lines;
    for (const QString& path : paths)
        lines << Quoted(path);
    return lines.join("\r\n");
}

}  // namespace

class ListToolsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void vcdxgenDescribesEveryListedFile_data();
    void vcdxgenDescribesEveryListedFile();
    void vcdimagerBuildsTheListedFiles_data();
    void vcdimagerBuildsTheListedFiles();

private:
    QString clip(const QString& name) const { return clips_ + "/" + name; }
    QTemporaryDir work_;
    QString toolFolder_;
    QString clips_;
};

void ListToolsTest::initTestCase() {
    QVERIFY(work_.isValid());
    toolFolder_ = MakeFolder(work_.path(), QStringLiteral("app dir/VCDImager"));
    clips_ = MakeFolder(work_.path(), QStringLiteral("in dir ü & co; $x"));
    for (const QString name : {"vcdxgen.exe", "vcdimager.exe"})
        QVERIFY(QFile::copy(AppTool(name), toolFolder_ + "/" + name));
    QVERIFY(MakeClip(QStringLiteral("ntsc-vcd"), 3, clip("clip one.mpg")));
    QVERIFY(MakeClip(QStringLiteral("pal-svcd"), 3, clip("Süper (svcd).mpg")));
    QVERIFY(QFile::copy(clip("clip one.mpg"), clip("Ünïcødé & <2>.mpg")));
    QVERIFY(QFile::copy(clip("clip one.mpg"), toolFolder_ + "/-lead.mpg"));
}

void ListToolsTest::vcdxgenDescribesEveryListedFile_data() {
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QStringList>("described");
    const QString one = clip("clip one.mpg"), two = clip("Ünïcødé & <2>.mpg");
    QTest::newRow("three files, in list order")
        << QStringList{two, one, two} << QStringList{two, one, two};
    QTest::newRow("a relative name with a leading dash is a file, not a switch")
        << QStringList{"-lead.mpg", one} << QStringList{"./-lead.mpg", one};
}

void ListToolsTest::vcdxgenDescribesEveryListedFile() {
    QFETCH(QStringList, listed);
    QFETCH(QStringList, described);
    QTemporaryDir out;
    const QString xml = out.filePath(QStringLiteral("video cd é.xml"));
    const QString log = out.filePath(QStringLiteral("log.txt"));
    QVERIFY(WriteBytes(toolFolder_ + "/list.txt", ListText(listed)));
    const QByteArray line =
        "vcdxgen.exe  -v  --type=vcd2 -l VIDEOCD --info-album-id=MYVCD --volume-count=1 "
        "--volume-number=1 --output-file=" +
        Quoted(xml) + " @list.txt > " + Quoted(log);
    QVERIFY(RunScriptLine(line, toolFolder_).finished);

    const QByteArray text = ReadBytes(log);
    QVERIFY2(text.startsWith(kXmlSuccess), text.constData());
    QVERIFY(text.endsWith("\r\n"));
    QCOMPARE(SequenceSources(ReadBytes(xml)), described);
}

void ListToolsTest::vcdimagerBuildsTheListedFiles_data() {
    QTest::addColumn<QByteArray>("switches");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<int>("sectorSize");
    QTest::newRow("VCD 2.0, two files")
        << QByteArray(" -v  --type=vcd2")
        << QStringList{clip("clip one.mpg"), clip("Ünïcødé & <2>.mpg")} << 2352;
    QTest::newRow("SVCD, 2336-byte sectors, scan offsets")
        << QByteArray("--sector-2336 --update-scan-offsets -v  --type=svcd")
        << QStringList{clip("Süper (svcd).mpg")} << 2336;
}

void ListToolsTest::vcdimagerBuildsTheListedFiles() {
    QFETCH(QByteArray, switches);
    QFETCH(QStringList, listed);
    QFETCH(int, sectorSize);
    QTemporaryDir out;
    const QString base = out.filePath(QStringLiteral("my movie ü"));
    const QString log = out.filePath(QStringLiteral("log.txt"));
    QVERIFY(WriteBytes(toolFolder_ + "/list.txt", ListText(listed)));
    const QByteArray line = "vcdimager.exe " + switches +
                            " -l VIDEOCD --info-album-id=MYVCD --volume-count=1 "
                            "--volume-number=1 --cue-file=" +
                            Quoted(base + ".cue") + " --bin-file=" + Quoted(base + ".bin") +
                            " @list.txt > " + Quoted(log);
    QVERIFY(RunScriptLine(line, toolFolder_).finished);

    const QByteArray text = ReadBytes(log);
    QVERIFY2(LogSucceeded(text, "finished ok"), text.constData());
    const QByteArray last = LastLogLine(text);
    const QRegularExpression pattern(QStringLiteral(
        "^finished ok, image created with (\\d+) sectors \\[\\d\\d:\\d\\d:\\d\\d\\]"));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(last));
    QVERIFY2(match.hasMatch(), last.constData());
    const int sectors = match.captured(1).toInt();
    const ImageSize size = SizeAtFirstBracket(last);
    QCOMPARE((size.minutes * 60 + size.seconds) * 75 + size.sectors, sectors);
    QCOMPARE(QFileInfo(base + ".bin").size(), qint64(sectors) * sectorSize);
    QVERIFY(ReadBytes(base + ".cue").count("  TRACK ") == listed.size() + 1);
}

QTEST_GUILESS_MAIN(ListToolsTest)
#include "lists_test.moc"
