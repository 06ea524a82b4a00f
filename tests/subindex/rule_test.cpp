// The cue-sheet rule: copy-permit flags and subindices go, everything else is passed on
// byte for byte, joined by CR LF with nothing behind the last line.

#include "shell/mod_general.h"

#include <QTest>

using namespace torvane;

class SubindexRuleTest : public QObject {
    Q_OBJECT
private slots:
    void workedSheetKeepsTracksAndTheFirstTwoIndices();
    void linesAreJudgedByExactTextAtFixedPlaces_data();
    void linesAreJudgedByExactTextAtFixedPlaces();
    void sheetsOfMoreThan32767LinesWork();
};

namespace {

const QByteArray kCrLf("\r\n");

QByteArray Joined(const QList<QByteArray>& lines) {
    return lines.join(kCrLf);
}

}  // namespace

void SubindexRuleTest::workedSheetKeepsTracksAndTheFirstTwoIndices() {
    const QList<QByteArray> lines = {
        "FILE \"movie.bin\" BINARY",
        "  TRACK 01 MODE2/2352",
        "    FLAGS DCP",
        "    INDEX 01 00:00:00",
        "  TRACK 02 MODE2/2352",
        "    FLAGS DCP",
        "    INDEX 00 00:10:00",
        "    INDEX 01 00:12:00",
        "    INDEX 02 05:30:00",
        "    INDEX 03 11:00:00",
        "",
        "",
    };
    const QByteArray expected =
        Joined({lines[0], lines[1], lines[3], lines[4], lines[6], lines[7]});
    QCOMPARE(RemoveSubindices(Joined(lines) + kCrLf), expected);
}

void SubindexRuleTest::linesAreJudgedByExactTextAtFixedPlaces_data() {
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<QByteArray>("result");
    const QByteArray file("FILE \"a.bin\" BINARY");
    const auto row = [](const char* name, const QByteArray& sheet, const QByteArray& result) {
        QTest::newRow(name) << sheet << result;
    };
    const auto stays = [&](const char* name, const QByteArray& line) {
        row(name, file + kCrLf + line + kCrLf, file + kCrLf + line);
    };
    const auto goes = [&](const char* name, const QByteArray& line) {
        row(name, file + kCrLf + line + kCrLf + "  TRACK 02", file + kCrLf + "  TRACK 02");
    };
    row("empty sheet", "", "");
    row("line ends only", "\r\n\n\r\r\n\r", "");
    row("no line end behind the last line", file + kCrLf + "  TRACK 01",
        file + kCrLf + "  TRACK 01");
    row("mixed line ends behind the last line", file + kCrLf + "  TRACK 01\n\r\r\n\r\n",
        file + kCrLf + "  TRACK 01");
    row("lone LFs make one line", "FILE x\n    INDEX 02 00:00:00\n\n",
        "FILE x\n    INDEX 02 00:00:00");
    row("lone CR stays inside its line", "FILE x\r\r\n  TRACK 01", "FILE x\r\r\n  TRACK 01");
    row("bytes of any value pass", "REM \xc3\xa4\xff\x01\r\n    INDEX 03 00:00:00",
        "REM \xc3\xa4\xff\x01");
    stays("INDEX 00", "    INDEX 00 00:10:00");
    stays("INDEX with one digit 1", "    INDEX 1 00:00:00");
    stays("INDEX with nothing behind it", "    INDEX");
    stays("INDEX with a non-number", "    INDEX xx 00:00:00");
    stays("INDEX with a letter first", "    INDEX a2 00:00:00");
    stays("INDEX indented by two blanks", "  INDEX 02 00:00:00");
    stays("INDEX indented by a tab", "\tINDEX 02 00:00:00");
    stays("INDEX in lower case", "    index 02 00:00:00");
    stays("FLAGS DCP with a trailing blank", "    FLAGS DCP ");
    stays("FLAGS 4CH", "    FLAGS 4CH");
    stays("FLAGS DCP in lower case", "    flags dcp");
    goes("INDEX 02", "    INDEX 02 05:30:00");
    goes("INDEX 10: both digits read", "    INDEX 10 20:00:00");
    goes("INDEX 2: the blank ends the number", "    INDEX 2 00:00:00");
    goes("INDEX 02 with nothing behind it", "    INDEX 02");
    goes("INDEX with two blanks: the leading blank is skipped", "    INDEX  5 00:00:00");
    goes("FLAGS DCP", "    FLAGS DCP");
    row("first line dropped: no empty line in front", "    FLAGS DCP\r\n" + file, file);
    row("empty lines ahead of the first text vanish", "\r\n\r\n" + file + "\r\n\r\n  TRACK 01",
        file + "\r\n\r\n  TRACK 01");
    row("empty lines ahead of a dropped first line vanish", "\r\n    FLAGS DCP\r\n\r\n" + file,
        file);
    row("a blank line is text", "  \r\n" + file, "  \r\n" + file);
    row("empty lines in front of dropped last lines go",
        file + "\r\n\r\n\r\n    INDEX 02 00:00:00\r\n    FLAGS DCP", file);
    row("lone CR ending the last kept line goes", file + "\r\r\n    INDEX 02 00:00:00", file);
    row("a last line left as the flag goes too",
        file + "\r\n    FLAGS DCP\r\r\n    INDEX 03 00:00:00", file);
    row("all lines dropped", "    FLAGS DCP\r\n    INDEX 02 00:00:00\r\n", "");
}

void SubindexRuleTest::linesAreJudgedByExactTextAtFixedPlaces() {
    QFETCH(QByteArray, sheet);
    QFETCH(QByteArray, result);
    const QByteArray once = RemoveSubindices(sheet);
    QCOMPARE(once, result);
    QCOMPARE(RemoveSubindices(once), once);  // a cleaned sheet stays as it is
}

void SubindexRuleTest::sheetsOfMoreThan32767LinesWork() {
    const int tracks = 20000;
    QList<QByteArray> sheet{"FILE \"long.bin\" BINARY"};
    QList<QByteArray> kept = sheet;
    for (int track = 1; track <= tracks; ++track) {
        const QByteArray trackLine = "  TRACK " + QByteArray::number(track) + " MODE2/2352";
        const QByteArray indexLine("    INDEX 01 00:00:00");
        sheet << trackLine << indexLine << "    INDEX 02 00:01:00";
        kept << trackLine << indexLine;
    }
    const QByteArray result = RemoveSubindices(Joined(sheet));
    QCOMPARE(CountLineEnds(result), 2 * tracks);
    QVERIFY(result == Joined(kept));
}

QTEST_APPLESS_MAIN(SubindexRuleTest)
#include "rule_test.moc"
