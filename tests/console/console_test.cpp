// The console: its screen fed with bytes alone, and CConsole with real programs in its
// terminal: what they print reaches the screen, keys typed in the console window reach
// them, and nothing of them outlives the console.

#include "job/cconsole.h"
#include "job/console_window.h"
#include "platform/screen_model.h"

#include <sys/wait.h>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <cerrno>
#include <csignal>
#include <memory>

using torvane::CConsole;
using torvane::ConsoleError;
using torvane::platform::ScreenModel;
using torvane::platform::SpecialKey;

namespace {

const QString kMarker = QStringLiteral("***end***");
// How long a test waits for a program to get somewhere (they are quick; the machine may
// be busy).
constexpr int kWaitMs = 30000;

// The screen's text without the empty rows at the bottom.
QString Shown(QString screen) {
    while (screen.endsWith(QLatin1Char('\n')))
        screen.chop(1);
    return screen;
}

bool Gone(pid_t pid) {
    return kill(pid, 0) == -1 && errno == ESRCH;
}

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
        const QByteArray banner = "Finished!\r\nPress any key to continue . . . \r\n";
        QTest::newRow("the marker") << QByteArray("***end***\r\n") << kMarker;
        QTest::newRow("coloured marker") << QByteArray("\x1b[1;32m***end***\x1b[0m") << kMarker;
        QTest::newRow("overwritten after a carriage return")
            << QByteArray("***end***\rX") << QStringLiteral("X**end***");
        QTest::newRow("letters beyond ASCII; a wide one takes two cells")
            << QByteArray("\xc3\xa9t\xe2\x82\xac \xe6\xbc\xa2\xf0\x9f\x98\x80!")
            << QStringLiteral("ét€ 漢😀!");
        QTest::newRow("trailing blanks dropped, leading ones kept")
            << QByteArray("  two   \r\n\r\nthird") << QStringLiteral("  two\n\nthird");
        QTest::newRow("scrolled up by a full screen")
            << QByteArray("***end***\r\n") + QByteArray("x\r\n").repeated(25)
            << QStringLiteral("x\n").repeated(24).chopped(1);
        QTest::newRow("home, then erase") << banner + "\x1b[H\x1b[2J***end***\r\n" << kMarker;
        QTest::newRow("erase with the scroll-back, then home")
            << banner + "\x1b[2J\x1b[3J\x1b[H***end***\r\n"
            << kMarker;
        QTest::newRow("full reset") << banner +
                                           "\x1b"
                                           "c***end***"
                                    << kMarker;
    }

    // Output split anywhere, even inside a character or a sequence, gives the same screen.
    void theScreenShowsWhatTheBytesDraw() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, screen);
        for (int at = 0; at <= bytes.size(); ++at) {
            const auto model = ScreenModel::create(25, 80);
            QCOMPARE(model->text(0, 0, 9), QString(9, QLatin1Char(' ')));
            model->feed(bytes.left(at));
            model->feed(bytes.mid(at));
            QCOMPARE(Shown(model->screenText()), screen);
        }
    }

    void linesScrolledOffAreKeptWithinALimit() {
        QVERIFY(ScreenModel::create(0, 80) == nullptr && ScreenModel::create(25, -1) == nullptr);
        const auto screen = ScreenModel::create(25, 80);
        for (int line = 1; line <= 30; ++line)
            screen->feed(QStringLiteral("line %1\r\n").arg(line, 2, 10, QLatin1Char('0')).toUtf8());
        QCOMPARE(screen->scrollbackLines(), 6);
        QCOMPARE(screen->scrolledBackRow(6, 0), std::optional<QString>("line 01"));
        QCOMPARE(screen->scrolledBackRow(6, 5), std::optional<QString>("line 06"));
        QCOMPARE(screen->scrolledBackRow(6, 6), std::nullopt);  // the live screen's row 0
        for (int line = 0; line < ScreenModel::kScrollbackLimit; ++line)
            screen->feed("more\r\n");
        QCOMPARE(screen->scrollbackLines(), ScreenModel::kScrollbackLimit);
    }

    void keysAndAnswersFollowTheTerminalMode() {
        const auto screen = ScreenModel::create(25, 80);
        QByteArray written;
        screen->setWriter([&](const char* bytes, std::size_t length) {
            written.append(bytes, static_cast<qsizetype>(length));
        });
        QCOMPARE(screen->keySequence(SpecialKey::Up), QByteArray("\x1b[A"));
        screen->feed("\x1b[?1h");  // application cursor keys
        QCOMPARE(screen->keySequence(SpecialKey::Left), QByteArray("\x1bOD"));
        screen->feed("\r\n\r\nabc\x1b[6n");          // where is the cursor?
        QCOMPARE(written, QByteArray("\x1b[3;4R"));  // and no key sequence
    }

    void setColorsMakesTheAttributeAndTheWindowShowsIt_data() {
        QTest::addColumn<int>("fore");
        QTest::addColumn<int>("back");
        QTest::addColumn<bool>("backIntense");
        QTest::addColumn<bool>("foreIntense");
        QTest::addColumn<int>("attribute");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("paper");
        QTest::newRow("job colours: bright green on black")
            << 2 << 0 << false << true << 10 << QColor(0, 255, 0) << QColor(0, 0, 0);
        QTest::newRow("grey on navy")
            << 7 << 16 << false << false << 23 << QColor(192, 192, 192) << QColor(0, 0, 128);
        QTest::newRow("white on dark grey")
            << 7 << 0 << true << true << 143 << QColor(255, 255, 255) << QColor(128, 128, 128);
        QTest::newRow("dark yellow on bright cyan, bits above the background ignored")
            << 256 + 6 << 48 << true << false << 438 << QColor(128, 128, 0) << QColor(0, 255, 255);
    }

    void setColorsMakesTheAttributeAndTheWindowShowsIt() {
        QFETCH(int, fore);
        QFETCH(int, back);
        QFETCH(bool, backIntense);
        QFETCH(bool, foreIntense);
        QFETCH(int, attribute);
        QFETCH(QColor, text);
        QFETCH(QColor, paper);
        CConsole console;
        console.setForeColor(fore);
        console.setBackColor(back);
        console.setBackIntense(backIntense);
        console.setForeIntense(foreIntense);
        QCOMPARE(console.attribute(), attribute);
        QCOMPARE(PixelOfFirstCell(console.window()), paper);
        console.WriteText(QStringLiteral("\x1b[7m \x1b[m"));  // a blank in reverse video
        QCOMPARE(PixelOfFirstCell(console.window()), text);
    }

    void theOneConsoleAndItsWindowLiveUntilDropped() {
        auto console = std::make_unique<CConsole>();
        QPointer<QWidget> window = console->window();
        console->setTitle(QStringLiteral("Torvane -- VCDXMINFO Tool"));
        QCOMPARE(window->windowTitle(), QStringLiteral("Torvane -- VCDXMINFO Tool"));
        window->close();
        QVERIFY2(window->isVisible(), "the console stands open until it is dropped");
        try {
            CConsole second;
            QFAIL("a second console was allocated");
        } catch (const ConsoleError& error) {
            QCOMPARE(error.number, 10102);
            QCOMPARE(error.source, QStringLiteral("Class_Initialize"));
            QCOMPARE(error.description, QStringLiteral("Couldn't allocate console"));
        }
        console->WriteText(QStringLiteral("still here"));
        QCOMPARE(console->WordScan(), QStringLiteral("still her"));
        console.reset();
        QVERIFY(window.isNull());
        QCOMPARE(CConsole().WordScan(), QString(9, QLatin1Char(' ')));
    }

    void bufferLengthKeepsTheNumberOfItsText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");
        for (const char* row : {"300=300", " 2.5=2", "abc=0", "2147483648=0"})
            QTest::newRow(row) << QString(row).section('=', 0, 0) << QString(row).section('=', 1);
    }

    void bufferLengthKeepsTheNumberOfItsText() {
        QFETCH(QString, text);
        QFETCH(QString, number);
        CConsole console;
        console.setBufferLength(QStringLiteral("17"));
        console.setBufferLength(text);
        QCOMPARE(console.BufferLength(), number);
    }

    void keysTypedInTheWindowReachTheProgramScrollingBackDoesNot_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("received");  // in hex
        QTest::newRow("letter") << int(Qt::Key_A) << "a" << 0 << "61";
        QTest::newRow("return") << int(Qt::Key_Return) << "\r" << 0 << "0d";
        QTest::newRow("up arrow") << int(Qt::Key_Up) << "" << 0 << "1b5b41";
        QTest::newRow("control d") << int(Qt::Key_D) << "" << int(Qt::ControlModifier) << "04";
    }

    void keysTypedInTheWindowReachTheProgramScrollingBackDoesNot() {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        QFETCH(QString, received);
        // The program fills more than a screen, takes bytes raw and shows them in hex.
        CConsole console;
        QVERIFY(start(console, "seq 60\nstty raw -echo\nprintf ready\nbytes=$(dd bs=1 count=" +
                                   QByteArray::number(received.size() / 2) +
                                   " 2>/dev/null | od -An -tx1 | tr -d ' \\n')\n"
                                   "printf '\\033[H\\033[2J%s' \"$bytes\"\nexec sleep 300"));
        auto* window = qobject_cast<torvane::ConsoleWindow*>(console.window());
        QTest::keyClick(window, Qt::Key_PageUp, Qt::ShiftModifier);
        QWheelEvent notch(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window, &notch);
        QCOMPARE(window->linesBack(), 24 + 3);  // a page and a notch of the wheel
        QTest::keyClick(window, Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(window->linesBack(), 3);
        QTest::sendKeyEvent(QTest::Press, window, Qt::Key(key), text,
                            Qt::KeyboardModifiers(modifiers));
        QCOMPARE(window->linesBack(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(Shown(console.screenText()), received, kWaitMs);
    }

    void aChattyProgramNeverWaitsOnTheConsole() {
        // About 500 KB, far more than a terminal holds: the program finishes only if the
        // console keeps taking its output. Nothing here reads the screen until it has.
        CConsole console;
        console.StartApp(
            program("i=0\nwhile [ $i -lt 7000 ]; do\n  printf 'line %04d %060d\\n' $i 0\n"
                    "  i=$((i+1))\ndone\n: > finished\nprintf 'last line'\nexec sleep 300"));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(QStringLiteral("finished")), 120000);
        QTRY_VERIFY_WITH_TIMEOUT(console.screenText().endsWith(QStringLiteral("last line")),
                                 kWaitMs);
        QVERIFY(console.screenText().startsWith(QStringLiteral("line 6976 ")));
    }

    void destroyingTheConsoleLeavesNoProcess_data() {
        QTest::addColumn<QByteArray>("script");
        const QByteArray child = "sleep 300 &\necho $! > child.pid\nprintf ready\n";
        QTest::newRow("program and child ignore the hang-up") << "trap '' HUP\n" + child + "wait";
        QTest::newRow("program has ended, its child runs on") << child + "exit 0";
    }

    void destroyingTheConsoleLeavesNoProcess() {
        QFETCH(QByteArray, script);
        auto console = std::make_unique<CConsole>();
        QVERIFY(start(*console, script));
        QFile pidFile(QStringLiteral("child.pid"));
        QVERIFY(pidFile.open(QIODevice::ReadOnly));
        const pid_t child = pidFile.readAll().trimmed().toInt();
        const pid_t pid = console->processId();
        QVERIFY(pid > 0 && child > 0 && !Gone(child));
        console.reset();
        QVERIFY2(Gone(pid), "the program is still there, running or as a zombie");
        QCOMPARE(waitpid(-1, nullptr, WNOHANG), pid_t(-1));  // no child of ours left to reap
        QCOMPARE(errno, ECHILD);
        // The child ends at once; the system reaps it once its parent has gone.
        QTRY_VERIFY_WITH_TIMEOUT(Gone(child), kWaitMs);
    }

    void insertWordWritesAtTheTopLeftAndTheCursorStays_data() {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("firstRow");
        QTest::newRow("the marker") << kMarker << QStringLiteral("***end***ld");
        QTest::newRow("control characters do not act") << "a\x1b[2J\r\n"
                                                       << "a?[2J??orld";
    }

    void insertWordWritesAtTheTopLeftAndTheCursorStays() {
        QFETCH(QString, word);
        QFETCH(QString, firstRow);
        CConsole console;
        console.WriteText(QStringLiteral("hello world\r\nsecond"));
        console.InsertWord(word);
        console.WriteText(QStringLiteral("X"));
        QCOMPARE(Shown(console.screenText()), firstRow + QStringLiteral("\nsecondX"));
    }

    void programsAndJobScriptsStart_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("screen");  // empty: nothing starts
        QTest::newRow("job script") << "run.bat"
                                    << "[run.bat]";
        QTest::newRow("blanks, quotes and operators") << "a b \"c\" & $x; |.BAT"
                                                      << "[a b \"c\" & $x; |.BAT]";
        QTest::newRow("leading dash") << "-x.bat"
                                      << "[./-x.bat]";
        QTest::newRow("program in the current directory") << "prog"
                                                          << "program";
        QTest::newRow("no interpreter") << "run.bat"
                                        << "";
        QTest::newRow("no such program") << "/no/such/program"
                                         << "";
        QTest::newRow("no name") << ""
                                 << "";
    }

    // A job script is run by the interpreter, here one that shows its arguments.
    void programsAndJobScriptsStart() {
        QFETCH(QString, name);
        QFETCH(QString, screen);
        CConsole::setInterpreterPath(dir_->filePath(QStringLiteral("interpreter")));
        if (!screen.isEmpty()) {
            program("printf '[%s]' \"$@\"\nexec sleep 300", QStringLiteral("interpreter"));
            program("printf program\nexec sleep 300", name);
        }
        CConsole console;
        console.StartApp(name);
        QCOMPARE(console.processId() > 0, !screen.isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(Shown(console.screenText()), screen, kWaitMs);
    }

    void consoleReadReturnsTheTypedLine_data() {
        QTest::addColumn<QList<QByteArray>>("typed");
        QTest::addColumn<QString>("line");
        QTest::newRow("a word") << QList<QByteArray>{"abc", "\r"} << "abc";
        QTest::newRow("backspace over a non-ASCII letter")
            << QList<QByteArray>{"h\xc3\xa9", "\x7f", "\x1b[A", "e", "\r"} << "he";
        QTest::newRow("pasted in one piece") << QList<QByteArray>{"one\rtwo\r"} << "one";
    }

    void consoleReadReturnsTheTypedLine() {
        QFETCH(QList<QByteArray>, typed);
        QFETCH(QString, line);
        CConsole console;
        QTimer::singleShot(0, [&console, typed] {
            for (const QByteArray& bytes : typed)
                console.sendInput(bytes);
        });
        QCOMPARE(console.ConsoleRead(), line);
        // Echoed where it was typed, and the cursor moved to the next line.
        console.WriteText(QStringLiteral("next"));
        QCOMPARE(Shown(console.screenText()), line + QStringLiteral("\nnext"));
    }

private:
    QString program(const QByteArray& body, const QString& name = QStringLiteral("program")) {
        QFile file(name);
        if (file.open(QIODevice::WriteOnly))
            file.write("#!/bin/sh\n" + body + "\n");
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return dir_->filePath(name);
    }
    // Starts the program; true once it has printed "ready".
    bool start(CConsole& console, const QByteArray& body) {
        console.StartApp(program(body));
        const auto ready = [&] {
            return Shown(console.screenText()).endsWith(QStringLiteral("ready"));
        };
        return QTest::qWaitFor(ready, kWaitMs);
    }

    std::unique_ptr<QTemporaryDir> dir_;  // the current directory, new for each test
};

QTEST_MAIN(ConsoleTest)
#include "console_test.moc"
