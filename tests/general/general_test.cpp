// The shared routines every dialog leans on: the validators, the disc-fit advice, reading a
// job log (line ends, last line, success test, size field) and the whole-file reader.

#include "shell/image_size_report.h"
#include "shell/mod_general.h"
#include "shell/whole_file_write.h"
#include "tests/support/file_size_limit.h"

#include <sys/stat.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <climits>
#include <optional>

using namespace torvane;

using OptionalBytes = std::optional<QByteArray>;
Q_DECLARE_METATYPE(OptionalBytes)

class GeneralTest : public QObject {
    Q_OBJECT
private slots:
    void number_data();
    void number();
    void label_data();
    void label();
    void advice_data();
    void advice();
    void lines_data();
    void lines();
    void success_data();
    void success();
    void containsText();
    void sizeField_data();
    void sizeField();
    void readsFilesByteForByte();
    void writesWholeOrNotAtAll_data();
    void writesWholeOrNotAtAll();
};

void GeneralTest::number_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    for (const char* valid : {"1", "65535", "007", "0000000000065535"})
        QTest::newRow(valid) << valid << true;
    for (const char* invalid : {"0", "65536", "4294967297", "", "12a", "-1", " 1", "1.0"})
        QTest::newRow(invalid) << invalid << false;
    QTest::newRow("arabic-indic digit") << QString::fromUtf8("\u0663") << false;
}

void GeneralTest::number() {
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(IsValidNumber(text), valid);
}

void GeneralTest::label_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    for (const char* valid : {"MY_DISC_01", "AZ09_", ""})
        QTest::newRow(valid) << valid << true;
    for (const char* invalid : {"VIDEOcD", "VIDEO CD", "@", "[", ":", "/", "^", "`"})
        QTest::newRow(invalid) << invalid << false;
    QTest::newRow("capital with accent") << QString::fromUtf8("\u00c9T\u00c9") << false;
}

void GeneralTest::label() {
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(IsValidLabel(text), valid);
}

void GeneralTest::advice_data() {
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("advice");
    const auto fits = [](const char* disc) {
        return QStringLiteral("It should fit on %1 CD-R disc.").arg(QLatin1String(disc));
    };
    const auto may = [](const char* text) { return QString::fromLatin1(text); };
    QTest::newRow("most negative") << INT_MIN << fits("a 21min/180MB (8 cm)");
    QTest::newRow("20") << 20 << fits("a 21min/180MB (8 cm)");
    QTest::newRow("21") << 21
                        << may("It may fit on a 21min/180MB (8 cm) CD-R disc with\ra small degree "
                               "of overburning. Otherwise, use a\r74min/650MB CD-R disc.");
    QTest::newRow("22") << 22 << fits("a 74min/650MB");
    QTest::newRow("74") << 74
                        << may("It may fit on a 74min/650MB CD-R disc with a small\rdegree of "
                               "overburning.  Otherwise, use an 80min/700MB\rCD-R disc.");
    QTest::newRow("75") << 75 << fits("an 80min/700MB");
    QTest::newRow("80") << 80
                        << may("It may fit on an 80min/700MB CD-R disc with a small\rdegree of "
                               "overburning.  Otherwise, use a 90min/790MB\rCD-R disc.");
    QTest::newRow("81") << 81 << fits("a 90min/790MB");
    QTest::newRow("90") << 90
                        << may("It may fit on a 90min/790MB CD-R disc with a small\rdegree of "
                               "overburning.  Otherwise, use a 99min/870MB\rCD-R disc.");
    QTest::newRow("91 and beyond") << INT_MAX
                                   << may("It may fit on a 99min/870MB CD-R disc. Use with "
                                          "caution!");
}

void GeneralTest::advice() {
    QFETCH(int, minutes);
    QFETCH(QString, advice);
    QCOMPARE(DiscFitAdvice(minutes), advice);
}

void GeneralTest::lines_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("lineEnds");  // CR LF pairs only
    QTest::addColumn<QByteArray>("lastLine");
    QTest::newRow("empty") << QByteArray() << 0 << QByteArray();
    QTest::newRow("line ends only") << QByteArray("\n\r\r\n\n") << 1 << QByteArray();
    QTest::newRow("no line end last") << QByteArray("a\r\nb") << 1 << QByteArray("b");
    QTest::newRow("line ends behind")
        << QByteArray("a\r\nb  \r\n\r\n\n\r") << 3 << QByteArray("b  ");
    QTest::newRow("lone LF and CR separate nothing")
        << QByteArray("a\nb\r\nc\rd\n\r") << 1 << QByteArray("c\rd");
    QTest::newRow("CR before the pair stays") << QByteArray("a\r\r\nb") << 1 << QByteArray("b");
    QTest::newRow("a blank line is text") << QByteArray("a\r\n \r\n") << 2 << QByteArray(" ");
    QTest::newRow("past 16 bits") << QByteArray("x\r\n").repeated(40000) + "end" << 40000
                                  << QByteArray("end");
}

void GeneralTest::lines() {
    QFETCH(QByteArray, text);
    QFETCH(int, lineEnds);
    QFETCH(QByteArray, lastLine);
    QCOMPARE(CountLineEnds(text), lineEnds);
    QCOMPARE(LastLine(text), lastLine);
}

