// CConsole with real programs in its terminal: what they print reaches row 0, keys typed
// in the console window reach them, and nothing of them outlives the console.

#include "job/cconsole.h"
#include "job/console_window.h"

#include <sys/wait.h>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <cerrno>
#include <csignal>
#include <memory>

using torvane::CConsole;
using torvane::ConsoleError;

namespace {

const QString kMarker = QStringLiteral("***end***");
// How long a test waits for a program to get somewhere (they are quick; the machine may
// be busy).
constexpr int kWaitMs = 30000;

QString FirstRow(const QString& screen) {
    return screen.section(QLatin1Char('\n'), 0, 0);
}

bool Gone(pid_t pid) {
    return kill(pid, 0) == -1 && errno == ESRCH;
}

QColor PixelOfFirstCell(QWidget* window) {
    const QImage image = window->grab().toImage();
    return image.pixelColor(window->width() / 160, window->height() / 50);
}

}  // namespace

class CConsoleTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void setColorsMakesTheAttributeAndTheWindowShowsIt_data();
    void setColorsMakesTheAttributeAndTheWindowShowsIt();
    void theTitleNamesTheWindowThatLivesAsLongAsTheConsole();
    void bufferLengthKeepsTheNumberOfItsText_data();
    void bufferLengthKeepsTheNumberOfItsText();
    void onlyOneConsoleCanExistAtATime();
    void keysTypedInTheWindowReachTheProgram_data();
    void keysTypedInTheWindowReachTheProgram();
    void aChattyProgramNeverWaitsOnTheConsole();
    void browsingTheScrollbackIsNoKeyForTheProgram();
    void destroyingTheConsoleLeavesNoProcess_data();
    void destroyingTheConsoleLeavesNoProcess();
    void insertWordWritesAtTheTopLeftAndTheCursorStays_data();
    void insertWordWritesAtTheTopLeftAndTheCursorStays();
    void jobScriptsRunThroughTheInterpreter_data();
    void jobScriptsRunThroughTheInterpreter();
    void aProgramThatCannotStartIsPassedOver();
    void consoleReadReturnsTheTypedLine_data();
    void consoleReadReturnsTheTypedLine();

private:
    QString makeProgram(const QString& name, const QByteArray& body);

    std::unique_ptr<QTemporaryDir> dir_;
    QString oldCurrent_;
};

void CConsoleTest::init() {
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    oldCurrent_ = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir_->path()));
    CConsole::setInterpreterPath(QString());
}

void CConsoleTest::cleanup() {
    QDir::setCurrent(oldCurrent_);
    dir_.reset();
}

