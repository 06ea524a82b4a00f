// The console screen without a window or a terminal: bytes in, cells out.

#include "platform/screen_model.h"
#include "platform/console_colours.h"

#include <QTest>

using torvane::platform::ColoursOfAttribute;
using torvane::platform::Rgb;
using torvane::platform::ScreenModel;
using torvane::platform::SpecialKey;

Q_DECLARE_METATYPE(Rgb)

namespace torvane::platform {
// How QCOMPARE prints a colour.
char* toString(const Rgb& colour) {
    return qstrdup(QByteArray::number(colour.red) + ',' + QByteArray::number(colour.green) + ',' +
                   QByteArray::number(colour.blue));
}
}  // namespace torvane::platform

namespace {

const QString kMarker = QStringLiteral("***end***");

std::unique_ptr<ScreenModel> NewScreen() {
    return ScreenModel::create(25, 80);
}

QString Scan(const ScreenModel& screen) {
    return screen.text(0, 0, 9);
}

}  // namespace

class ScreenModelTest : public QObject {
    Q_OBJECT
private slots:
    void theFirstNineCellsReadAsTheProgramLeftThem_data();
    void theFirstNineCellsReadAsTheProgramLeftThem();
    void anyClearPutsTheMarkerAtTheTopLeft_data();
    void anyClearPutsTheMarkerAtTheTopLeft();
    void outputSplitAtAnyByteGivesTheSameScreen();
    void aCharacterSplitAcrossTwoWritesIsStillOneCharacter();
    void aScreenTooSmallToExistIsRefused();
    void linesScrolledOffAreKeptWithinALimit();
    void screenTextDropsTrailingBlanksOnly();
    void colouredCellsKeepTheirColourAndTheRestFollowTheDefaults();
    void cursorKeysFollowTheTerminalMode();
    void queriesAreAnsweredThroughTheWriter();
    void attributesGiveTheConsoleColours_data();
    void attributesGiveTheConsoleColours();
};

void ScreenModelTest::theFirstNineCellsReadAsTheProgramLeftThem_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing written") << QByteArray() << QStringLiteral("         ");
    QTest::newRow("the marker") << QByteArray("***end***\r\n") << kMarker;
    QTest::newRow("another ninth character")
        << QByteArray("***end**x") << QStringLiteral("***end**x");
    QTest::newRow("coloured marker") << QByteArray("\x1b[1;32m***end***\x1b[0m") << kMarker;
    QTest::newRow("overwritten after a carriage return")
        << QByteArray("***end***\rX") << QStringLiteral("X**end***");
    QTest::newRow("non-ASCII letter")
        << QByteArray("\xc3\xa9t\xc3\xa9") << QStringLiteral("été      ");
    QTest::newRow("scrolled up by a full screen")
        << QByteArray("***end***\r\n") + QByteArray("x\r\n").repeated(25)
        << QStringLiteral("x        ");
}

void ScreenModelTest::theFirstNineCellsReadAsTheProgramLeftThem() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    auto screen = NewScreen();
    screen->feed(bytes);
    QCOMPARE(Scan(*screen), expected);
}

void ScreenModelTest::anyClearPutsTheMarkerAtTheTopLeft_data() {
    QTest::addColumn<QByteArray>("clear");
    QTest::newRow("home, then erase display") << QByteArray("\x1b[H\x1b[2J");
    QTest::newRow("erase display and scroll-back, then home") << QByteArray("\x1b[2J\x1b[3J\x1b[H");
    QTest::newRow("full reset") << QByteArray(
        "\x1b"
        "c");
}

void ScreenModelTest::anyClearPutsTheMarkerAtTheTopLeft() {
    QFETCH(QByteArray, clear);
    auto screen = NewScreen();
    screen->feed(
        "VCDXMINFO Tool - Batch File\r\n=====\r\n\r\nFinished!\r\n"
        "Press any key to continue . . . \r\n");
    QVERIFY(Scan(*screen) != kMarker);
    screen->feed(clear + "***end***\r\n");
    QCOMPARE(Scan(*screen), kMarker);
    QCOMPARE(screen->screenText(), kMarker + QString(24, QLatin1Char('\n')));
}

void ScreenModelTest::outputSplitAtAnyByteGivesTheSameScreen() {
    const QByteArray bytes =
        "banner \xe2\x82\xac\r\n\x1b[31mred\x1b[0m\r\n\x1b[H\x1b[2J***end***\r\n"
        "\xc3\xa9\xe6\xbc\xa2\xf0\x9f\x98\x80 tail";
    auto whole = NewScreen();
    whole->feed(bytes);
    for (int at = 0; at <= bytes.size(); ++at) {
        auto split = NewScreen();
        split->feed(bytes.left(at));
        split->feed(bytes.mid(at));
        QVERIFY2(split->screenText() == whole->screenText(), qPrintable(QString::number(at)));
        QCOMPARE(Scan(*split), kMarker);
    }
    auto byteByByte = NewScreen();
    for (char byte : bytes)
        byteByByte->feed(&byte, 1);
    QCOMPARE(byteByByte->screenText(), whole->screenText());
}

void ScreenModelTest::aCharacterSplitAcrossTwoWritesIsStillOneCharacter() {
    auto screen = NewScreen();
    screen->feed("\xe2\x82");
    screen->feed("\xac!");
    QCOMPARE(screen->text(0, 0, 2), QStringLiteral("\u20ac!"));
    QCOMPARE(screen->cursor().column, 2);
}

