// cdxa2mpeg.exe, which runs Debian's tool unchanged: the arguments of its job script line
// reach the tool as they stand. Its RIFF/CDXA input is made here from a track of a disc
// image, as Windows shows a media file copied off a disc.

#include "build_fixture.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace torvane::test;

namespace {

constexpr int kRawSector = 2352;
constexpr int kSubheaderAt = 16;  // behind the 12-byte sync and the 4-byte header
constexpr int kDataAt = 24;       // behind the subheader, which is given twice
constexpr int kForm2Data = 2324;
constexpr int kForm1Data = 2048;

// The start sector and the size of a file in the ISO 9660 tree of a 2352-byte image.
struct Extent {
    quint32 sector = 0;
    quint32 size = 0;
};

QByteArray UserData(const QByteArray& image, quint32 sector) {
    return image.mid(qint64(sector) * kRawSector + kDataAt, kForm1Data);
}

Extent FindEntry(const QByteArray& image, const Extent& dir, const QByteArray& name) {
    for (quint32 s = 0; s < dir.size / kForm1Data; ++s) {
        const QByteArray block = UserData(image, dir.sector + s);
        for (int at = 0; at < block.size() && quint8(block[at]) != 0; at += quint8(block[at])) {
            const QByteArray record = block.mid(at, quint8(block[at]));
            const QByteArray id = record.mid(33, quint8(record[32]));
            if (id == name || id == name + ";1")
                return {qFromLittleEndian<quint32>(record.constData() + 2),
                        qFromLittleEndian<quint32>(record.constData() + 10)};
        }
    }
    return {};
}

Extent FindFile(const QByteArray& image, const QList<QByteArray>& path) {
    const QByteArray root = UserData(image, 16).mid(156, 34);
    Extent at{qFromLittleEndian<quint32>(root.constData() + 2),
              qFromLittleEndian<quint32>(root.constData() + 10)};
    for (const QByteArray& name : path)
        at = FindEntry(image, at, name);
    return at;
}

// The file as Windows copies it: a RIFF/CDXA header, then the raw sectors.
QByteArray CdxaFile(const QByteArray& image, const Extent& file) {
    const QByteArray raw =
        image.mid(qint64(file.sector) * kRawSector, qint64(file.size / kForm1Data) * kRawSector);
    QByteArray fmt(16, '\0');  // owner ids, attributes, "XA", file number
    qToBigEndian<quint16>(0x1555, fmt.data() + 4);
    fmt.replace(6, 2, "XA");
    QByteArray riff = "RIFF" + QByteArray(4, '\0') + "CDXA" + "fmt " + QByteArray(4, '\0') + fmt +
                      "data" + QByteArray(4, '\0') + raw;
    qToLittleEndian<quint32>(riff.size() - 8, riff.data() + 4);
    qToLittleEndian<quint32>(16, riff.data() + 16);
    qToLittleEndian<quint32>(raw.size(), riff.data() + 40);
    return riff;
}

// The MPEG data of the file: the Form 2 data of every sector whose subheader marks
// video, audio or data; the empty sectors around the stream carry none.
QByteArray Payload(const QByteArray& image, const Extent& file) {
    QByteArray payload;
    for (quint32 s = 0; s < file.size / kForm1Data; ++s) {
        const qint64 at = qint64(file.sector + s) * kRawSector;
        if (quint8(image[at + kSubheaderAt + 2]) & 0x0E)
            payload += image.mid(at + kDataAt, kForm2Data);
    }
    return payload;
}

}  // namespace

class InspectToolsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cdxa2mpegGivesThePlainStream_data();
    void cdxa2mpegGivesThePlainStream();

private:
    QTemporaryDir work_;
    QString in_;
};

void InspectToolsTest::initTestCase() {
    QVERIFY(work_.isValid());
    in_ = MakeFolder(work_.path(), QStringLiteral("in ü & co; $x"));
    QVERIFY(MakeClip(QStringLiteral("ntsc-vcd"), 3, in_ + "/vcd clip.mpg"));
    QVERIFY(MakeClip(QStringLiteral("pal-svcd"), 3, in_ + "/svcd clip.mpg"));
    for (const QString disc : {"vcd", "svcd"}) {
        const QString type = disc == QLatin1String("vcd") ? "vcd2" : "svcd";
        QCOMPARE(RunProgram("/usr/bin/vcdimager",
                            {"--type=" + type, "--cue-file=" + disc + ".cue",
                             "--bin-file=" + disc + ".bin", disc + " clip.mpg"},
                            in_)
                     .exitCode,
                 0);
    }
}

void InspectToolsTest::cdxa2mpegGivesThePlainStream_data() {
    QTest::addColumn<QString>("disc");
    QTest::addColumn<QByteArrayList>("file");
    QTest::newRow("VCD") << "vcd" << QByteArrayList{"MPEGAV", "AVSEQ01.DAT"};
}

void InspectToolsTest::cdxa2mpegGivesThePlainStream() {
    QFETCH(QString, disc);
    QFETCH(QByteArrayList, file);
    const QByteArray image = ReadBytes(in_ + "/" + disc + ".bin");
    const Extent extent = FindFile(image, file);
    QVERIFY(extent.size > 0);
    const QByteArray payload = Payload(image, extent);
    QVERIFY(payload.size() > 100 * kForm2Data);
    const QString cdxa = in_ + "/" + QString::fromLatin1(file.last());
    QVERIFY(WriteBytes(cdxa, CdxaFile(image, extent)));

    const QString out = MakeFolder(work_.path(), QStringLiteral("plain ü; & |x"));
    const QString mpeg = out + "/-" + disc + " plain.mpg";
    const QByteArray line =
        Quoted(AppTool(QStringLiteral("cdxa2mpeg.exe"))) + " " + Quoted(cdxa) + " " + Quoted(mpeg);
    QVERIFY(RunScriptLine(line, out).finished);
    const QByteArray plain = ReadBytes(mpeg);
    QCOMPARE(plain.size(), payload.size());
    QVERIFY(plain == payload);
}

QTEST_GUILESS_MAIN(InspectToolsTest)
#include "inspect_test.moc"
