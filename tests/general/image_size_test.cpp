// The image size report: the size field taken from the end of vcdxbuild's last line or
// from the first bracket of vcdimager's, read pair by pair, and printed back in words.

#include "shell/image_size_report.h"
#include "shell/mod_general.h"

#include <QTest>

using namespace torvane;

class ImageSizeTest : public QObject {
    Q_OBJECT
private slots:
    void fieldIsReadPairByPair_data();
    void fieldIsReadPairByPair();
    void vcdxbuildFieldIsTheLastTenCharacters_data();
    void vcdxbuildFieldIsTheLastTenCharacters();
    void vcdimagerFieldStartsAtTheFirstBracket_data();
    void vcdimagerFieldStartsAtTheFirstBracket();
    void sizeLinePrintsPlainDecimals_data();
    void sizeLinePrintsPlainDecimals();
    void reportOfALogPrintsTheToolsFiguresBack();
};

namespace {

void AddSizeColumns() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("sectors");
}

void CompareSize(const ImageSize& size) {
    QFETCH(int, minutes);
    QFETCH(int, seconds);
    QFETCH(int, sectors);
    QCOMPARE(size.minutes, minutes);
    QCOMPARE(size.seconds, seconds);
    QCOMPARE(size.sectors, sectors);
}

}  // namespace

void ImageSizeTest::fieldIsReadPairByPair_data() {
    AddSizeColumns();
    QTest::newRow("older form, dot before the sectors")
        << QByteArray("[74:03.40]") << 74 << 3 << 40;
    QTest::newRow("newer form, colons") << QByteArray("[00:25:04]") << 0 << 25 << 4;
    QTest::newRow("separators are not looked at") << QByteArray("x12y34z56w") << 12 << 34 << 56;
    QTest::newRow("leading blanks skipped") << QByteArray("[ 8: 5: 9]") << 8 << 5 << 9;
    QTest::newRow("blank behind a digit ends it") << QByteArray("[7 :5 :9 ]") << 7 << 5 << 9;
    QTest::newRow("non-numbers are 0") << QByteArray("[ab:cd:ef]") << 0 << 0 << 0;
    QTest::newRow("digit then letter") << QByteArray("[7m:5s:9f]") << 7 << 5 << 9;
    QTest::newRow("blanks only") << QByteArray("          ") << 0 << 0 << 0;
    QTest::newRow("cut after the minutes") << QByteArray("[74") << 74 << 0 << 0;
    QTest::newRow("cut inside the seconds") << QByteArray("[74:0") << 74 << 0 << 0;
    QTest::newRow("cut after the first sector digit") << QByteArray("[74:03:4") << 74 << 3 << 4;
    QTest::newRow("empty") << QByteArray() << 0 << 0 << 0;
}

void ImageSizeTest::fieldIsReadPairByPair() {
    QFETCH(QByteArray, text);
    CompareSize(ParseSizeField(text));
}

void ImageSizeTest::vcdxbuildFieldIsTheLastTenCharacters_data() {
    AddSizeColumns();
    QTest::newRow("older tool")
        << QByteArray("   INFO: finished ok, image created with 333340 sectors [74:03.40]") << 74
        << 3 << 40;
    QTest::newRow("newer tool")
        << QByteArray("   INFO: finished ok, image created with 1879 sectors [00:25:04]") << 0 << 25
        << 4;
    QTest::newRow("a trailing blank shifts the field")
        << QByteArray("   INFO: finished ok [74:03:40] ") << 4 << 3 << 0;
    QTest::newRow("line of exactly the field") << QByteArray("[12:34:56]") << 12 << 34 << 56;
    QTest::newRow("line shorter than the field") << QByteArray("[12:34") << 12 << 34 << 0;
    QTest::newRow("line without figures")
        << QByteArray("   INFO: finished ok, image created") << 0 << 0 << 0;
    QTest::newRow("empty line") << QByteArray() << 0 << 0 << 0;
}

void ImageSizeTest::vcdxbuildFieldIsTheLastTenCharacters() {
    QFETCH(QByteArray, text);
    CompareSize(SizeAtLineEnd(text));
}

void ImageSizeTest::vcdimagerFieldStartsAtTheFirstBracket_data() {
    AddSizeColumns();
    QTest::newRow("newer tool, bytes behind the field")
        << QByteArray("finished ok, image created with 1879 sectors [00:25:04] (4419408 bytes)")
        << 0 << 25 << 4;
    QTest::newRow("older tool") << QByteArray("finished ok, image created [74:03.40]") << 74 << 3
                                << 40;
    QTest::newRow("the first bracket decides")
        << QByteArray("finished ok [12:34:56] [74:03:40]") << 12 << 34 << 56;
    QTest::newRow("a first bracket without figures")
        << QByteArray("finished ok [x] [74:03:40]") << 0 << 0 << 0;
    QTest::newRow("bracket at the start") << QByteArray("[01:02:03]") << 1 << 2 << 3;
    QTest::newRow("line ends inside the field") << QByteArray("finished ok [74:0") << 74 << 0 << 0;
    QTest::newRow("no bracket") << QByteArray("finished ok, image created 74:03:40") << 0 << 0 << 0;
    QTest::newRow("empty line") << QByteArray() << 0 << 0 << 0;
}

void ImageSizeTest::vcdimagerFieldStartsAtTheFirstBracket() {
    QFETCH(QByteArray, text);
    CompareSize(SizeAtFirstBracket(text));
}

void ImageSizeTest::sizeLinePrintsPlainDecimals_data() {
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("sectors");
    QTest::addColumn<QString>("line");
    QTest::newRow("no leading zeros")
        << 74 << 3 << 40 << "The image size is: 74 minutes, 3 seconds, 40 sectors.";
    QTest::newRow("zeros") << 0 << 0 << 0 << "The image size is: 0 minutes, 0 seconds, 0 sectors.";
    QTest::newRow("largest pairs")
        << 99 << 99 << 99 << "The image size is: 99 minutes, 99 seconds, 99 sectors.";
}

void ImageSizeTest::sizeLinePrintsPlainDecimals() {
    QFETCH(int, minutes);
    QFETCH(int, seconds);
    QFETCH(int, sectors);
    QFETCH(QString, line);
    QCOMPARE(SizeLine(ImageSize{minutes, seconds, sectors}), line);
}

void ImageSizeTest::reportOfALogPrintsTheToolsFiguresBack() {
    const QByteArray log(
        "   INFO: writing track 2\r\n"
        "   INFO: finished ok, image created with 333340 sectors [74:03.40]\r\n\r\n");
    const ImageSize size = SizeAtLineEnd(LastLine(log));
    QCOMPARE(SizeLine(size),
             QStringLiteral("The image size is: 74 minutes, 3 seconds, 40 sectors."));
    QCOMPARE(DiscFitAdvice(size.minutes), DiscFitAdvice(74));
}

QTEST_APPLESS_MAIN(ImageSizeTest)
#include "image_size_test.moc"
