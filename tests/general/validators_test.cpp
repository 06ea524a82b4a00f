// The input validators of the authoring dialogs and the disc-fit advice, at every edge of
// their ranges.

#include "shell/mod_general.h"

#include <QTest>
#include <climits>

using namespace torvane;

class ValidatorsTest : public QObject {
    Q_OBJECT
private slots:
    void numberAcceptsOnlyDigitsFromOneTo65535_data();
    void numberAcceptsOnlyDigitsFromOneTo65535();
    void labelAcceptsCapitalsDigitsAndUnderscore_data();
    void labelAcceptsCapitalsDigitsAndUnderscore();
    void adviceFollowsTheWholeMinutes_data();
    void adviceFollowsTheWholeMinutes();
};

void ValidatorsTest::numberAcceptsOnlyDigitsFromOneTo65535_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("lowest") << "1" << true;
    QTest::newRow("highest") << "65535" << true;
    QTest::newRow("leading zeros") << "007" << true;
    QTest::newRow("many leading zeros before the highest") << "0000000000065535" << true;
    QTest::newRow("zero") << "0" << false;
    QTest::newRow("zeros only") << "00000" << false;
    QTest::newRow("one over the highest") << "65536" << false;
    QTest::newRow("six digits") << "100000" << false;
    QTest::newRow("wraps to 1 in 32 bits") << "4294967297" << false;
    QTest::newRow("wraps to 1 in 64 bits") << "18446744073709551617" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("letter") << "12a" << false;
    QTest::newRow("plus sign") << "+1" << false;
    QTest::newRow("minus sign") << "-1" << false;
    QTest::newRow("leading blank") << " 1" << false;
    QTest::newRow("trailing blank") << "1 " << false;
    QTest::newRow("decimal point") << "1.0" << false;
    QTest::newRow("hexadecimal") << "0x10" << false;
    QTest::newRow("arabic-indic digit") << QString::fromUtf8("\u0663") << false;
    QTest::newRow("fullwidth digit") << QString::fromUtf8("\uff11") << false;
}

void ValidatorsTest::numberAcceptsOnlyDigitsFromOneTo65535() {
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(IsValidNumber(text), valid);
}

void ValidatorsTest::labelAcceptsCapitalsDigitsAndUnderscore_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("word") << "VIDEOCD" << true;
    QTest::newRow("mix") << "MY_DISC_01" << true;
    QTest::newRow("edges of the ranges") << "AZ09_" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("lower case") << "VIDEOcD" << false;
    QTest::newRow("blank") << "VIDEO CD" << false;
    QTest::newRow("hyphen") << "VIDEO-CD" << false;
    QTest::newRow("at sign, below A") << "@" << false;
    QTest::newRow("left bracket, above Z") << "[" << false;
    QTest::newRow("colon, above 9") << ":" << false;
    QTest::newRow("slash, below 0") << "/" << false;
    QTest::newRow("caret, below underscore") << "^" << false;
    QTest::newRow("grave accent, above underscore") << "`" << false;
    QTest::newRow("capital with accent") << QString::fromUtf8("\u00c9T\u00c9") << false;
    QTest::newRow("fullwidth capital") << QString::fromUtf8("\uff21") << false;
    QTest::newRow("bad character last") << "VIDEOCD!" << false;
}

void ValidatorsTest::labelAcceptsCapitalsDigitsAndUnderscore() {
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(IsValidLabel(text), valid);
}

namespace {

const QString kFits21 = QStringLiteral("It should fit on a 21min/180MB (8 cm) CD-R disc.");
const QString kMay21 = QStringLiteral(
    "It may fit on a 21min/180MB (8 cm) CD-R disc with\ra small degree of overburning. "
    "Otherwise, use a\r74min/650MB CD-R disc.");
const QString kFits74 = QStringLiteral("It should fit on a 74min/650MB CD-R disc.");
const QString kMay74 = QStringLiteral(
    "It may fit on a 74min/650MB CD-R disc with a small\rdegree of overburning.  Otherwise, use "
    "an 80min/700MB\rCD-R disc.");
const QString kFits80 = QStringLiteral("It should fit on an 80min/700MB CD-R disc.");
const QString kMay80 = QStringLiteral(
    "It may fit on an 80min/700MB CD-R disc with a small\rdegree of overburning.  Otherwise, use "
    "a 90min/790MB\rCD-R disc.");
const QString kFits90 = QStringLiteral("It should fit on a 90min/790MB CD-R disc.");
const QString kMay90 = QStringLiteral(
    "It may fit on a 90min/790MB CD-R disc with a small\rdegree of overburning.  Otherwise, use "
    "a 99min/870MB\rCD-R disc.");
const QString kMay99 = QStringLiteral("It may fit on a 99min/870MB CD-R disc. Use with caution!");

}  // namespace

void ValidatorsTest::adviceFollowsTheWholeMinutes_data() {
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("advice");
    QTest::newRow("most negative") << INT_MIN << kFits21;
    QTest::newRow("negative") << -1 << kFits21;
    QTest::newRow("zero") << 0 << kFits21;
    QTest::newRow("20") << 20 << kFits21;
    QTest::newRow("21") << 21 << kMay21;
    QTest::newRow("22") << 22 << kFits74;
    QTest::newRow("73") << 73 << kFits74;
    QTest::newRow("74") << 74 << kMay74;
    QTest::newRow("75") << 75 << kFits80;
    QTest::newRow("79") << 79 << kFits80;
    QTest::newRow("80") << 80 << kMay80;
    QTest::newRow("81") << 81 << kFits90;
    QTest::newRow("89") << 89 << kFits90;
    QTest::newRow("90") << 90 << kMay90;
    QTest::newRow("91") << 91 << kMay99;
    QTest::newRow("99 has no row of its own") << 99 << kMay99;
    QTest::newRow("largest 16-bit") << 32767 << kMay99;
    QTest::newRow("largest") << INT_MAX << kMay99;
}

void ValidatorsTest::adviceFollowsTheWholeMinutes() {
    QFETCH(int, minutes);
    QFETCH(QString, advice);
    QCOMPARE(DiscFitAdvice(minutes), advice);
}

QTEST_APPLESS_MAIN(ValidatorsTest)
#include "validators_test.moc"
