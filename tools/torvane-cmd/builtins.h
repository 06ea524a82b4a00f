#pragma once
// The built-in commands of a job script, with the command interpreter's own texts.

#include <string>

namespace jobscript {

// While echo is on, each line is shown before it runs: an empty line, the current
// directory, ">", the line.
void ShowLine(const std::string& currentDirectory, const std::string& line);

// "echo TEXT": the text exactly as it stands, then a line end.
void Echo(const std::string& text);

// "echo" alone: "ECHO is on." or "ECHO is off.".
void EchoState(bool echoOn);

// "cls": blanks the screen and its scroll-back; the next text starts at row 0, column 0.
void ClearScreen();

// "pause": shows the prompt and waits for one key on the terminal. Without a terminal on
// standard input it goes on at once.
void Pause();

}  // namespace jobscript
