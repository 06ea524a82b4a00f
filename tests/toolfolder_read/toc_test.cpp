// The disc layout that the reading adapters work out themselves: the addresses written
// into sectors expanded from 2336 to 2352 bytes, the track starts read from ENTRIES.VCD,
// and their times in the cue sheet. Images made in the tests are a few seconds long; the
// rows here reach the minutes and the malformed entries that those images never show.

#include "tools/adapters/reading/vcd_toc.h"

#include <QTest>
#include <vector>

using namespace reading;

namespace {

using Entry = std::vector<unsigned char>;  // track, minute, second, frame (BCD)

QByteArray EntriesData(const QByteArray& id, const std::vector<Entry>& entries, int count = -1) {
    QByteArray data(2048, '\0');
    data.replace(0, 8, id.left(8));
    data[8] = 2;
    const int n = count < 0 ? int(entries.size()) : count;
    data[10] = char(n >> 8);
    data[11] = char(n & 0xff);
    for (std::size_t i = 0; i < entries.size(); ++i)
        for (int b = 0; b < 4; ++b)
            data[int(12 + i * 4 + b)] = char(entries[i][b]);
    return data;
}

}  // namespace

Q_DECLARE_METATYPE(std::vector<std::uint32_t>)

class TocTest : public QObject {
    Q_OBJECT
private slots:
    void expandedSectorCarriesItsDiscAddress_data() {
        QTest::addColumn<quint32>("lsn");
        QTest::addColumn<QByteArray>("msf");
        QTest::newRow("first sector: after the two-second lead-in")
            << 0u << QByteArray("\x00\x02\x00", 3);
        QTest::newRow("first of the second minute") << 4350u << QByteArray("\x01\x00\x00", 3);
        QTest::newRow("ten minutes: two BCD digits") << 44850u << QByteArray("\x10\x00\x00", 3);
    }

    void expandedSectorCarriesItsDiscAddress() {
        QFETCH(quint32, lsn);
        QFETCH(QByteArray, msf);
        unsigned char header[16];
        WriteSyncAndHeader(lsn, header);
        const QByteArray bytes(reinterpret_cast<const char*>(header), 16);
        QCOMPARE(bytes.left(12),
                 QByteArray("\x00\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\x00", 12));
        QCOMPARE(bytes.mid(12, 3).toHex(), msf.toHex());
        QCOMPARE(int(header[15]), 2);
    }

    void entriesGiveTheTrackStarts_data() {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<quint32>("sectorCount");
        QTest::addColumn<std::vector<std::uint32_t>>("starts");
        using Starts = std::vector<std::uint32_t>;
        const QByteArray vcd = "ENTRYVCD";
        QTest::newRow("one track at 00:08:00")
            << EntriesData(vcd, {{0x02, 0x00, 0x08, 0x00}}) << 898u << Starts{450};
        QTest::newRow("SVCD id, entries out of order: the lowest of each track")
            << EntriesData("ENTRYSVD", {{0x02, 0x00, 0x20, 0x00},
                                        {0x03, 0x01, 0x10, 0x00},
                                        {0x02, 0x00, 0x08, 0x00},
                                        {0x03, 0x00, 0x59, 0x74}})
            << 9000u << Starts{450, 4349};
        QTest::newRow("not an ENTRIES file")
            << EntriesData("INFOVCD_", {{0x02, 0, 0x08, 0}}) << 898u << Starts{};
        QTest::newRow("count beyond the limit of 500")
            << EntriesData(vcd, {{0x02, 0, 0x08, 0}}, 501) << 898u << Starts{};
        QTest::newRow("tracks 2 and 4 without 3")
            << EntriesData(vcd, {{0x02, 0, 0x08, 0}, {0x04, 0, 0x20, 0}}) << 9000u << Starts{};
        QTest::newRow("a track past the image's end")
            << EntriesData(vcd, {{0x02, 0, 0x08, 0}, {0x03, 0x01, 0, 0}}) << 4000u << Starts{};
        QTest::newRow("a byte that is no BCD number")
            << EntriesData(vcd, {{0x02, 0, 0x0a, 0}}) << 898u << Starts{};
    }

    void entriesGiveTheTrackStarts() {
        QFETCH(QByteArray, data);
        QFETCH(quint32, sectorCount);
        QFETCH(std::vector<std::uint32_t>, starts);
        const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
        QCOMPARE(SequenceTrackStarts(bytes, std::size_t(data.size()), sectorCount), starts);
    }

    void cueSheetPlacesTracksAtTheirTimes() {
        const std::string cue = CueSheet("image.bin", {450, 4500, 44999});
        const QByteArray text = QByteArray::fromStdString(cue);
        QVERIFY(text.startsWith(
            "FILE \"image.bin\" BINARY\n  TRACK 01 MODE2/2352\n    INDEX 01 00:00:00\n"));
        QVERIFY(text.contains("  TRACK 02 MODE2/2352\n    INDEX 01 00:06:00\n"));
        QVERIFY(text.contains("  TRACK 03 MODE2/2352\n    INDEX 01 01:00:00\n"));
        QVERIFY(text.contains("  TRACK 04 MODE2/2352\n    INDEX 01 09:59:74\n"));
    }
};

QTEST_MAIN(TocTest)
#include "toc_test.moc"
