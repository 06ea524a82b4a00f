// The pure parts of the tool folder's adapters. Authoring: vcdxbuild's --gui output read and
// split between log and console with its progress figures, argument files, and the fork's
// switches refused where they name no image vcdxbuild can make. Reading:
// the disc layout the adapters work out themselves, the bytes of sectors expanded from 2336
// to 2352 bytes and the seeks in them, the track starts read from ENTRIES.VCD and their times
// in the cue sheet. Images made in the tests are a few seconds long; the rows here reach
// the minutes and the malformed entries that those images never show.

#include "tools/adapters/authoring/arg_files.h"
#include "tools/adapters/authoring/build_log.h"
#include "tools/adapters/authoring/lk_build_args.h"
#include "tools/adapters/authoring/tool_capture.h"
#include "tools/adapters/reading/vcd_toc.h"

#include <QTest>
#include <cerrno>
#include <limits>
#include <vector>

using namespace authoring;

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

std::string S(const QByteArray& bytes) {
    return bytes.toStdString();
}

QByteArray B(const std::string& text) {
    return QByteArray::fromStdString(text);
}

const QByteArray kFinished =
    R"(<log level="information">finished ok, image created with 1879 sectors [00:25:04]</log>)";

}  // namespace

Q_DECLARE_METATYPE(std::vector<std::uint32_t>)

class ToolFolderParsingTest : public QObject {
    Q_OBJECT
private slots:
    void expandedSectorCarriesItsDiscAddress_data() {
        QTest::addColumn<quint32>("lsn");
        QTest::addColumn<int>("from");  // in the 2352-byte sector
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("first sector: sync, then the time after the lead-in; ends in the header")
            << 0u << 0 << QByteArray::fromHex("00ffffffffffffffffffff00000200");
        QTest::newRow("ten minutes: two BCD digits, Mode 2, then the data")
            << 44850u << 12 << QByteArray("\x10\x00\x00\x02", 4) + "data";
    }

    void expandedSectorCarriesItsDiscAddress() {
        QFETCH(quint32, lsn);
        QFETCH(int, from);
        QFETCH(QByteArray, bytes);
        const unsigned char data[4] = {'d', 'a', 't', 'a'};  // the start of its 2336 bytes
        QByteArray out(bytes.size(), '?');
        reading::CopyRawBytes(lsn, data, std::size_t(from), std::size_t(out.size()), out.data());
        QCOMPARE(out.toHex(), bytes.toHex());
    }

    void viewSeeksAsFseekoDoes_data() {
        QTest::addColumn<int>("whence");
        QTest::addColumn<qint64>("offset");
        QTest::addColumn<qint64>("landed");  // from 100 of 4704 bytes; minus the error if none
        QTest::newRow("back from the end") << SEEK_END << qint64(-2352) << qint64(2352);
        QTest::newRow("before the start") << SEEK_CUR << qint64(-101) << qint64(-EINVAL);
        QTest::newRow("beyond what an offset holds")
            << SEEK_END << std::numeric_limits<qint64>::max() << qint64(-EOVERFLOW);
        QTest::newRow("no such origin") << 7 << qint64(0) << qint64(-EINVAL);
    }

    void viewSeeksAsFseekoDoes() {
        QFETCH(int, whence);
        QFETCH(qint64, offset);
        off64_t position = offset;
        const int error = reading::SeekPosition(100, 4704, whence, &position);
        QTEST(error != 0 ? -qint64(error) : qint64(position), "landed");
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
        const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
        QTEST(reading::SequenceTrackStarts(bytes, std::size_t(data.size()), sectorCount), "starts");
    }

