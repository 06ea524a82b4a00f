#include "job/cconsole.h"

#include "job/console_window.h"
#include "job/services.h"
#include "platform/console_colours.h"
#include "platform/pty.h"
#include "platform/screen_model.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <cmath>
#include <limits>
#include <vector>

namespace torvane {

namespace {

constexpr int kRows = 25;
constexpr int kColumns = 80;
// The job engine's poll reads this many cells of row 0.
constexpr int kWordScanLength = 9;
// A line read from the console: 256 characters of buffer less its line end and a NUL.
constexpr int kMaxLineLength = 253;
// Bytes taken from the terminal per read.
constexpr long kReadChunk = 4096;
// Most bytes taken from the terminal before the event loop gets its turn again, so that a
// tool that never stops printing cannot freeze the program.
constexpr long kMaxDrain = 256 * 1024;

// Escape sequences of the screen: save and restore the cursor (ESC 7, ESC 8), go to the
// top left corner.
const QByteArray kSaveCursor = QByteArrayLiteral("\0337");
const QByteArray kRestoreCursor = QByteArrayLiteral("\0338");
const QByteArray kTopLeft = QByteArrayLiteral("\033[1;1H");

// The text attribute bits that SetColors adds for the two intensity flags.
constexpr int32_t kBackgroundIntensity = 128;
constexpr int32_t kForegroundIntensity = 8;

const CConsole* g_instance = nullptr;

QString& InterpreterOverride() {
    static QString path;
    return path;
}

[[noreturn]] void Raise(int number, const char* source, const char* description) {
    throw ConsoleError(number, QString::fromLatin1(source), QString::fromLatin1(description));
}

// A program named without a folder is found in the current directory first, as the
// console's own command line would find it.
QByteArray ProgramPath(const QString& path) {
    if (!path.contains(QLatin1Char('/')) && QFileInfo(path).isFile())
        return QFile::encodeName(QStringLiteral("./") + path);
    return QFile::encodeName(path);
}

// A relative name with a leading dash would read as an option of the interpreter.
QByteArray ArgumentPath(const QString& path) {
    if (path.startsWith(QLatin1Char('-')))
        return QFile::encodeName(QStringLiteral("./") + path);
    return QFile::encodeName(path);
}

// The text as it can stand in the cells: no control character acts on the screen.
QString Printable(const QString& text) {
    QString result = text;
    for (QChar& c : result) {
        if (c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0))
            c = QLatin1Char('?');
    }
    return result;
}

// A number taken from text as a 32-bit integer, halves to the even neighbour; 0 for text
// that is no number or does not fit.
int32_t NumberOfText(const QString& text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return 0;
    const double rounded = std::nearbyint(value);
    if (rounded < std::numeric_limits<int32_t>::min() ||
        rounded > std::numeric_limits<int32_t>::max())
        return 0;
    return static_cast<int32_t>(rounded);
}

}  // namespace

ConsoleError::ConsoleError(int number_, QString source_, QString description_)
    : std::runtime_error(description_.toStdString()),
      number(number_),
      source(std::move(source_)),
      description(std::move(description_)) {}

struct CConsole::Impl {
    MessageBoxes* boxes = nullptr;
    platform::Pty pty;
    std::unique_ptr<platform::ScreenModel> screen;
    std::unique_ptr<ConsoleWindow> window;
    std::unique_ptr<QSocketNotifier> notifier;

    QString title;
    int32_t foreColor = 0;
    int32_t backColor = 0;
    bool backIntense = false;
    bool foreIntense = false;
    int32_t bufferLength = 0;
    int attribute = 0;
    pid_t pid = -1;

    QEventLoop* lineLoop = nullptr;  // set while ConsoleRead waits for a line
    QString line;

    void drain();
    void typed(const QByteArray& bytes);
    void editLine(const QByteArray& bytes);
    void eraseLast();
    void unexpectedError();
};

void CConsole::Impl::drain() {
    char buffer[kReadChunk];
    for (long total = 0; total < kMaxDrain;) {
        const long n = pty.read(buffer, kReadChunk);
        if (n > 0) {
            screen->feed(buffer, static_cast<std::size_t>(n));
            total += n;
            continue;
        }
        // A terminal that failed stays readable for ever: stop being woken by it.
        if (n < 0 && notifier)
            notifier->setEnabled(false);
        return;
    }
}

void CConsole::Impl::typed(const QByteArray& bytes) {
    if (lineLoop != nullptr)
        editLine(bytes);
    else
        pty.write(bytes.constData(), bytes.size());
}

// The console's own line editing while ConsoleRead waits: typed text is echoed on the
// screen, Backspace takes back the last character, Enter ends the line.
void CConsole::Impl::editLine(const QByteArray& bytes) {
    if (bytes.startsWith('\x1b'))
        return;  // cursor and function keys do not edit this line
    for (const QChar c : QString::fromUtf8(bytes)) {
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            screen->feed("\r\n", 2);
            lineLoop->quit();
            return;
        }
        if (c == QLatin1Char('\x7f') || c == QLatin1Char('\b')) {
            eraseLast();
        } else if (c.unicode() >= 0x20) {
            line += c;
            if (!c.isHighSurrogate())
                screen->feed(line.right(c.isLowSurrogate() ? 2 : 1).toUtf8());
        }
    }
}

void CConsole::Impl::eraseLast() {
    if (line.isEmpty())
        return;
    line.chop(line.size() >= 2 && line.back().isLowSurrogate() ? 2 : 1);
    screen->feed("\b \b", 3);
}

