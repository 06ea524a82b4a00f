#pragma once
// The About texts of the console tools: the version and usage text each tool prints about
// itself, as it stands in the tool set the program was made for, and the MPEG maker's own.
// Fixed texts, never asked of the tools; each tool's first line and shape stand in its row
// of the table of tools.

#include <QString>

namespace torvane {

// What follows a tool's first line: the usage-only text of cdxa2mpeg, the fork's, the
// suite's, or the program's own tool's over FFmpeg.
enum class AboutShape { UsageOnly, Fork, Suite, Maker };

// A tool's About box as its row in the table of tools gives it.
struct ComponentAboutText {
    const char* caption = nullptr;    // of the box, "About VCDXRIP"; null: the tool has none
    const char* firstLine = nullptr;  // "vcdxrip (GNU VCDImager) 0.7.12"
    AboutShape shape = AboutShape::Suite;
};

struct ComponentAbout {
    QString caption;
    QString text;  // lines joined by CR LF, no line end after the last
};

ComponentAbout ComposeComponentAbout(const ComponentAboutText& about);

}  // namespace torvane
