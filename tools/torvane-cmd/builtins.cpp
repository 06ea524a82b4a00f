#include "tools/torvane-cmd/builtins.h"

#include "tools/torvane-cmd/fd_output.h"

#include <termios.h>
#include <unistd.h>
#include <cerrno>

namespace jobscript {

namespace {

// Cursor home, erase the screen, erase the scroll-back. Home comes first so that the
// cursor is at row 0, column 0 whatever the terminal does with the erase.
constexpr char kClearScreen[] = "\x1b[H\x1b[2J\x1b[3J";
constexpr char kPausePrompt[] = "Press any key to continue . . . ";

// One key as it is typed: no line editing, no echo, and no signal keys, so that Ctrl+C
// is a key like any other rather than the end of the script.
termios KeyMode(termios mode) {
    mode.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ISIG | IEXTEN);
    mode.c_iflag &= ~static_cast<tcflag_t>(IXON | ICRNL);
    mode.c_cc[VMIN] = 1;
    mode.c_cc[VTIME] = 0;
    return mode;
}

void ReadOneKey() {
    char key;
    while (read(STDIN_FILENO, &key, 1) < 0 && errno == EINTR) {
    }
}

}  // namespace

void ShowLine(const std::string& currentDirectory, const std::string& line) {
    WriteOut(kLineEnd + currentDirectory + ">" + line + kLineEnd);
}

void Echo(const std::string& text) {
    WriteOut(text + kLineEnd);
}

void EchoState(bool echoOn) {
    WriteOut(echoOn ? "ECHO is on.\r\n" : "ECHO is off.\r\n");
}

void ClearScreen() {
    WriteOut(kClearScreen);
}

void Pause() {
    termios saved;
    if (!isatty(STDIN_FILENO) || tcgetattr(STDIN_FILENO, &saved) != 0) {
        WriteOut(std::string(kPausePrompt) + kLineEnd);
        return;
    }
    // The key mode is in force before the prompt shows, so a key typed as soon as the
    // prompt is seen is taken, whatever the timing. What was typed before the pause (while
    // the tool ran, unread by it) is discarded: only a key pressed at the prompt ends it.
    const termios keyMode = KeyMode(saved);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &keyMode);
    WriteOut(kPausePrompt);
    ReadOneKey();
    // A key such as an arrow sends several bytes; the rest of them belong to this key too.
    tcflush(STDIN_FILENO, TCIFLUSH);
    tcsetattr(STDIN_FILENO, TCSANOW, &saved);
    WriteOut(kLineEnd);
}

}  // namespace jobscript
