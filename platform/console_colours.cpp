#include "platform/console_colours.h"

namespace torvane::platform {

namespace {

constexpr int kBlue = 1;
constexpr int kGreen = 2;
constexpr int kRed = 4;
constexpr int kIntensity = 8;

}  // namespace

Rgb ConsoleColour(int colour) {
    // Grey is the one exception to "half or full": normal white is light grey, bright
    // black is dark grey.
    if (colour == kRed + kGreen + kBlue)
        return Rgb{192, 192, 192};
    if (colour == kIntensity)
        return Rgb{128, 128, 128};
    const uint8_t level = (colour & kIntensity) != 0 ? 255 : 128;
    const auto part = [&](int bit) {
        return static_cast<uint8_t>((colour & bit) != 0 ? level : 0);
    };
    return Rgb{part(kRed), part(kGreen), part(kBlue)};
}

AttributeColours ColoursOfAttribute(int attribute) {
    return AttributeColours{ConsoleColour(attribute & 0x0F),
                            ConsoleColour((attribute >> 4) & 0x0F)};
}

}  // namespace torvane::platform
