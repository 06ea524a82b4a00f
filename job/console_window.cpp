#include "job/console_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <memory>
#include <optional>

namespace torvane {

namespace {

// Minimum time between two repaints (about 30 a second): a tool that prints fast changes
// the screen thousands of times a second, and nobody reads faster than this.
constexpr int kMinRepaintIntervalMs = 33;

// Space around the cells, in pixels.
constexpr int kMargin = 2;

QColor ToQColor(platform::Rgb colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

struct SpecialKeyName {
    int qtKey;
    platform::SpecialKey key;
};

constexpr SpecialKeyName kSpecialKeys[] = {
    {Qt::Key_Up, platform::SpecialKey::Up},
    {Qt::Key_Down, platform::SpecialKey::Down},
    {Qt::Key_Left, platform::SpecialKey::Left},
    {Qt::Key_Right, platform::SpecialKey::Right},
    {Qt::Key_Home, platform::SpecialKey::Home},
    {Qt::Key_End, platform::SpecialKey::End},
    {Qt::Key_Insert, platform::SpecialKey::Insert},
    {Qt::Key_Delete, platform::SpecialKey::Delete},
    {Qt::Key_PageUp, platform::SpecialKey::PageUp},
    {Qt::Key_PageDown, platform::SpecialKey::PageDown},
};

std::optional<platform::SpecialKey> SpecialKeyOf(int qtKey) {
    for (const SpecialKeyName& name : kSpecialKeys) {
        if (name.qtKey == qtKey)
            return name.key;
    }
    return std::nullopt;
}

// Keys whose bytes are the same in every terminal mode.
QByteArray FixedKeyBytes(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return QByteArrayLiteral("\r");
        case Qt::Key_Backspace:
            return QByteArrayLiteral("\x7f");
        case Qt::Key_Tab:
            return QByteArrayLiteral("\t");
        case Qt::Key_Escape:
            return QByteArrayLiteral("\x1b");
        default:
            return QByteArray();
    }
}

}  // namespace

// The cells, inside the window's scroll area. The window keeps the focus and the keys.
class ScreenView : public QWidget {
public:
    explicit ScreenView(ConsoleWindow& console) : console_(console) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setFocusPolicy(Qt::NoFocus);
        setFixedSize(console.screenSize());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        console_.paintScreen(painter);
    }
    // The wheel browses the scrollback, as over the window, not the scroll area.
    void wheelEvent(QWheelEvent* event) override { QCoreApplication::sendEvent(&console_, event); }

private:
    ConsoleWindow& console_;
};

ConsoleWindow::ConsoleWindow(CConsole& console)
    : QWidget(nullptr, Qt::Window), console_(console), screen_(console.screen()) {
    setWindowTitle(console.title());
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    view_ = new ScreenView(*this);
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(view_);
    closeNote_ =
        new QLabel(QStringLiteral("This window closes by itself when its job has ended."), this);
    closeNote_->setMargin(kMargin * 2);
    closeNote_->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(area);
    layout->addWidget(closeNote_);
    fitWhole();
    repaintTimer_.setSingleShot(true);
    repaintTimer_.setInterval(kMinRepaintIntervalMs);
    connect(&repaintTimer_, &QTimer::timeout, view_, qOverload<>(&QWidget::update));
}

// No larger than the whole screen and the note, and as large as that to start with.
void ConsoleWindow::fitWhole() {
    QSize whole = view_->size();
    if (!closeNote_->isHidden())
        whole.rheight() += closeNote_->sizeHint().height();
    setMaximumSize(whole);
    resize(whole);
}

void ConsoleWindow::consoleChanged() {
    if (windowTitle() != console_.title())
        setWindowTitle(console_.title());
    if (!repaintTimer_.isActive())
        repaintTimer_.start();
}

QSize ConsoleWindow::cellSize() const {
    const QFontMetrics metrics(font());
    return QSize(metrics.horizontalAdvance(QLatin1Char('M')), metrics.height());
}

