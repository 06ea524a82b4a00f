#pragma once
// The About texts of the ten console tools (nine of the suite, and the MPEG maker's): the version and usage text each tool prints
// about itself, as it stands in the tool set the program was made for. Fixed texts, never
// asked of the tools.

#include <QString>
#include <optional>

namespace torvane {

struct ComponentAbout {
    QString caption;  // of the box, "About VCDXRIP"
    QString text;     // lines joined by CR LF, no line end after the last
};

// The caption and text of one of the ten lower-case keys ("vcdxrip", ...), compared
// exactly; nullopt for any other text.
std::optional<ComponentAbout> ComponentAboutFor(const QString& key);

}  // namespace torvane
