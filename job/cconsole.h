#pragma once
// CConsole: the one console of the program, a session without a window. On this platform
// the console is a pseudo-terminal whose output is drawn on an 80x25 libvterm screen; the
// job engine reads row 0 of that screen to find the end marker. What shows the screen (the
// console window) is attached by the console's owner and goes when the console goes.
//
// Only one CConsole can exist at a time, as only one console can belong to a process:
// constructing a second one raises 10102. Destroying the object hangs up the terminal,
// ends whatever still runs in it (SIGHUP, then SIGKILL after a short grace) and drops its
// view.

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <memory>
#include <stdexcept>

namespace torvane {

namespace platform {
class ScreenModel;
}

class MessageBoxes;

// An error raised by CConsole: 10101, 10102 or 10103, with its source and description.
class ConsoleError : public std::runtime_error {
public:
    ConsoleError(int number, QString source, QString description);
    int number;
    QString source;
    QString description;
};

// What shows a console: told whenever its screen or its title has changed.
class ConsoleView {
public:
    virtual ~ConsoleView() = default;
    virtual void consoleChanged() = 0;
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
    // The colour number of the text; bits above its four colour the background, as in a
    // text attribute.
    void setForeColor(int32_t New_Color);
    void setForeIntense(bool New_Value);

    // Drains what the terminal has written, then returns the 9 characters of row 0.
    QString WordScan();
    // Starts a program in the terminal, in the current directory, and goes on at once.
    // A ".bat" job script is run by torvane-cmd. Failures are ignored.
    void StartApp(const QString& sFilepath);

    // The screen, as the programs in the terminal have drawn it. Output is taken as it
    // comes while the event loop runs.
    platform::ScreenModel& screen();
    // Bytes for the programs, as if typed on a keyboard.
    void sendInput(const QByteArray& bytes);
    // Holds `view` from now on and tells it of every change; drops it first when it goes.
    void attachView(std::unique_ptr<ConsoleView> view);

    // Where torvane-cmd lies. By default: beside the running executable.
    static void setInterpreterPath(const QString& path);
    static QString interpreterPath();

private:
    void SetColors();

    struct Impl;
    std::unique_ptr<Impl> d;
};

}  // namespace torvane
