#pragma once
// The console window: a top-level window that paints the console screen, cell by cell in
// a fixed-pitch font, and turns the keys typed in it into the bytes a terminal sends.
// It holds no state of the console: the screen model and the receiver of typed bytes
// belong to CConsole. Shrunk below the screen's size, the window scrolls over the screen,
// so that nothing of it, the prompt of a pause included, is out of reach.

#include "platform/screen_model.h"

#include <QByteArray>
#include <QTimer>
#include <QWidget>
#include <functional>

class QKeyEvent;
class QLabel;
class QPainter;
class QWheelEvent;

namespace torvane {

class ConsoleWindow : public QWidget {
    Q_OBJECT
public:
    using TypedHandler = std::function<void(const QByteArray& bytes)>;

    ConsoleWindow(platform::ScreenModel& screen, TypedHandler typed);

    // The screen has changed: repaint soon, several changes at once.
    void screenChanged();
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

    platform::ScreenModel& screen_;
    TypedHandler typed_;
    QTimer repaintTimer_;
    QWidget* view_ = nullptr;
    QLabel* closeNote_ = nullptr;
    int linesBack_ = 0;
};

}  // namespace torvane