QString CConsoleTest::makeProgram(const QString& name, const QByteArray& body) {
    const QString path = dir_->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write("#!/bin/sh\n" + body + "\n");
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void CConsoleTest::setColorsMakesTheAttributeAndTheWindowShowsIt_data() {
    QTest::addColumn<int>("fore");
    QTest::addColumn<int>("back");
    QTest::addColumn<bool>("backIntense");
    QTest::addColumn<bool>("foreIntense");
    QTest::addColumn<int>("attribute");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("paper");
    QTest::newRow("job colours: bright green on black")
        << 2 << 0 << false << true << 10 << QColor(0, 255, 0) << QColor(0, 0, 0);
    QTest::newRow("background intensity adds 128")
        << 0 << 16 << true << false << 144 << QColor(0, 0, 0) << QColor(0, 0, 255);
}

void CConsoleTest::setColorsMakesTheAttributeAndTheWindowShowsIt() {
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
    QCOMPARE(console.ForeColor(), fore);
    QCOMPARE(console.BackColor(), back);
    QCOMPARE(console.BackIntense(), backIntense);
    QCOMPARE(console.ForeIntense(), foreIntense);
    QCOMPARE(PixelOfFirstCell(console.window()), paper);
    console.WriteText(QStringLiteral("\x1b[7m \x1b[m"));  // a blank in reverse video
    QCOMPARE(PixelOfFirstCell(console.window()), text);
}

void CConsoleTest::theTitleNamesTheWindowThatLivesAsLongAsTheConsole() {
    auto console = std::make_unique<CConsole>();
    QPointer<QWidget> window = console->window();
    QVERIFY(window->isVisible());
    QVERIFY(window->isWindow());
    console->setTitle(QStringLiteral("Torvane -- VCDXMINFO Tool"));
    QCOMPARE(console->title(), QStringLiteral("Torvane -- VCDXMINFO Tool"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Torvane -- VCDXMINFO Tool"));
    window->close();
    QVERIFY2(window->isVisible(), "the console stands open until it is dropped");
    console.reset();
    QVERIFY(window.isNull());
}

void CConsoleTest::bufferLengthKeepsTheNumberOfItsText_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a number") << QStringLiteral("300") << QStringLiteral("300");
    QTest::newRow("not a number") << QStringLiteral("abc") << QStringLiteral("0");
    QTest::newRow("too large for 32 bits") << QStringLiteral("2147483648") << QStringLiteral("0");
}

void CConsoleTest::bufferLengthKeepsTheNumberOfItsText() {
    QFETCH(QString, text);
    QFETCH(QString, expected);
    CConsole console;
    console.setBufferLength(QStringLiteral("17"));
    console.setBufferLength(text);
    QCOMPARE(console.BufferLength(), expected);
}

void CConsoleTest::onlyOneConsoleCanExistAtATime() {
    auto first = std::make_unique<CConsole>();
    try {
        CConsole second;
        QFAIL("a second console was allocated");
    } catch (const ConsoleError& error) {
        QCOMPARE(error.number, 10102);
        QCOMPARE(error.source, QStringLiteral("Class_Initialize"));
        QCOMPARE(error.description, QStringLiteral("Couldn't allocate console"));
    }
    first->WriteText(QStringLiteral("still here"));
    QCOMPARE(first->WordScan(), QStringLiteral("still her"));
    first.reset();
    CConsole again;
    QCOMPARE(again.WordScan(), QString(9, QLatin1Char(' ')));
}

void CConsoleTest::keysTypedInTheWindowReachTheProgram_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QByteArray>("received");  // in hex
    const int none = Qt::NoModifier;
    const int control = Qt::ControlModifier;
    QTest::newRow("letter") << int(Qt::Key_A) << QStringLiteral("a") << none << QByteArray("61");
    QTest::newRow("return") << int(Qt::Key_Return) << QStringLiteral("\r") << none
                            << QByteArray("0d");
    QTest::newRow("up arrow") << int(Qt::Key_Up) << QString() << none << QByteArray("1b5b41");
    QTest::newRow("control d without text")
        << int(Qt::Key_D) << QString() << control << QByteArray("04");
}

void CConsoleTest::keysTypedInTheWindowReachTheProgram() {
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    QFETCH(QByteArray, received);
    // The program takes the bytes raw and shows them in hex on row 0.
    const QString program = makeProgram(
        QStringLiteral("keys"), "stty raw -echo\nprintf ready\nbytes=$(dd bs=1 count=" +
                                    QByteArray::number(received.size() / 2) +
                                    " 2>/dev/null | od -An -tx1 | tr -d ' \\n')\n"
                                    "printf '\\033[H\\033[2J%s\\r\\n' \"$bytes\"\nexec sleep 300");
    CConsole console;
    console.StartApp(program);
    QTRY_COMPARE_WITH_TIMEOUT(console.WordScan(), QStringLiteral("ready    "), kWaitMs);
    QTest::sendKeyEvent(QTest::Press, console.window(), Qt::Key(key), text,
                        Qt::KeyboardModifiers(modifiers));
    QTRY_COMPARE_WITH_TIMEOUT(FirstRow(console.screenText()), QString::fromLatin1(received),
                              kWaitMs);
}

void CConsoleTest::browsingTheScrollbackIsNoKeyForTheProgram() {
    const QString program =
        makeProgram(QStringLiteral("pager"),
                    "seq 1 60\nstty raw -echo\nprintf ready\n"
                    "byte=$(dd bs=1 count=1 2>/dev/null | od -An -tx1 | tr -d ' ')\n"
                    "printf '\\033[H\\033[2Jgot %s' \"$byte\"\nexec sleep 300");
    CConsole console;
    console.StartApp(program);
    QTRY_VERIFY_WITH_TIMEOUT(console.screenText().endsWith(QStringLiteral("ready")), kWaitMs);
    auto* window = qobject_cast<torvane::ConsoleWindow*>(console.window());
    QTest::keyClick(window, Qt::Key_PageUp, Qt::ShiftModifier);
    QWheelEvent notch(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &notch);
    QCOMPARE(window->linesBack(), 24 + 3);
    QTest::keyClick(window, Qt::Key_PageDown, Qt::ShiftModifier);
    QCOMPARE(window->linesBack(), 3);
    QTest::qWait(300);
    QVERIFY(console.screenText().endsWith(QStringLiteral("ready")));  // still waiting
    QTest::keyClick(window, Qt::Key_A);
    QCOMPARE(window->linesBack(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(console.WordScan(), QStringLiteral("got 61   "), kWaitMs);
}

void CConsoleTest::aChattyProgramNeverWaitsOnTheConsole() {
    // About 500 KB, far more than a terminal holds: the program finishes only if the
    // console keeps taking its output. Nothing here reads the screen until it has.
    const QString program = makeProgram(
        QStringLiteral("chatty"),
        "i=0\nwhile [ $i -lt 7000 ]; do\n"
        "  printf 'line %04d ............................................................\\n' $i\n"
        "  i=$((i+1))\ndone\n"
        ": > finished\nprintf 'last line'\nexec sleep 300");
    CConsole console;
    console.StartApp(program);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(dir_->filePath(QStringLiteral("finished"))), 120000);
    QTRY_VERIFY_WITH_TIMEOUT(console.screenText().endsWith(QStringLiteral("last line")), kWaitMs);
    const QStringList rows = console.screenText().split(QLatin1Char('\n'));
    QCOMPARE(rows.size(), 25);
    QVERIFY2(rows.at(23).startsWith(QStringLiteral("line 6999 ")), qPrintable(rows.at(23)));
    QVERIFY2(rows.at(0).startsWith(QStringLiteral("line 6976 ")), qPrintable(rows.at(0)));
}

void CConsoleTest::destroyingTheConsoleLeavesNoProcess_data() {
    QTest::addColumn<QByteArray>("script");
    const QByteArray startChild = "sleep 300 &\necho $! > child.pid\nprintf ready\n";
    QTest::newRow("program and child ignore the hang-up") << "trap '' HUP\n" + startChild + "wait";
    QTest::newRow("program has ended, its child runs on") << startChild + "exit 0";
}

void CConsoleTest::destroyingTheConsoleLeavesNoProcess() {
    QFETCH(QByteArray, script);
    const QString program = makeProgram(QStringLiteral("lingering"), script);
    auto console = std::make_unique<CConsole>();
    console->StartApp(program);
    QTRY_COMPARE_WITH_TIMEOUT(console->WordScan(), QStringLiteral("ready    "), kWaitMs);
    QFile pidFile(dir_->filePath(QStringLiteral("child.pid")));
    QVERIFY(pidFile.open(QIODevice::ReadOnly));
    const pid_t child = pidFile.readAll().trimmed().toInt();
    const pid_t pid = console->processId();
    QVERIFY(pid > 0 && child > 0);
    QVERIFY(!Gone(child));
    console.reset();
    QVERIFY2(Gone(pid), "the program is still there, running or as a zombie");
    int status = 0;
    QCOMPARE(waitpid(-1, &status, WNOHANG), pid_t(-1));  // no child of ours is left to reap
    QCOMPARE(errno, ECHILD);
    // The child ends at once; the system reaps it once its parent has gone.
    QTRY_VERIFY_WITH_TIMEOUT(Gone(child), kWaitMs);
}

void CConsoleTest::insertWordWritesAtTheTopLeftAndTheCursorStays_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("firstRow");
    QTest::newRow("the marker") << kMarker << QStringLiteral("***end***ld");
}

void CConsoleTest::insertWordWritesAtTheTopLeftAndTheCursorStays() {
    QFETCH(QString, word);
    QFETCH(QString, firstRow);
    CConsole console;
    console.WriteText(QStringLiteral("hello world\r\nsecond"));
    console.InsertWord(word);
    QCOMPARE(console.WordScan(), firstRow.left(9));
    console.WriteText(QStringLiteral("X"));
    const QStringList rows = console.screenText().split(QLatin1Char('\n'));
    QCOMPARE(rows.at(0), firstRow);
    QCOMPARE(rows.at(1), QStringLiteral("secondX"));
}

void CConsoleTest::jobScriptsRunThroughTheInterpreter_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("firstRow");
    QTest::newRow("job script") << QStringLiteral("run.bat") << QStringLiteral("[run.bat]");
    QTest::newRow("blanks, quotes and operators")
        << QStringLiteral("a b \"c\" & $x; |.bat") << QStringLiteral("[a b \"c\" & $x; |.bat]");
    QTest::newRow("leading dash") << QStringLiteral("-x.bat") << QStringLiteral("[./-x.bat]");
    QTest::newRow("program in the current directory")
        << QStringLiteral("prog") << QStringLiteral("program");
}

