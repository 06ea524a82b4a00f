#pragma once
// A job script as a list of lines. Scripts are written with CR LF between lines and none
// after the last; a lone LF is taken as a line end too, so a script edited by hand runs.

#include <string>
#include <vector>

namespace jobscript {

// The lines of `text`, without their line ends. A CR is part of a line end only right
// before an LF; anywhere else it is text. A line end at the very end adds no empty line.
std::vector<std::string> SplitScriptLines(const std::string& text);

// True for an empty line or one of blanks and tabs only: such lines are skipped unseen.
bool IsBlankLine(const std::string& line);

}  // namespace jobscript
