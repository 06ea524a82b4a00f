#pragma once
// The progress line of a build on the console, in the tool's own console form:
// "#scan[sequence-00]: 6972/692552 ( 1%)", rewritten in place with a carriage return while
// the figure grows, and left standing when the next step begins. Only a change of the
// whole percentage is written, so a long build does not flood the terminal.

#include "tools/adapters/authoring/gui_log.h"

#include <string>

namespace authoring {

class ProgressMeter {
public:
    // What brings the console's line up to date with `progress`; empty if nothing changed.
    std::string Update(const GuiEvent& progress);
    // Ends a progress line that stands open ("\n"), so that other text starts on a line of
    // its own; empty if none is open.
    std::string Close();

private:
    std::string label_;
    int percent_ = -1;
};

// "#scan[sequence-00]", "#write": the operation and, if there is one, the item.
std::string ProgressLabel(const GuiEvent& progress);

// The share done in whole percent, 0 to 100; 0 when the size is unknown.
int ProgressPercent(long long position, long long size);
// The position as the meter shows it: never below 0, never past a known size.
long long ShownPosition(long long position, long long size);

}  // namespace authoring
