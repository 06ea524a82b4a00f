#pragma once
// The sixteen colours of a console text attribute: bits 1, 2, 4 are blue, green and red,
// 8 makes the colour bright; the low four bits colour the text, the next four the
// background.

#include "platform/screen_model.h"

namespace torvane::platform {

struct AttributeColours {
    Rgb foreground;
    Rgb background;
};

// The colour of one four-bit colour number (0-15).
Rgb ConsoleColour(int colour);
// The colours of a text attribute; bits above the eighth are not colours.
AttributeColours ColoursOfAttribute(int attribute);

}  // namespace torvane::platform