void GeneralTest::success_data() {
    QTest::addColumn<OptionalBytes>("log");
    QTest::addColumn<bool>("succeeded");  // with the line "   INFO: done"
    QTest::newRow("a log that cannot be read") << OptionalBytes() << false;
    QTest::newRow("one line end") << OptionalBytes("   INFO: done\r\n") << false;
    QTest::newRow("two line ends") << OptionalBytes("start\r\n   INFO: done\r\n") << true;
    QTest::newRow("counted anywhere") << OptionalBytes("\r\n\r\n   INFO: done") << true;
    QTest::newRow("more text behind") << OptionalBytes("a\r\n   INFO: done, 3 files\r\n") << true;
    QTest::newRow("line ends behind") << OptionalBytes("a\r\n   INFO: done\r\n\r\n\n\r") << true;
    QTest::newRow("another line behind")
        << OptionalBytes("a\r\n   INFO: done\r\n++ WARN: late\r\n") << false;
    QTest::newRow("further along the line") << OptionalBytes("a\r\nx:    INFO: done\r\n") << false;
    QTest::newRow("blanks missing") << OptionalBytes("a\r\nINFO: done\r\n") << false;
    QTest::newRow("lower case") << OptionalBytes("a\r\n   info: done\r\n") << false;
    QTest::newRow("lone LFs") << OptionalBytes("a\nb\n   INFO: done\n") << false;
}

void GeneralTest::success() {
    QFETCH(OptionalBytes, log);
    QFETCH(bool, succeeded);
    QCOMPARE(LogSucceeded(log, "   INFO: done"), succeeded);
}

void GeneralTest::containsText() {
    QVERIFY(ContainsText("VCD detected", "detected"));
    QVERIFY(ContainsText(QByteArray("a\0b", 3), "b"));
    QVERIFY(!ContainsText("detect", "detected"));
    QVERIFY(!ContainsText("VCD DETECTED", "detected"));
    QVERIFY(!ContainsText("text", ""));
}

void GeneralTest::sizeField_data() {
    QTest::addColumn<bool>("atEnd");  // vcdxbuild: the last ten characters; else the first '['
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("size");
    QTest::newRow("vcdxbuild, older")
        << true << QByteArray("finished ok, 333340 sectors [74:03.40]")
        << "74 minutes, 3 seconds, 40";
    QTest::newRow("vcdxbuild, newer")
        << true << QByteArray("finished ok, 1879 sectors [00:25:04]") << "0 minutes, 25 seconds, 4";
    QTest::newRow("a trailing blank shifts it")
        << true << QByteArray("ok [74:03:40] ") << "4 minutes, 3 seconds, 0";
    QTest::newRow("shorter than the field")
        << true << QByteArray("[12:34") << "12 minutes, 34 seconds, 0";
    QTest::newRow("blank behind a digit, letters")
        << true << QByteArray("[7 :5m:ab]") << "7 minutes, 5 seconds, 0";
    QTest::newRow("vcdimager, bytes behind")
        << false << QByteArray("finished ok, 1879 sectors [00:25:04] (4419408 bytes)")
        << "0 minutes, 25 seconds, 4";
    QTest::newRow("the first bracket decides")
        << false << QByteArray("ok [x] [74:03:40]") << "0 minutes, 0 seconds, 0";
    QTest::newRow("cut inside") << false << QByteArray("ok [74:0") << "74 minutes, 0 seconds, 0";
    QTest::newRow("no bracket") << false << QByteArray("ok 74:03:40") << "0 minutes, 0 seconds, 0";
}

void GeneralTest::sizeField() {
    QFETCH(bool, atEnd);
    QFETCH(QByteArray, line);
    QFETCH(QString, size);
    QCOMPARE(SizeLine(atEnd ? SizeAtLineEnd(line) : SizeAtFirstBracket(line)),
             "The image size is: " + size + " sectors.");
}

void GeneralTest::readsFilesByteForByte() {
    QTemporaryDir dir;
    const QByteArray content("\xef\xbb\xbf\xff\xfe\0a\x80\r\n\n\r\x1a\0", 15);
    QFile file(dir.filePath(QString::fromUtf8("-log 'a' \"b\" &;|<>$ \u00e4.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    QCOMPARE(ReadWholeFile(file.fileName()), OptionalBytes(content));
    QVERIFY(!ReadWholeFile(dir.filePath(QStringLiteral("missing.txt"))));
    QVERIFY(!ReadWholeFile(dir.path()));  // a folder
}

void GeneralTest::writesWholeOrNotAtAll_data() {
    QTest::addColumn<bool>("existing");
    QTest::addColumn<bool>("full");
    QTest::newRow("a new file") << false << false;
    QTest::newRow("a file replaced keeps its permissions") << true << false;
    QTest::newRow("a full disk leaves no file") << false << true;
    QTest::newRow("a full disk leaves the old file whole") << true << true;
}

void GeneralTest::writesWholeOrNotAtAll() {
    QFETCH(bool, existing);
    QFETCH(bool, full);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("my sheet.cue"));
    const QByteArray old("old sheet"), written(1500, 'x');
    QFile file(path);
    if (existing) {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(old) == old.size());
        file.close();
        QVERIFY(chmod(QFile::encodeName(path).constData(), 0640) == 0);
    }
    QString reason;
    {
        std::optional<test::FileSizeLimit> limit;
        if (full)
            limit.emplace(1000);
        reason = WriteWholeFile(path, written);
    }
    QCOMPARE(reason, full ? QStringLiteral("File too large") : QString());
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
             existing || !full ? QStringList{"my sheet.cue"} : QStringList());
    QCOMPARE(ReadWholeFile(path).value_or("(none)"),
             full ? (existing ? old : QByteArray("(none)")) : written);
    struct stat info {};
    if (existing && stat(QFile::encodeName(path).constData(), &info) == 0)
        QCOMPARE(info.st_mode & 0777, 0640u);
    QVERIFY(FileNotWrittenMessage(path, reason)
                .startsWith("The file could not be written:\r\r" + path));
}

QTEST_APPLESS_MAIN(GeneralTest)
#include "general_test.moc"
