// Reading a job log and judging it: line ends, the last line, the success test, and the
// whole-file reader that hands the log over byte for byte.

#include "shell/mod_general.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;

using OptionalBytes = std::optional<QByteArray>;
Q_DECLARE_METATYPE(OptionalBytes)

class LogAnalysisTest : public QObject {
    Q_OBJECT
private slots:
    void countsOnlyCarriageReturnLineFeedPairs_data();
    void countsOnlyCarriageReturnLineFeedPairs();
    void countGoesBeyondSixteenBits();
    void lastLineIsTheLastWithText_data();
    void lastLineIsTheLastWithText();
    void containsTextComparesExactly_data();
    void containsTextComparesExactly();
    void successNeedsTwoLineEndsAndTheLineAtTheStart_data();
    void successNeedsTwoLineEndsAndTheLineAtTheStart();
    void boxTextsBreakWithLoneCarriageReturns();
    void readsFilesByteForByte_data();
    void readsFilesByteForByte();
    void readingWhatIsNoReadableFileGivesNothing();
};

namespace {

// A literal with NULs in it, to its last byte.
template <int N>
QByteArray Bytes(const char (&text)[N]) {
    return QByteArray(text, N - 1);
}

}  // namespace

void LogAnalysisTest::countsOnlyCarriageReturnLineFeedPairs_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("one pair at the end") << QByteArray("done\r\n") << 1;
    QTest::newRow("two pairs in a row") << QByteArray("\r\n\r\n") << 2;
    QTest::newRow("lone CR") << QByteArray("a\rb") << 0;
    QTest::newRow("lone LF") << QByteArray("a\nb") << 0;
    QTest::newRow("LF CR is not a pair") << QByteArray("\n\r") << 0;
    QTest::newRow("CR CR LF") << QByteArray("\r\r\n") << 1;
    QTest::newRow("LF CR LF") << QByteArray("\n\r\n") << 1;
    QTest::newRow("pairs around a NUL") << Bytes("\r\n\0\r\n") << 2;
}

void LogAnalysisTest::countsOnlyCarriageReturnLineFeedPairs() {
    QFETCH(QByteArray, text);
    QFETCH(int, count);
    QCOMPARE(CountLineEnds(text), count);
}

void LogAnalysisTest::countGoesBeyondSixteenBits() {
    QCOMPARE(CountLineEnds(QByteArray("x\r\n").repeated(40000)), 40000);
}

void LogAnalysisTest::lastLineIsTheLastWithText_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("one line, no line end") << QByteArray("abc") << QByteArray("abc");
    QTest::newRow("last line without a line end") << QByteArray("a\r\nb") << QByteArray("b");
    QTest::newRow("last line with a line end") << QByteArray("a\r\nb\r\n") << QByteArray("b");
    QTest::newRow("blank lines behind it") << QByteArray("a\r\nb\r\n\r\n\r\n") << QByteArray("b");
    QTest::newRow("mixed trailing CRs and LFs")
        << QByteArray("a\r\nb\n\r\r\n\n\r") << QByteArray("b");
    QTest::newRow("trailing blanks stay") << QByteArray("a\r\nb  \r\n") << QByteArray("b  ");
    QTest::newRow("leading blanks stay")
        << QByteArray("x\r\n   INFO: done\r\n") << QByteArray("   INFO: done");
    QTest::newRow("lone LF separates nothing") << QByteArray("a\nb\r\n") << QByteArray("a\nb");
    QTest::newRow("lone CR separates nothing") << QByteArray("a\r\nb\rc") << QByteArray("b\rc");
    QTest::newRow("CR in front of the pair stays with the line before")
        << QByteArray("a\r\r\nb") << QByteArray("b");
    QTest::newRow("first line empty") << QByteArray("\r\nb") << QByteArray("b");
    QTest::newRow("blank line is a line with text") << QByteArray("a\r\n \r\n") << QByteArray(" ");
    QTest::newRow("empty text") << QByteArray() << QByteArray();
    QTest::newRow("pairs only") << QByteArray("\r\n\r\n") << QByteArray();
    QTest::newRow("mixed line ends only") << QByteArray("\n\r\r\n\n") << QByteArray();
}

void LogAnalysisTest::lastLineIsTheLastWithText() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, line);
    QCOMPARE(LastLine(text), line);
}

void LogAnalysisTest::containsTextComparesExactly_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<bool>("found");
    QTest::newRow("equal") << QByteArray("detected") << QByteArray("detected") << true;
    QTest::newRow("at the very end")
        << QByteArray("VCD detected") << QByteArray("detected") << true;
    QTest::newRow("pattern longer") << QByteArray("detect") << QByteArray("detected") << false;
    QTest::newRow("only partly at the end")
        << QByteArray("VCD detec") << QByteArray("detected") << false;
    QTest::newRow("case differs") << QByteArray("VCD DETECTED") << QByteArray("detected") << false;
    QTest::newRow("empty pattern") << QByteArray("text") << QByteArray() << false;
    QTest::newRow("empty text") << QByteArray() << QByteArray("x") << false;
    QTest::newRow("both empty") << QByteArray() << QByteArray() << false;
    QTest::newRow("behind a NUL") << Bytes("a\0b") << QByteArray("b") << true;
}

