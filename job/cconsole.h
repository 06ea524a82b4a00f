#pragma once
// CConsole: the one console of the program. On this platform the console is a
// pseudo-terminal whose output is drawn on an 80x25 libvterm screen, shown in a console
// window of its own. The job engine reads row 0 of that screen to find the end marker.
//
// Only one CConsole can exist at a time, as only one console can belong to a process:
// constructing a second one raises 10102. Destroying the object hangs up the terminal,
// ends whatever still runs in it (SIGHUP, then SIGKILL after a short grace) and closes
// the window.

#include <sys/types.h>
#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <cstdint>
#include <memory>
#include <stdexcept>

class QWidget;

namespace torvane {

class MessageBoxes;

// An error raised by CConsole: 10101, 10102 or 10103, with its source and description.
class ConsoleError : public std::runtime_error {
public:
    ConsoleError(int number, QString source, QString description);
    int number;
    QString source;
    QString description;
};

class CConsole {
public:
    // Class_Initialize. Raises 10102 "Couldn't allocate console" when no terminal can be
    // had (or another CConsole exists), 10101 "Couldn't get STD handles" when the screen
    // cannot be set up. `boxes` shows the "There is an unexpected error" box; may be null.
    explicit CConsole(MessageBoxes* boxes = nullptr);
    // Class_Terminate.
    ~CConsole();
    CConsole(const CConsole&) = delete;
    CConsole& operator=(const CConsole&) = delete;

    QString title() const;
    void setTitle(const QString& New_Title);
    int32_t ForeColor() const;
    void setForeColor(int32_t New_Color);
    int32_t BackColor() const;
    void setBackColor(int32_t New_Color);
    bool BackIntense() const;
    void setBackIntense(bool New_Value);
    bool ForeIntense() const;
    void setForeIntense(bool New_Value);
    QString BufferLength() const;
    void setBufferLength(const QString& New_BufferLength);

    // Writes the text at the cursor of the screen.
    void WriteText(const QString& sText);
    // Waits for one line typed in the console window and returns it without its line end.
    QString ConsoleRead();
    // Drains what the terminal has written, then returns the 9 characters of row 0.
    QString WordScan();
    // Writes the text at row 0, column 0 of the screen; the cursor stays where it was.
    void InsertWord(const QString& sText);
    // Starts a program in the terminal, in the current directory, and goes on at once.
    // A ".bat" job script is run by torvane-cmd. Failures are ignored.
    void StartApp(const QString& sFilepath);

    // What this platform adds, for the console window, tests and benchmarks.
    // Bytes as if typed on the keyboard of the console window.
    void sendInput(const QByteArray& bytes);
    // The whole screen, rows joined by '\n', trailing blanks of each row dropped.
    QString screenText();
    // The process started by StartApp, or -1.
    pid_t processId() const;
    // The console window (top-level, shown from construction to destruction).
    QWidget* window() const;
    // The text attribute as SetColors last computed it.
    int attribute() const;

    // Where torvane-cmd lies. By default: beside the running executable.
    static void setInterpreterPath(const QString& path);
    static QString interpreterPath();

private:
    void SetColors();

    struct Impl;
    std::unique_ptr<Impl> d;
};

}  // namespace torvane