    void cueSheetPlacesTracksAtTheirTimes() {
        const std::string cue = reading::CueSheet("image.bin", {450, 4500, 44999});
        const QByteArray text = QByteArray::fromStdString(cue);
        QVERIFY(text.startsWith(
            "FILE \"image.bin\" BINARY\n  TRACK 01 MODE2/2352\n    INDEX 01 00:00:00\n"));
        QVERIFY(text.contains("  TRACK 02 MODE2/2352\n    INDEX 01 00:06:00\n"));
        QVERIFY(text.contains("  TRACK 03 MODE2/2352\n    INDEX 01 01:00:00\n"));
        QVERIFY(text.contains("  TRACK 04 MODE2/2352\n    INDEX 01 09:59:74\n"));
    }
    void buildOutputIsSplitBetweenLogAndConsole_data() {
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<QByteArrayList>("log");
        QTest::addColumn<QByteArray>("console");
        const QByteArray wipe(10, ' ');
        QTest::newRow("progress goes to the console only, each figure once")
            << QByteArrayList{R"(<progress operation="scan" id="s-0" position="0" size="200" />)",
                              R"(<progress operation="scan" id="s-0" position="1" size="200" />)",
                              R"(<progress operation="scan" id="s-0" position="2" size="200" />)",
                              R"(<log level="information">writing track 1</log>)",
                              R"(<progress operation="write" position="10" size="10" />)",
                              kFinished}
            << QByteArrayList{"   INFO: writing track 1",
                              "   INFO: finished ok, image created with 1879 sectors [00:25:04]"}
            << "\r#scan[s-0]: 0/200 ( 0%)" + wipe + "\r#scan[s-0]: 2/200 ( 1%)" + wipe +
                   "\n\r#write: 10/10 (100%)" + wipe + "\n";
        QTest::newRow("an error is shown on the console too, on a line of its own")
            << QByteArrayList{R"(<progress operation="write" position="5" size="10" />)",
                              R"(<log level="error">could not stat() file `a & b.mpg'</log>)"}
            << QByteArrayList{"**ERROR: could not stat() file `a & b.mpg'"}
            << "\r#write: 5/10 (50%)" + wipe + "\n**ERROR: could not stat() file `a & b.mpg'\n";
        QTest::newRow("each level gets the prefix of old; an unknown one is a warning")
            << QByteArrayList{R"(<log level="information">i</log>)",
                              R"(<log level="debug">d</log>)", R"(<log level="warning">w</log>)",
                              R"(<log level="assertion">a</log>)",
                              R"(<log level="Information">u</log>)"}
            << QByteArrayList{"   INFO: i", "--DEBUG: d", "++ WARN: w", "!ASSERT: a", "++ WARN: u"}
            << QByteArray("!ASSERT: a\n");
        QTest::newRow("markup in a message stays as written; one over two lines is joined")
            << QByteArrayList{R"(<log level="debug">adding a & <b> &amp; `x</log>y.mpg'</log>)",
                              R"(<log level="error">could not open `a)", "b.mpg'</log>"}
            << QByteArrayList{"--DEBUG: adding a & <b> &amp; `x</log>y.mpg'",
                              "**ERROR: could not open `a\nb.mpg'"}
            << QByteArray("**ERROR: could not open `a\nb.mpg'\n");
        QTest::newRow("an unclosed message ends at the next element; other lines pass as they are")
            << QByteArrayList{R"(<log level="error">broken)",
                              R"(<progress operation="write" position="1" size="2" />)",
                              "Usage: vcdxbuild [OPTION...] <xml-control-file>",
                              "",
                              "<log level=\"debug",
                              "<progress operation=\"scan\" id=\"s"}
            << QByteArrayList{"**ERROR: broken", "Usage: vcdxbuild [OPTION...] <xml-control-file>",
                              "", "<log level=\"debug", "<progress operation=\"scan\" id=\"s"}
            << "**ERROR: broken\n\r#write: 1/2 (50%)" + wipe + "\n";
        QTest::newRow("honest figures: no size yet, a hundredfold beyond 64 bits, past the size")
            << QByteArrayList{R"(<progress operation="write" position="7" size="0" />)",
                              R"(<progress operation="write" position="100000000000000000" )"
                              R"(size="9223372036854775807" />)",
                              R"(<progress operation="write" position="18525" size="18476" />)"}
            << QByteArrayList{}
            << "\r#write: 7/0 ( 0%)" + wipe +
                   "\r#write: 100000000000000000/9223372036854775807 ( 1%)" + wipe +
                   "\r#write: 18476/18476 (100%)" + wipe + "\n";
    }

