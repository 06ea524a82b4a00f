#include "core/component_texts.h"

#include <QStringList>

namespace torvane {

namespace {

enum class Shape { UsageOnly, Fork, Suite, Maker };

struct Row {
    const char* key;
    const char* caption;
    const char* firstLine;
    Shape shape;
};

const Row kRows[] = {
    {"cdxa2mpeg", "About CDXA2MPEG", "usage: cdxa2mpg infile [outfile]", Shape::UsageOnly},
    {"lkvcdxbuild", "About lkVCDxBUILD", "lkVCDxBuild 5.0.7.10(win32)", Shape::Fork},
    {"lkvcdxrip", "About lkVCDxRIP", "lkVCDxRIP 5.0.7.10(win32)", Shape::Fork},
    {"mpegmaker", "About MPEG MAKER", "usage: mpegmaker target filter infile outfile",
     Shape::Maker},
    {"vcddebug", "About VCDDEBUG", "vcddebug (GNU VCDImager) 0.7.12", Shape::Suite},
    {"vcdimager", "About VCDIMAGER", "vcdimager (GNU VCDImager) 0.7.12", Shape::Suite},
    {"vcdxbuild", "About VCDXBUILD", "vcdxbuild (GNU VCDImager) 0.7.12", Shape::Suite},
    {"vcdxgen", "About VCDXGEN", "vcdxgen (GNU VCDImager) 0.7.12", Shape::Suite},
    {"vcdxminfo", "About VCDXMINFO", "vcdxminfo (GNU VCDImager) 0.7.12", Shape::Suite},
    {"vcdxrip", "About VCDXRIP", "vcdxrip (GNU VCDImager) 0.7.12", Shape::Suite},
};

const char kSuiteWeb[] = "http://www.gnu.org/software/vcdimager/";
const char kSuiteMail[] = "<vcdimager@torvane.example.org>";
const char kForkWeb[] = "https://torvane.example.org/lkvcdimager.html";
const char kForkMail[] = "<lkvcdimager@torvane.example.org>";

QStringList UsageOnlyLines() {
    return {QString(),
            QStringLiteral("description:"),
            QStringLiteral("  Converts a Video CD RIFF CDXA file to plain mpeg streams"),
            QString(),
            QStringLiteral("copyright:"),
            QStringLiteral("  Copyright (C) 2001 the GNU VCDImager authors ") + kSuiteMail,
            QStringLiteral("  This is free software; see the source for copying conditions.  "
                           "There is NO "),
            QStringLiteral("  warranty; not even for MERCHANTABILITY or FITNESS FOR A PARTICULAR "
                           "PURPOSE.")};
}

QStringList ForkLines() {
    return {QStringLiteral("Written by the lkVCDImager authors (%1), based upon GNU VCDImager "
                           "0.7.10 by the GNU VCDImager authors (%2)")
                .arg(QLatin1String(kForkWeb), QLatin1String(kSuiteWeb)),
            QString(),
            QStringLiteral("Copyright (C) 2000, 2001 the GNU VCDImager authors ") + kSuiteMail,
            QStringLiteral("Copyright (C) 2002 the lkVCDImager authors ") + kForkMail,
            QString(),
            QStringLiteral("This is free software; licensed by the \"GNU General Public "
                           "License\". See the file 'license.txt' for copying conditions. There "
                           "is NO warranty; not even for MERCHANTABILITY or FITNESS FOR A "
                           "PARTICULAR PURPOSE.")};
}

QStringList SuiteLines() {
    return {QStringLiteral("Written by the GNU VCDImager authors."),
            QString(),
            QLatin1String(kSuiteWeb),
            QString(),
            QStringLiteral("Copyright (C) 2000, 2001 the GNU VCDImager authors ") + kSuiteMail,
            QString(),
            QStringLiteral("This is free software; see the source for copying conditions.  "
                           "There is NO"),
            QStringLiteral("warranty; not even for MERCHANTABILITY or FITNESS FOR A"),
            QStringLiteral("PARTICULAR PURPOSE.")};
}

// The program's own tool, over FFmpeg.
QStringList MakerLines() {
    return {
        QString(),
        QStringLiteral("description:"),
        QStringLiteral("  Makes a VCD or SVCD MPEG stream of any video file that FFmpeg reads,"),
        QStringLiteral("  with FFmpeg's own targets (pal-vcd, ntsc-vcd, pal-svcd, ntsc-svcd)"),
        QString(),
        QStringLiteral("copyright:"),
        QStringLiteral("  Copyright (C) the makers of Torvane"),
        QStringLiteral("  FFmpeg: Copyright (C) the FFmpeg developers <https://ffmpeg.org/>"),
        QStringLiteral("  This is free software; see the source for copying conditions.  "
                       "There is NO "),
        QStringLiteral("  warranty; not even for MERCHANTABILITY or FITNESS FOR A PARTICULAR "
                       "PURPOSE.")};
}

QStringList LinesAfterTheFirst(Shape shape) {
    switch (shape) {
        case Shape::UsageOnly:
            return UsageOnlyLines();
        case Shape::Fork:
            return ForkLines();
        case Shape::Maker:
            return MakerLines();
        case Shape::Suite:
            break;
    }
    return SuiteLines();
}

}  // namespace

std::optional<ComponentAbout> ComponentAboutFor(const QString& key) {
    for (const Row& row : kRows) {
        if (key != QLatin1String(row.key))
            continue;
        const QStringList lines =
            QStringList{QLatin1String(row.firstLine)} + LinesAfterTheFirst(row.shape);
        return ComponentAbout{QLatin1String(row.caption), lines.join(QStringLiteral("\r\n"))};
    }
    return std::nullopt;
}

}  // namespace torvane
