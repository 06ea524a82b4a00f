#include "tools/torvane-cmd/interpreter.h"

#include "tools/torvane-cmd/builtins.h"
#include "tools/torvane-cmd/command_line.h"
#include "tools/torvane-cmd/program_start.h"
#include "tools/torvane-cmd/script_lines.h"

#include <unistd.h>
#include <cerrno>
#include <vector>

namespace jobscript {

namespace {

// The current directory as the prompt of a shown line gives it. The script never changes
// it, so it is read once.
std::string CurrentDirectory() {
    std::vector<char> buffer(256);
    while (getcwd(buffer.data(), buffer.size()) == nullptr) {
        if (errno != ERANGE)
            return std::string();
        buffer.resize(buffer.size() * 2);
    }
    return buffer.data();
}

void RunLine(const std::string& line, bool& echoOn) {
    const ScriptCommand command = ClassifyLine(line);
    switch (command.kind) {
        case LineKind::EchoText:
            Echo(command.text);
            break;
        case LineKind::EchoOn:
            echoOn = true;
            break;
        case LineKind::EchoOff:
            echoOn = false;
            break;
        case LineKind::EchoState:
            EchoState(echoOn);
            break;
        case LineKind::Cls:
            ClearScreen();
            break;
        case LineKind::Pause:
            Pause();
            break;
        case LineKind::Program:
            RunProgram(ParseProgramLine(line));
            break;
    }
}

}  // namespace

int RunScript(const std::string& scriptText) {
    const std::string currentDirectory = CurrentDirectory();
    bool echoOn = true;
    for (const std::string& line : SplitScriptLines(scriptText)) {
        if (IsBlankLine(line))
            continue;
        if (echoOn)
            ShowLine(currentDirectory, line);
        RunLine(line, echoOn);
    }
    return 0;
}

}  // namespace jobscript
