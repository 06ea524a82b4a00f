#pragma once
// The console screen: a libvterm terminal of fixed size, fed with the bytes a program
// writes to its terminal. It is not a widget: the console window paints it and the job
// engine reads row 0 of it, so it can be tested without a window.

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

struct VTerm;
struct VTermScreen;

namespace torvane::platform {

struct Rgb {
    uint8_t red = 0;
    uint8_t green = 0;
    uint8_t blue = 0;
    bool operator==(const Rgb& other) const {
        return red == other.red && green == other.green && blue == other.blue;
    }
    bool operator!=(const Rgb& other) const { return !(*this == other); }
};

// One cell as it is to be drawn: its text (a blank for an empty cell, nothing for the
// right half of a wide character) and its colours with reverse video already applied.
struct Cell {
    QString text;
    Rgb foreground;
    Rgb background;
    bool bold = false;
};

struct CursorPosition {
    int row = 0;
    int column = 0;
};

// Keys whose bytes depend on the terminal's modes (cursor keys in application mode).
enum class SpecialKey { Up, Down, Left, Right, Home, End, Insert, Delete, PageUp, PageDown };

class ScreenModel {
public:
    using Writer = std::function<void(const char* bytes, std::size_t length)>;

    // nullptr when libvterm cannot set up a terminal of that size.
    static std::unique_ptr<ScreenModel> create(int rows, int columns);
    ~ScreenModel();
    ScreenModel(const ScreenModel&) = delete;
    ScreenModel& operator=(const ScreenModel&) = delete;

    int rows() const { return rows_; }
    int columns() const { return columns_; }

    // Bytes from the program, UTF-8 with terminal control sequences. A character or a
    // sequence split across two calls is put together.
    void feed(const QByteArray& bytes);
    void feed(const char* bytes, std::size_t length);

    // `count` cells of `row` from `column` on, one character per cell.
    QString text(int row, int column, int count) const;
    // The whole row, trailing blanks kept.
    QString rowText(int row) const;
    // All rows joined by '\n', trailing blanks of each row dropped.
    QString screenText() const;
    Cell cell(int row, int column) const;
    CursorPosition cursor() const;

    // The lines that scrolled off the top of the screen, at most kScrollbackLimit of them;
    // they keep their text, not their colours.
    int scrollbackLines() const { return static_cast<int>(scrollback_.size()); }
    // Row `row` of a view scrolled back by `linesBack` lines, when that row shows a line of
    // the scrollback; nullopt when it shows row `row - linesBack` of the live screen.
    std::optional<QString> scrolledBackRow(int linesBack, int row) const;
    static constexpr int kScrollbackLimit = 3000;

    // The colours of cells that no program has coloured.
    void setDefaultColours(Rgb foreground, Rgb background);
    Rgb defaultForeground() const { return defaultForeground_; }
    Rgb defaultBackground() const { return defaultBackground_; }

    // The bytes a special key sends to the program in the terminal's present mode.
    QByteArray keySequence(SpecialKey key);

    // Where the terminal's own answers (to status and identity queries) go: the program.
    void setWriter(Writer writer) { writer_ = std::move(writer); }
    // Called whenever something visible changed.
    void setChangedHandler(std::function<void()> handler) { changed_ = std::move(handler); }

private:
    ScreenModel(VTerm* terminal, int rows, int columns);
    static void deleteTerminal(VTerm* terminal);
    void output(const char* bytes, std::size_t length);
    void notifyChanged();
    void keepScrolledOffLine(int columns, const void* cells);

    std::unique_ptr<VTerm, void (*)(VTerm*)> terminal_;
    VTermScreen* screen_ = nullptr;
    int rows_;
    int columns_;
    Rgb defaultForeground_{192, 192, 192};
    Rgb defaultBackground_{0, 0, 0};
    Writer writer_;
    std::function<void()> changed_;
    QByteArray* capture_ = nullptr;
    std::deque<QString> scrollback_;  // set while keySequence() collects libvterm's output
};

}  // namespace torvane::platform