QSize ConsoleWindow::screenSize() const {
    const QSize cell = cellSize();
    return QSize(cell.width() * screen_.columns() + 2 * kMargin,
                 cell.height() * screen_.rows() + 2 * kMargin);
}

void ConsoleWindow::paintScreen(QPainter& painter) const {
    painter.fillRect(QRect(QPoint(), screenSize()), ToQColor(screen_.defaultBackground()));
    const int ascent = QFontMetrics(font()).ascent();
    for (int row = 0; row < screen_.rows(); ++row)
        paintRow(painter, row, ascent);
    if (linesBack_ > 0)
        return;
    // The cursor: a bar under the cell where the next character goes.
    const QSize cell = cellSize();
    const platform::CursorPosition at = screen_.cursor();
    painter.fillRect(kMargin + at.column * cell.width(), kMargin + (at.row + 1) * cell.height() - 2,
                     cell.width(), 2, ToQColor(screen_.defaultForeground()));
}

void ConsoleWindow::paintRow(QPainter& painter, int row, int ascent) const {
    const QSize cell = cellSize();
    const int top = kMargin + row * cell.height();
    if (const std::optional<QString> old = screen_.scrolledBackRow(linesBack_, row)) {
        painter.setPen(ToQColor(screen_.defaultForeground()));
        painter.drawText(kMargin, top + ascent, *old);
        return;
    }
    for (int column = 0; column < screen_.columns(); ++column) {
        const platform::Cell c = screen_.cell(row - linesBack_, column);
        const QRect box(kMargin + column * cell.width(), top, cell.width(), cell.height());
        if (c.background != screen_.defaultBackground())
            painter.fillRect(box, ToQColor(c.background));
        if (c.text.trimmed().isEmpty())
            continue;
        painter.setPen(ToQColor(c.foreground));
        painter.drawText(box.left(), box.top() + ascent, c.text);
    }
}

void ConsoleWindow::scrollBack(int lines) {
    const int wanted = std::clamp(linesBack_ + lines, 0, screen_.scrollbackLines());
    if (wanted == linesBack_)
        return;
    linesBack_ = wanted;
    view_->update();
}

void ConsoleWindow::wheelEvent(QWheelEvent* event) {
    // One notch of the wheel is 120 units and scrolls three lines.
    scrollBack(event->angleDelta().y() / 40);
    event->accept();
}

QByteArray ConsoleWindow::bytesOfKey(const QKeyEvent& event) {
    const int key = event.key();
    QByteArray bytes = FixedKeyBytes(key);
    if (!bytes.isEmpty())
        return bytes;
    if (const auto special = SpecialKeyOf(key))
        return screen_.keySequence(*special);
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    if (control && key >= Qt::Key_A && key <= Qt::Key_Z)
        return QByteArray(1, static_cast<char>(key - Qt::Key_A + 1));
    return event.text().toUtf8();
}

void ConsoleWindow::keyPressEvent(QKeyEvent* event) {
    // Shift with Page Up or Page Down browses the scrollback; the program sees nothing of it.
    const bool shifted = event->modifiers().testFlag(Qt::ShiftModifier);
    if (shifted && (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)) {
        const int page = screen_.rows() - 1;
        scrollBack(event->key() == Qt::Key_PageUp ? page : -page);
        event->accept();
        return;
    }
    const QByteArray bytes = bytesOfKey(*event);
    if (bytes.isEmpty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    scrollBack(-linesBack_);  // typing brings the live screen back
    console_.sendInput(bytes);
    event->accept();
}

void ConsoleWindow::closeEvent(QCloseEvent* event) {
    if (closeNote_->isHidden()) {
        closeNote_->show();
        fitWhole();
    }
    event->ignore();
}

bool ConsoleWindow::focusNextPrevChild(bool) {
    return false;
}

ConsoleWindow& AttachConsoleWindow(CConsole& console) {
    auto window = std::make_unique<ConsoleWindow>(console);
    ConsoleWindow& shown = *window;
    shown.show();
    console.attachView(std::move(window));
    return shown;
}

}  // namespace torvane