void CConsole::Impl::unexpectedError() {
    if (boxes != nullptr)
        PlainBox(*boxes, QStringLiteral("There is an unexpected error"));
}

CConsole::CConsole(MessageBoxes* boxes) : d(std::make_unique<Impl>()) {
    if (g_instance != nullptr)
        Raise(10102, "Class_Initialize", "Couldn't allocate console");
    d->boxes = boxes;
    if (!d->pty.open(kRows, kColumns))
        Raise(10102, "Class_Initialize", "Couldn't allocate console");
    d->screen = platform::ScreenModel::create(kRows, kColumns);
    if (!d->screen)
        Raise(10101, "Class_Initialize", "Couldn't get STD handles");
    Impl* impl = d.get();
    d->screen->setWriter([impl](const char* bytes, std::size_t length) {
        impl->pty.write(bytes, static_cast<long>(length));
    });
    d->window = std::make_unique<ConsoleWindow>(
        *d->screen, [impl](const QByteArray& bytes) { impl->typed(bytes); });
    d->screen->setChangedHandler([impl] { impl->window->screenChanged(); });
    // Output is taken as it comes, so a program never waits on a full terminal.
    d->notifier = std::make_unique<QSocketNotifier>(d->pty.masterFd(), QSocketNotifier::Read);
    QObject::connect(d->notifier.get(), &QSocketNotifier::activated, d->window.get(),
                     [impl] { impl->drain(); });
    d->window->show();
    g_instance = this;
}

CConsole::~CConsole() {
    d->notifier.reset();  // before its descriptor closes
    d->pty.hangUp();
    d->window.reset();
    if (g_instance == this)
        g_instance = nullptr;
}

QString CConsole::title() const {
    return d->title;
}

void CConsole::setTitle(const QString& New_Title) {
    d->title = New_Title;
    d->window->setWindowTitle(New_Title);
}

int32_t CConsole::ForeColor() const {
    return d->foreColor;
}

void CConsole::setForeColor(int32_t New_Color) {
    d->foreColor = New_Color;
    SetColors();
}

int32_t CConsole::BackColor() const {
    return d->backColor;
}

void CConsole::setBackColor(int32_t New_Color) {
    d->backColor = New_Color;
    SetColors();
}

bool CConsole::BackIntense() const {
    return d->backIntense;
}

void CConsole::setBackIntense(bool New_Value) {
    d->backIntense = New_Value;
    SetColors();
}

bool CConsole::ForeIntense() const {
    return d->foreIntense;
}

void CConsole::setForeIntense(bool New_Value) {
    d->foreIntense = New_Value;
    SetColors();
}

QString CConsole::BufferLength() const {
    return QString::number(d->bufferLength);
}

void CConsole::setBufferLength(const QString& New_BufferLength) {
    d->bufferLength = NumberOfText(New_BufferLength);
}

void CConsole::WriteText(const QString& sText) {
    if (!d->screen)
        Raise(10103, "WriteText", "STD_OUT_HANDLE was invalid");
    d->drain();  // what the program wrote before stands before this text
    d->screen->feed(sText.toUtf8());
}

QString CConsole::ConsoleRead() {
    QEventLoop loop;
    d->line.clear();
    d->lineLoop = &loop;
    loop.exec();
    d->lineLoop = nullptr;
    return d->line.left(kMaxLineLength);
}

QString CConsole::WordScan() {
    if (!d->screen) {
        d->unexpectedError();
        return QString();
    }
    d->drain();
    return d->screen->text(0, 0, kWordScanLength);
}

void CConsole::InsertWord(const QString& sText) {
    if (!d->screen) {
        d->unexpectedError();
        return;
    }
    d->drain();
    // Written cell by cell from the top left corner; the text never scrolls the screen.
    const QString cells = Printable(sText).left(kRows * kColumns);
    d->screen->feed(kSaveCursor + kTopLeft + cells.toUtf8() + kRestoreCursor);
}

void CConsole::StartApp(const QString& sFilepath) {
    std::vector<QByteArray> argv;
    if (sFilepath.right(4).toLower() == QLatin1String(".bat"))
        argv = {QFile::encodeName(interpreterPath()), ArgumentPath(sFilepath)};
    else
        argv = {ProgramPath(sFilepath)};
    d->pid = d->pty.start(argv);
}

void CConsole::sendInput(const QByteArray& bytes) {
    d->typed(bytes);
}

QString CConsole::screenText() {
    if (!d->screen)
        return QString();
    d->drain();
    return d->screen->screenText();
}

pid_t CConsole::processId() const {
    return d->pid;
}

QWidget* CConsole::window() const {
    return d->window.get();
}

int CConsole::attribute() const {
    return d->attribute;
}

void CConsole::setInterpreterPath(const QString& path) {
    InterpreterOverride() = path;
}

QString CConsole::interpreterPath() {
    if (!InterpreterOverride().isEmpty())
        return InterpreterOverride();
    return QCoreApplication::applicationDirPath() + QStringLiteral("/torvane-cmd");
}

void CConsole::SetColors() {
    const int32_t attribute = d->foreColor | d->backColor |
                              (d->backIntense ? kBackgroundIntensity : 0) |
                              (d->foreIntense ? kForegroundIntensity : 0);
    if (!d->screen)
        Raise(10103, "SetColors", "STD_OUT_HANDLE was invalid");
    d->attribute = attribute;
    const platform::AttributeColours colours = platform::ColoursOfAttribute(attribute);
    d->screen->setDefaultColours(colours.foreground, colours.background);
}

}  // namespace torvane