void LogAnalysisTest::containsTextComparesExactly() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, pattern);
    QFETCH(bool, found);
    QCOMPARE(ContainsText(text, pattern), found);
}

void LogAnalysisTest::successNeedsTwoLineEndsAndTheLineAtTheStart_data() {
    const QByteArray done("   INFO: done");
    QTest::addColumn<OptionalBytes>("log");
    QTest::addColumn<QByteArray>("successLine");
    QTest::addColumn<bool>("succeeded");
    QTest::newRow("log that cannot be read") << OptionalBytes() << done << false;
    QTest::newRow("empty log") << OptionalBytes(QByteArray()) << done << false;
    QTest::newRow("success alone, one line end")
        << OptionalBytes("   INFO: done\r\n") << done << false;
    QTest::newRow("two lines, only one line end")
        << OptionalBytes("start\r\n   INFO: done") << done << false;
    QTest::newRow("two lines, two line ends")
        << OptionalBytes("start\r\n   INFO: done\r\n") << done << true;
    QTest::newRow("three lines, last without line end")
        << OptionalBytes("a\r\nb\r\n   INFO: done") << done << true;
    QTest::newRow("more text behind the success line")
        << OptionalBytes("a\r\n   INFO: done, 3 files\r\n") << done << true;
    QTest::newRow("success only further along the line")
        << OptionalBytes("a\r\nnote:    INFO: done\r\n") << done << false;
    QTest::newRow("success then another line")
        << OptionalBytes("a\r\n   INFO: done\r\n++ WARN: late\r\n") << done << false;
    QTest::newRow("success then only line ends")
        << OptionalBytes("a\r\n   INFO: done\r\n\r\n\n\r") << done << true;
    QTest::newRow("leading blanks missing")
        << OptionalBytes("a\r\nINFO: done\r\n") << done << false;
    QTest::newRow("one leading blank too many")
        << OptionalBytes("a\r\n    INFO: done\r\n") << done << false;
    QTest::newRow("last line shorter than the success line")
        << OptionalBytes("a\r\n   INFO: do\r\n") << done << false;
    QTest::newRow("case differs") << OptionalBytes("a\r\n   info: done\r\n") << done << false;
    QTest::newRow("lone LFs are no line ends")
        << OptionalBytes("a\nb\n   INFO: done\n") << done << false;
    QTest::newRow("line ends counted anywhere")
        << OptionalBytes("\r\n\r\n   INFO: done") << done << true;
    QTest::newRow("success line of another tool")
        << OptionalBytes("a\r\nfinished ok, image created [00:25:04]\r\n")
        << QByteArray("finished ok") << true;
}

void LogAnalysisTest::successNeedsTwoLineEndsAndTheLineAtTheStart() {
    QFETCH(OptionalBytes, log);
    QFETCH(QByteArray, successLine);
    QFETCH(bool, succeeded);
    QCOMPARE(LogSucceeded(log, successLine), succeeded);
}

void LogAnalysisTest::boxTextsBreakWithLoneCarriageReturns() {
    QCOMPARE(LogSuccessText(), QStringLiteral("The process has finished successfully!\r\r"
                                              "Do you want to read the log file?"));
    QCOMPARE(LogFailureText(),
             QStringLiteral("There appears to have been an error!\r\r"
                            "The error may have been shown in the console window\r"
                            "before it closed."));
}

void LogAnalysisTest::readsFilesByteForByte_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty file") << "empty.txt" << QByteArray("");
    QTest::newRow("NULs, invalid UTF-8 and every kind of line end")
        << "binary.bin" << Bytes("\xff\xfe\0a\0\x80\xc3(\r\n\n\r\x1a\0");
    QTest::newRow("byte-order mark stays") << "bom.txt" << QByteArray("\xef\xbb\xbfok\r\n");
    QTest::newRow("name with blanks, quotes, operators and a leading dash")
        << QString::fromUtf8("-log 'a' \"b\" &;|<>$ \u00e4\u00df.txt") << QByteArray("x\r\ny");
    QTest::newRow("large file") << "large.txt"
                                << QByteArray("   INFO: line of the log\r\n").repeated(100000);
}

void LogAnalysisTest::readsFilesByteForByte() {
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QFile file(dir.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
    file.close();

    const std::optional<QByteArray> read = ReadWholeFile(file.fileName());
    QVERIFY(read.has_value());
    QCOMPARE(read->size(), content.size());
    QCOMPARE(*read, content);
}

void LogAnalysisTest::readingWhatIsNoReadableFileGivesNothing() {
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(!ReadWholeFile(dir.filePath(QStringLiteral("missing.txt"))).has_value());
    QVERIFY(!ReadWholeFile(dir.path()).has_value());
    QVERIFY(!ReadWholeFile(QString()).has_value());
}

QTEST_APPLESS_MAIN(LogAnalysisTest)
#include "log_analysis_test.moc"
