#include "job/cconsole.h"

#include "core/services.h"
#include "platform/console_colours.h"
#include "platform/pty.h"
#include "platform/screen_model.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <vector>

namespace torvane {

namespace {

constexpr int kRows = 25;
constexpr int kColumns = 80;
// The job engine's poll reads this many cells of row 0.
constexpr int kWordScanLength = 9;
// Bytes taken from the terminal per read.
constexpr long kReadChunk = 4096;
// Most bytes taken from the terminal before the event loop gets its turn again, so that a
// tool that never stops printing cannot freeze the program.
constexpr long kMaxDrain = 256 * 1024;

// The text attribute bit that SetColors adds for the intensity flag.
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
    std::unique_ptr<QSocketNotifier> notifier;
    std::unique_ptr<ConsoleView> view;

    QString title;
    int32_t foreColor = 0;
    bool foreIntense = false;

    void drain();
    void changed();
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

void CConsole::Impl::changed() {
    if (view)
        view->consoleChanged();
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
    d->screen->setChangedHandler([impl] { impl->changed(); });
    // Output is taken as it comes, so a program never waits on a full terminal.
    d->notifier = std::make_unique<QSocketNotifier>(d->pty.masterFd(), QSocketNotifier::Read);
    QObject::connect(d->notifier.get(), &QSocketNotifier::activated, d->notifier.get(),
                     [impl] { impl->drain(); });
    g_instance = this;
}

CConsole::~CConsole() {
    d->notifier.reset();  // before its descriptor closes
    d->pty.hangUp();
    d->view.reset();  // before the screen it shows
    if (g_instance == this)
        g_instance = nullptr;
}

QString CConsole::title() const {
    return d->title;
}

void CConsole::setTitle(const QString& New_Title) {
    d->title = New_Title;
    d->changed();
}

void CConsole::setForeColor(int32_t New_Color) {
    d->foreColor = New_Color;
    SetColors();
}

void CConsole::setForeIntense(bool New_Value) {
    d->foreIntense = New_Value;
    SetColors();
}

QString CConsole::WordScan() {
    if (!d->screen) {
        if (d->boxes != nullptr)
            PlainBox(*d->boxes, QStringLiteral("There is an unexpected error"));
        return QString();
    }
    d->drain();
    return d->screen->text(0, 0, kWordScanLength);
}

void CConsole::StartApp(const QString& sFilepath) {
    std::vector<QByteArray> argv;
    if (sFilepath.right(4).toLower() == QLatin1String(".bat"))
        argv = {QFile::encodeName(interpreterPath()), ArgumentPath(sFilepath)};
    else
        argv = {ProgramPath(sFilepath)};
    d->pty.start(argv);
}

platform::ScreenModel& CConsole::screen() {
    return *d->screen;
}

void CConsole::sendInput(const QByteArray& bytes) {
    d->pty.write(bytes.constData(), bytes.size());
}

void CConsole::attachView(std::unique_ptr<ConsoleView> view) {
    d->view = std::move(view);
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
    const int32_t attribute = d->foreColor | (d->foreIntense ? kForegroundIntensity : 0);
    if (!d->screen)
        Raise(10103, "SetColors", "STD_OUT_HANDLE was invalid");
    const platform::AttributeColours colours = platform::ColoursOfAttribute(attribute);
    d->screen->setDefaultColours(colours.foreground, colours.background);
}

}  // namespace torvane
