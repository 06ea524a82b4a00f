#pragma once
// The console window: a top-level window that paints the screen of a console, cell by cell
// in a fixed-pitch font, titled by the console's title, and sends the keys typed in it to
// the console as the bytes a terminal sends. It holds no state of the console. Shrunk below
// the screen's size, the window scrolls over the screen, so that nothing of it, the prompt
// of a pause included, is out of reach.

#include "job/cconsole.h"
#include "platform/screen_model.h"

#include <QByteArray>
#include <QTimer>
#include <QWidget>

class QKeyEvent;
class QLabel;
class QPainter;
class QWheelEvent;

namespace torvane {

class ConsoleWindow : public QWidget, public ConsoleView {
    Q_OBJECT
public:
    explicit ConsoleWindow(CConsole& console);

    // The screen or the title has changed: the title at once, the cells soon, several
    // changes in one repaint.
    void consoleChanged() override;
    // How many lines the view is scrolled back into the scrollback; 0 shows the live screen.
    int linesBack() const { return linesBack_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    // The console stands open until its owner drops it; a line in the window says so.
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    friend class ScreenView;
    // The size of the whole screen of cells, margins included.
    QSize screenSize() const;
    void paintScreen(QPainter& painter) const;
    void fitWhole();
    QByteArray bytesOfKey(const QKeyEvent& event);
    QSize cellSize() const;
    void scrollBack(int lines);
    void paintRow(QPainter& painter, int row, int ascent) const;

    CConsole& console_;
    platform::ScreenModel& screen_;
    QTimer repaintTimer_;
    QWidget* view_ = nullptr;
    QLabel* closeNote_ = nullptr;
    int linesBack_ = 0;
};

// Shows a window for `console` and attaches it: the window goes when the console goes.
ConsoleWindow& AttachConsoleWindow(CConsole& console);

}  // namespace torvane
