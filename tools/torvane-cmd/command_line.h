#pragma once
// What one script line asks for: a built-in command (echo, cls, pause) or a program with
// its arguments and where its standard output goes.
//
// Built-in lines take everything after their command word as text: nothing in an echo
// line is an operator. A program line knows one operator only, ">" (and ">>" to append),
// found outside double quotes; every other character reaches the program as text. No
// variable is expanded, so no file name can ever run a command of its own.

#include <string>
#include <vector>

namespace jobscript {

enum class LineKind {
    Program,    // anything that is not one of the following
    EchoText,   // "echo TEXT", "echo." (empty text), "echo.TEXT"
    EchoOn,     // "echo on"
    EchoOff,    // "echo off"
    EchoState,  // "echo" alone: reports whether echo is on
    Cls,
    Pause,
};

struct ScriptCommand {
    LineKind kind = LineKind::Program;
    std::string text;  // what EchoText prints, byte for byte
};

// Command words match in any case ("ECHO", "Cls"); leading blanks and tabs are skipped.
ScriptCommand ClassifyLine(const std::string& line);

enum class OutputTarget { Terminal, Truncate, Append };

struct ProgramLine {
    std::string word;     // the program's word as it stands in the line, quotes included
    std::string program;  // the name to look up or run
    std::vector<std::string> args;
    OutputTarget output = OutputTarget::Terminal;
    std::string target;          // the file that receives standard output
    bool missingTarget = false;  // a ">" with nothing after it: the line cannot run
};

// The first word, quoted or bare, is the program; a quoted name loses trailing blanks and
// dots, as file names do on the system the scripts come from. The rest up to the first
// ">" outside quotes is split into arguments by the C runtime's rules. The word after ">"
// (quoted or bare) is the target; anything after that word is not looked at.
ProgramLine ParseProgramLine(const std::string& line);

}  // namespace jobscript
