#include "tools/adapters/authoring/progress_meter.h"

#include <cstdio>

namespace authoring {

namespace {

// Blanks behind the figures wipe out the rest of a longer line that stood there before.
constexpr char kWipe[] = "          ";

}  // namespace

std::string ProgressLabel(const GuiEvent& progress) {
    return "#" + progress.operation + (progress.id.empty() ? "" : "[" + progress.id + "]");
}

int ProgressPercent(long long position, long long size) {
    if (size <= 0 || position <= 0)
        return 0;
    if (position >= size)
        return 100;
    // position < size here, so the quotient is below 100; in long double no product of the
    // tool's figures can overflow.
    return static_cast<int>(static_cast<long double>(position) * 100 / size);
}

long long ShownPosition(long long position, long long size) {
    if (position < 0)
        return 0;
    return size > 0 && position > size ? size : position;
}

std::string ProgressMeter::Update(const GuiEvent& progress) {
    const std::string label = ProgressLabel(progress);
    const int percent = ProgressPercent(progress.position, progress.size);
    std::string out;
    if (label != label_)
        out = Close();
    else if (percent == percent_)
        return {};
    label_ = label;
    percent_ = percent;
    char figures[64];
    // The tool counts on past the size at the end: the figures stop at it, as the percent does.
    std::snprintf(figures, sizeof figures, ": %lld/%lld (%2d%%)",
                  ShownPosition(progress.position, progress.size), progress.size, percent);
    return out + "\r" + label + figures + kWipe;
}

std::string ProgressMeter::Close() {
    const bool open = percent_ >= 0;
    label_.clear();
    percent_ = -1;
    return open ? "\n" : "";
}

}  // namespace authoring
