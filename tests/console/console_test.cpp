// The console: its screen fed bytes alone, CConsole running real programs to the end without
// a window, and the window that paints it and takes the keys.

#include "job/cconsole.h"
#include "job/console_window.h"
#include "platform/screen_model.h"
#include "tests/support/tool_run.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <csignal>
#include <memory>

using torvane::CConsole;
using torvane::platform::ScreenModel;
using torvane::test::ReadBytes;

namespace {

const QString kMarker = QStringLiteral("***end***");
// How long a test waits for a program to get somewhere: they are quick, the machine busy.
constexpr int kWaitMs = 30000;

QColor PixelOfFirstCell(QWidget* window) {
    return window->grab().toImage().pixelColor(window->width() / 160, window->height() / 50);
}

}  // namespace

class ConsoleTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid() && QDir::setCurrent(dir_->path()));
    }

    void theScreenShowsWhatTheBytesDraw_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QByteArray>("answer");  // the terminal's own, for the program
        const auto row = [](const char* name, const QByteArray& bytes, const QString& screen,
                            const QByteArray& answer = {}) {
            QTest::newRow(name) << bytes << screen << answer;
        };
        row("coloured marker", "\x1b[1;32m***end***\x1b[0m", kMarker);
        row("letters beyond ASCII; a wide one takes two cells",
            "\xc3\xa9t\xe2\x82\xac \xe6\xbc\xa2\xf0\x9f\x98\x80!", "ét€ 漢😀!");
        row("scrolled up by a full screen", "***end***\r\n" + QByteArray("x\r\n").repeated(25),
            QStringLiteral("x\n").repeated(24).chopped(1));
        row("erase with the scroll-back, then home", "Finished!\r\n\x1b[2J\x1b[3J\x1b[H***end***",
            kMarker);
        row("asked where the cursor is", "abc\r\n\tx\x1b[6n", "abc\n        x", "\x1b[2;10R");
    }

    // Output split anywhere, even inside a character or a sequence, gives the same screen.
    void theScreenShowsWhatTheBytesDraw() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, screen);
        QFETCH(QByteArray, answer);
        for (int at = 0; at <= bytes.size(); ++at) {
            const auto model = ScreenModel::create(25, 80);
            QByteArray written;
            model->setWriter([&](const char* data, std::size_t n) { written.append(data, n); });
            model->feed(bytes.left(at));
            model->feed(bytes.mid(at));
            QCOMPARE(model->screenText().trimmed(), screen);
            QCOMPARE(written, answer);
        }
    }

    void linesScrolledOffAreKeptWithinALimit() {
        QVERIFY(ScreenModel::create(0, 80) == nullptr && ScreenModel::create(25, -1) == nullptr);
        const auto screen = ScreenModel::create(25, 80);
        for (int line = 1; line <= ScreenModel::kScrollbackLimit + 30; ++line)
            screen->feed(QByteArray::number(line) + "\r\n");
        QCOMPARE(screen->scrollbackLines(), ScreenModel::kScrollbackLimit);
        QCOMPARE(screen->scrolledBackRow(3000, 0), std::optional<QString>("7"));
        QCOMPARE(screen->scrolledBackRow(6, 5), std::optional<QString>("3006"));
        QCOMPARE(screen->scrolledBackRow(6, 6), std::nullopt);  // the live screen's row 0
    }

    void theWindowPaintsInTheConsoleColours_data() {
        QTest::addColumn<int>("colour");
        QTest::addColumn<bool>("intense");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("paper");
        QTest::newRow("job colours: bright green on black")
            << 2 << true << QColor(0, 255, 0) << QColor(0, 0, 0);
        QTest::newRow("grey on navy: bits above the text's four colour the background")
            << 16 + 7 << false << QColor(192, 192, 192) << QColor(0, 0, 128);
        QTest::newRow("white on black: bits above the background ignored")
            << 256 + 7 << true << QColor(255, 255, 255) << QColor(0, 0, 0);
    }

    void theWindowPaintsInTheConsoleColours() {
        QFETCH(int, colour);
        QFETCH(bool, intense);
        CConsole console;
        console.setForeColor(colour);
        console.setForeIntense(intense);
        torvane::ConsoleWindow window(console);
        QTEST(PixelOfFirstCell(&window), "paper");
        console.screen().feed("\x1b[7m \x1b[m");  // a blank in reverse video
        QTEST(PixelOfFirstCell(&window), "text");
    }

    void keysTypedInTheWindowReachTheProgramScrollingBackDoesNot_data() {
        QTest::addColumn<QKeyCombination>("key");
        QTest::addColumn<QString>("received");  // in hex
        QTest::newRow("letter") << QKeyCombination(Qt::Key_A) << "61";
        QTest::newRow("up arrow") << QKeyCombination(Qt::Key_Up) << "1b5b41";
        QTest::newRow("control d") << (Qt::CTRL | Qt::Key_D) << "04";
    }

    void keysTypedInTheWindowReachTheProgramScrollingBackDoesNot() {
        QFETCH(QKeyCombination, key);
        QFETCH(QString, received);
        // The program first writes about 500 KB, far more than a terminal holds: it gets on
        // only if the console keeps taking its output, though nothing reads the screen. Then
        // it takes bytes raw and shows them in hex.
        CConsole console;
        torvane::ConsoleWindow& window = torvane::AttachConsoleWindow(console);
        console.StartApp(program(
            "i=0\nwhile [ $i -lt 7000 ]; do\n  printf 'line %04d %060d\\n' $i 0\n  i=$((i+1))\n"
            "done\n: > finished\nstty raw -echo\nprintf ready\nbytes=$(dd bs=1 count=" +
            QByteArray::number(received.size() / 2) +
            " 2>/dev/null | od -An -tx1 | tr -d ' \\n')\n"
            "printf '\\033[H\\033[2J%s' \"$bytes\"\nexec sleep 300"));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(QStringLiteral("finished")), 120000);
        const auto screen = [&] { return console.screen().screenText(); };
        QVERIFY(QTest::qWaitFor(
            [&] {
                return screen().startsWith("line 6976 ") && screen().trimmed().endsWith("ready");
            },
            kWaitMs));
        window.close();
        QVERIFY2(window.isVisible(), "the console stands open until it is dropped");
        QTest::keyClick(&window, Qt::Key_PageUp, Qt::ShiftModifier);
        QWheelEvent notch(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &notch);
        QCOMPARE(window.linesBack(), 24 + 3);  // a page and a notch of the wheel
        QTest::keyClick(&window, Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(window.linesBack(), 3);
        QTest::keyClick(&window, key.key(), key.keyboardModifiers());
        QCOMPARE(window.linesBack(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(screen().trimmed(), received, kWaitMs);
    }

    void programsStartAndNothingOfThemOutlivesTheConsole_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("screen");  // empty: nothing starts
        const auto row = [](const char* name, const char* file, const char* screen) {
            QTest::newRow(name) << QString(file) << QString(screen);
        };
        row("blanks, quotes and operators", "a b \"c\" & $x; |.BAT", "[a b \"c\" & $x; |.BAT]");
        row("leading dash", "-x.bat", "[./-x.bat]");
        row("program in the current directory, ended before the hang-up", "prog", "program");
        row("no interpreter", "run.bat", "");
        row("no such program", "/no/such/program", "");
    }

    // A job script is run by the interpreter, here one that shows its arguments and stays.
    // Both leave a child behind that, like them, ignores the hang-up.
    void programsStartAndNothingOfThemOutlivesTheConsole() {
        QFETCH(QString, name);
        QFETCH(QString, screen);
        CConsole::setInterpreterPath(dir_->filePath(QStringLiteral("interpreter")));
        const QByteArray leaveChild =
            "trap '' HUP\necho $$ > self.pid\nsleep 300 &\necho $! > child.pid\n";
        if (!screen.isEmpty()) {
            program(leaveChild + "printf '[%s]' \"$@\"\nexec sleep 300",
                    QStringLiteral("interpreter"));
            program(leaveChild + "printf program", name);
        }
        auto console = std::make_unique<CConsole>();
        console->StartApp(name);
        QTRY_COMPARE_WITH_TIMEOUT(console->screen().screenText().trimmed(), screen, kWaitMs);
        QCOMPARE(console->WordScan(), screen.leftJustified(9, QLatin1Char(' '), true));
        const pid_t pid = ReadBytes(QStringLiteral("self.pid")).trimmed().toInt();
        const pid_t child = ReadBytes(QStringLiteral("child.pid")).trimmed().toInt();
        QVERIFY(screen.isEmpty() || (child > 0 && kill(child, 0) == 0));
        console.reset();
        QVERIFY2(pid <= 0 || kill(pid, 0) != 0, "the program runs on, or is a zombie");
        // The child ends at once; the system reaps it once its parent has gone.
        QTRY_VERIFY_WITH_TIMEOUT(child <= 0 || kill(child, 0) != 0, kWaitMs);
    }

private:
    QString program(const QByteArray& body, const QString& name = QStringLiteral("program")) {
        return torvane::test::WriteScript(name, body) ? dir_->filePath(name) : QString();
    }

    std::unique_ptr<QTemporaryDir> dir_;  // the current directory, new for each test
};

QTEST_MAIN(ConsoleTest)
#include "console_test.moc"