void ScreenModelTest::aScreenTooSmallToExistIsRefused() {
    QVERIFY(ScreenModel::create(0, 80) == nullptr);
    QVERIFY(ScreenModel::create(25, -1) == nullptr);
}

void ScreenModelTest::linesScrolledOffAreKeptWithinALimit() {
    auto screen = ScreenModel::create(25, 80);
    for (int line = 1; line <= 30; ++line)
        screen->feed(QStringLiteral("line %1\r\n").arg(line, 2, 10, QLatin1Char('0')).toUtf8());
    QCOMPARE(screen->scrollbackLines(), 6);
    QCOMPARE(screen->scrolledBackRow(6, 0), std::optional<QString>("line 01"));
    QCOMPARE(screen->scrolledBackRow(6, 5), std::optional<QString>("line 06"));
    QCOMPARE(screen->scrolledBackRow(6, 6), std::nullopt);  // the live screen's row 0
    QCOMPARE(screen->text(0, 0, 9), QStringLiteral("line 07  "));
    for (int line = 0; line < ScreenModel::kScrollbackLimit + 100; ++line)
        screen->feed("more\r\n");
    QCOMPARE(screen->scrollbackLines(), ScreenModel::kScrollbackLimit);
}

void ScreenModelTest::screenTextDropsTrailingBlanksOnly() {
    auto screen = NewScreen();
    screen->feed("  two leading   \r\n\r\nthird");
    const QStringList rows = screen->screenText().split(QLatin1Char('\n'));
    QCOMPARE(rows.size(), 25);
    QCOMPARE(rows.mid(0, 4), QStringList({QStringLiteral("  two leading"), QString(),
                                          QStringLiteral("third"), QString()}));
    QCOMPARE(screen->rowText(0).size(), 80);
}

void ScreenModelTest::colouredCellsKeepTheirColourAndTheRestFollowTheDefaults() {
    auto screen = NewScreen();
    screen->feed("a\x1b[31mb\x1b[7mc\x1b[0m");
    const Rgb green{0, 255, 0};
    const Rgb blue{0, 0, 128};
    screen->setDefaultColours(green, blue);
    QCOMPARE(screen->cell(0, 0).foreground, green);
    QCOMPARE(screen->cell(0, 0).background, blue);
    const Rgb red = screen->cell(0, 1).foreground;
    QVERIFY(red != green && red.red > red.green);
    QCOMPARE(screen->cell(0, 1).background, blue);
    // Reverse video: the text's colour fills the cell.
    QCOMPARE(screen->cell(0, 2).background, red);
    QCOMPARE(screen->cell(0, 2).foreground, blue);
    QCOMPARE(screen->cell(5, 5).background, blue);
}

void ScreenModelTest::cursorKeysFollowTheTerminalMode() {
    auto screen = NewScreen();
    QCOMPARE(screen->keySequence(SpecialKey::Up), QByteArray("\x1b[A"));
    screen->feed("\x1b[?1h");  // application cursor keys
    QCOMPARE(screen->keySequence(SpecialKey::Up), QByteArray("\x1bOA"));
    QCOMPARE(screen->keySequence(SpecialKey::Left), QByteArray("\x1bOD"));
}

void ScreenModelTest::queriesAreAnsweredThroughTheWriter() {
    auto screen = NewScreen();
    QByteArray written;
    screen->setWriter([&written](const char* bytes, std::size_t length) {
        written.append(bytes, static_cast<qsizetype>(length));
    });
    screen->feed("\r\n\r\nabc\x1b[6n");  // where is the cursor?
    QCOMPARE(written, QByteArray("\x1b[3;4R"));
    written.clear();
    screen->keySequence(SpecialKey::Down);
    QVERIFY2(written.isEmpty(), "a key sequence asked for must not reach the program");
}

void ScreenModelTest::attributesGiveTheConsoleColours_data() {
    QTest::addColumn<int>("attribute");
    QTest::addColumn<Rgb>("foreground");
    QTest::addColumn<Rgb>("background");
    QTest::newRow("bright green on black") << 10 << Rgb{0, 255, 0} << Rgb{0, 0, 0};
    QTest::newRow("the usual grey on black") << 7 << Rgb{192, 192, 192} << Rgb{0, 0, 0};
    QTest::newRow("dark red on navy") << (4 | 16) << Rgb{128, 0, 0} << Rgb{0, 0, 128};
    QTest::newRow("black on bright blue") << (16 | 128) << Rgb{0, 0, 0} << Rgb{0, 0, 255};
    QTest::newRow("white on dark grey") << (15 | 128) << Rgb{255, 255, 255} << Rgb{128, 128, 128};
    QTest::newRow("yellow on teal") << (14 | 32 | 16) << Rgb{255, 255, 0} << Rgb{0, 128, 128};
    QTest::newRow("bits above the background") << (256 | 10) << Rgb{0, 255, 0} << Rgb{0, 0, 0};
}

void ScreenModelTest::attributesGiveTheConsoleColours() {
    QFETCH(int, attribute);
    QFETCH(Rgb, foreground);
    QFETCH(Rgb, background);
    const auto colours = ColoursOfAttribute(attribute);
    QCOMPARE(colours.foreground, foreground);
    QCOMPARE(colours.background, background);
}

QTEST_GUILESS_MAIN(ScreenModelTest)
#include "screen_model_test.moc"