void CConsoleTest::jobScriptsRunThroughTheInterpreter() {
    QFETCH(QString, name);
    QFETCH(QString, firstRow);
    CConsole::setInterpreterPath(makeProgram(
        QStringLiteral("interpreter"), "printf '\\033[H\\033[2J[%s]' \"$@\"\nexec sleep 300"));
    makeProgram(name, "printf '\\033[H\\033[2Jprogram'\nexec sleep 300");
    CConsole console;
    console.StartApp(name);
    QVERIFY(console.processId() > 0);
    QTRY_COMPARE_WITH_TIMEOUT(FirstRow(console.screenText()), firstRow, kWaitMs);
}

void CConsoleTest::aProgramThatCannotStartIsPassedOver() {
    CConsole::setInterpreterPath(dir_->filePath(QStringLiteral("no-interpreter")));
    CConsole console;
    console.StartApp(QStringLiteral("/no/such/program"));
    QCOMPARE(console.processId(), pid_t(-1));
    console.StartApp(QStringLiteral("run.bat"));
    QCOMPARE(console.processId(), pid_t(-1));
    console.StartApp(QString());
    QCOMPARE(console.processId(), pid_t(-1));
    QCOMPARE(console.WordScan(), QString(9, QLatin1Char(' ')));
}

void CConsoleTest::consoleReadReturnsTheTypedLine_data() {
    QTest::addColumn<QList<QByteArray>>("typed");
    QTest::addColumn<QString>("line");
    QTest::newRow("a word") << QList<QByteArray>{"abc", "\r"} << QStringLiteral("abc");
    QTest::newRow("backspace over a non-ASCII letter")
        << QList<QByteArray>{"h\xc3\xa9", "\x7f", "e", "\r"} << QStringLiteral("he");
    QTest::newRow("pasted in one piece")
        << QList<QByteArray>{"one\rtwo\r"} << QStringLiteral("one");
}

void CConsoleTest::consoleReadReturnsTheTypedLine() {
    QFETCH(QList<QByteArray>, typed);
    QFETCH(QString, line);
    CConsole console;
    QTimer::singleShot(0, [&console, typed] {
        for (const QByteArray& bytes : typed)
            console.sendInput(bytes);
    });
    QCOMPARE(console.ConsoleRead(), line);
    // Echoed where it was typed, and the cursor moved to the next line.
    QCOMPARE(FirstRow(console.screenText()), line.left(80));
}

QTEST_MAIN(CConsoleTest)
#include "cconsole_test.moc"
