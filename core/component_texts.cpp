#include "core/component_texts.h"

#include <QStringList>

namespace torvane {

namespace {

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

QStringList LinesAfterTheFirst(AboutShape shape) {
    switch (shape) {
        case AboutShape::UsageOnly:
            return UsageOnlyLines();
        case AboutShape::Fork:
            return ForkLines();
        case AboutShape::Maker:
            return MakerLines();
        case AboutShape::Suite:
            break;
    }
    return SuiteLines();
}

}  // namespace

ComponentAbout ComposeComponentAbout(const ComponentAboutText& about) {
    const QStringList lines =
        QStringList{QString::fromUtf8(about.firstLine)} + LinesAfterTheFirst(about.shape);
    return {QString::fromUtf8(about.caption), lines.join(QStringLiteral("\r\n"))};
}

}  // namespace torvane