    void buildOutputIsSplitBetweenLogAndConsole() {
        QFETCH(QByteArrayList, lines);
        QByteArrayList logLines;
        QByteArray consoleText;
        BuildLogTranslator translator([&](const std::string& line) { logLines << B(line); },
                                      [&](const std::string& text) { consoleText += B(text); });
        for (const QByteArray& line : lines)
            translator.Line(S(line));
        translator.Finish();
        QTEST(logLines, "log");
        QTEST(consoleText, "console");
    }

    void argumentFilesAreExpanded_data() {
        QTest::addColumn<QByteArray>("list");  // list.txt; a null array: there is none
        QTest::addColumn<QByteArrayList>("args");
        QTest::addColumn<QByteArrayList>("expanded");
        QTest::addColumn<QByteArray>("error");
        const QByteArrayList lone{"@list.txt"};
        QTest::newRow("CR LF between lines, none after the last, in place")
            << QByteArray("\"/in/a b.mpg\"\r\n\"/in/Ünï & c;$d.mpg\"")
            << QByteArrayList{"-v", "@list.txt", "--last"}
            << QByteArrayList{"-v", "/in/a b.mpg", "/in/Ünï & c;$d.mpg", "--last"} << QByteArray();
        QTest::newRow("line ends of every kind, and empty lines")
            << QByteArray("\"a.mpg\"\n\r\n\"b.mpg\"\r\n\r\n") << lone
            << QByteArrayList{"a.mpg", "b.mpg"} << QByteArray();
        QTest::newRow("no byte-order mark or text after the quote; no quotes, or an open one")
            << QByteArray("\xEF\xBB\xBF\"a.mpg\" \r\nplain name.mpg\r\n\"open.mpg") << lone
            << QByteArrayList{"a.mpg", "plain name.mpg", "open.mpg"} << QByteArray();
        QTest::newRow("a leading dash is not taken for a switch")
            << QByteArray("\"-x.mpg\"\r\n\"/abs/-y.mpg\"") << lone
            << QByteArrayList{"./-x.mpg", "/abs/-y.mpg"} << QByteArray();
        QTest::newRow("a list that cannot be read is named in the error")
            << QByteArray() << QByteArrayList{"-v", "@list.txt"} << QByteArrayList{"-v"}
            << QByteArray("cannot read the list file \"list.txt\": No such file or directory");
    }

    void argumentFilesAreExpanded() {
        QFETCH(QByteArray, list);
        QFETCH(QByteArrayList, args);
        const FileReader read = [&](const std::string& path) -> std::optional<std::string> {
            if (path != "list.txt" || list.isNull()) {
                errno = ENOENT;
                return std::nullopt;
            }
            return S(list);
        };
        std::vector<std::string> input;
        for (const QByteArray& arg : args)
            input.push_back(S(arg));
        const Expansion expansion = ExpandArgFiles(input, read);
        QByteArrayList got;
        for (const std::string& arg : expansion.args)
            got << B(arg);
        QTEST(got, "expanded");
        QTEST(B(expansion.error), "error");
    }

    void lkImageTypeWithoutItsFilesIsRefused() {
        std::string error;
        QVERIFY(!VcdxbuildArgsOfLk({"-x", "v.xml", "-i", "iso", "-b", "m.iso", "-v", "2"}, &error));
        QCOMPARE(B(error), "give -i cuebin with -c and -b, -i tocimg with -c, or -i nrg with -b");
    }

    // Pipe reads can end anywhere, even between CR and LF; the lines come out the same.
    void linesSurviveAnySplitOfTheOutput() {
        const std::string output = "first\r\n<log level=\"x\">ü</log>\n\nlast";
        const QByteArrayList expected{"first", "<log level=\"x\">ü</log>", "", "last"};
        for (std::size_t split = 0; split <= output.size(); ++split) {
            QByteArrayList lines;
            const LineSink sink = [&](const std::string& line) { lines << B(line); };
            std::string pending = output.substr(0, split);
            TakeLines(pending, sink, false);
            pending += output.substr(split);
            TakeLines(pending, sink, false);
            TakeLines(pending, sink, true);
            QCOMPARE(lines, expected);
        }
    }
};

QTEST_GUILESS_MAIN(ToolFolderParsingTest)
#include "toolfolder_parsing_test.moc"
