#include "shell/tool_descriptions.h"

namespace torvane {

namespace {

const QChar Quote = QLatin1Char('"');
const QChar CR = QLatin1Char('\r');
// Ends the sentence that says whose fork the lk tools are.
const QString kForkClause = QStringLiteral(" by the makers of the lkVCDImager fork.  ");

}  // namespace

QString ToolDescription(const QString& key) {
    if (key == QLatin1String("vcdimager"))
        return QStringLiteral(
            "VCDIMAGER is the original tool for authoring (S)VCD disc images from MPEG files.  "
            "Since the 0.7.x versions of the VCDImager suite and the advent of the XML scripting "
            "system this particular tool is now outdated.  However, it is still very useful for "
            "making a quick and simple multitrack (S)VCD.");
    if (key == QLatin1String("vcdxgen"))
        return QStringLiteral(
            "VCDXGEN is a tool that is used for the rudimentary generation of XML descriptor "
            "files. It takes your MPEG files and a few settings and creates a simple XML file.  "
            "This is an ideal start for further editing and customisation of the XML file.");
    if (key == QLatin1String("vcdxbuild"))
        return QStringLiteral(
            "VCDXBUILD is the tool that reads the XML descriptor file of a (S)VCD.  It parses the "
            "commands within and uses the referenced files to create a CD disc image of of the "
            "(S)VCD.  Basically, it creates a CUE/BIN disc image from the XML file.  You can then "
            "burn the CUE/BIN image to a physical disc.");
    if (key == QLatin1String("vcdxrip"))
        return QStringLiteral(
            "VCDXRIP is a tool that will take a disc image of a (S)VCD (in either CUE/BIN or NRG "
            "format) and then extract all the media files from it (i.e., the MPEG files) as well "
            "as generate an XML descriptor file. This tool is particularly useful for editing an "
            "existing VCD.");
    if (key == QLatin1String("cdxa2mpeg"))
        return QStringLiteral(
            "When you copy the DAT or MPEG files off a (S)VCD, Windows automatically appends a "
            "RIFF header to the file.  This can cause problems with some programs so it is highly "
            "recommended that you remove them / convert the files back to standard MPEG before you "
            "do any subsequent editing. This can be achieved with CDXA2MPEG.");
    if (key == QLatin1String("vcdxminfo"))
        return QStringLiteral(
            "VCDXMINFO is a tool used to analyse MPEG files, specifically for (S)VCD authoring.  "
            "It will report information on whether a particular media file is (S)VCD compliant - "
            "including MPEG still images.");
    if (key == QLatin1String("vcddebug"))
        return QStringLiteral(
            "VCDDEBUG is a tool that will analyse a CUE/BIN image of a S/VCD (e.g., after you've "
            "just built or extracted one with VCDXBUILD or VCDXRIP) and report on all the "
            "information within.  It is particularly useful at picking up bugs, or authoring "
            "errors before you record your (S)VCD to a physical disc.");
    if (key == QLatin1String("lkvcdxbuild"))
        return QStringLiteral(
                   "lkVCDxBUILD is a tool that is near identical in its function to VCDXBUILD.  "
                   "This is a fork from the v0.7.10 build of VCDXBUILD") +
               kForkClause +
               QStringLiteral(
                   "It allows ISO Level 2 path and filenames to be used on the VCD filesystem!  "
                   "The lkVCDxBUILD readme file has more details.  You use this tool to create a "
                   "(S)VCD disc image from the XML descriptor file and the referenced media "
                   "files.");
    if (key == QLatin1String("lkvcdxrip"))
        return QStringLiteral(
                   "lkVCDxRIP is a tool that is near identical in its function to VCDXRIP.  This "
                   "is a fork from the v0.7.10 build of VCDXRIP") +
               kForkClause +
               QStringLiteral(
                   "The main difference is that lkVCDxRIP allows you to extract/rip all the media "
                   "files and generate an XML file from the (S)VCD disc itself.  It isn't "
                   "necessary to create a disc image of the disc first.");
    if (key == QLatin1String("subindex"))
        return QStringLiteral(
                   "Subindicies Remover - VCDIMAGER / VCDXBUILD / lkVCDxBUILD all create ") +
               Quote + QStringLiteral("detailed") + Quote +
               QStringLiteral(
                   " cuesheets for a CUE/BIN type image. These will include subindicies for the "
                   "entrypoints. Some drives appear to have difficulty playing back (S)VCDs with "
                   "multiple subindices and some CD recording programs (esp. Fireburner) have "
                   "problems with subindices in the cuesheet.  If so, then use this tool to remove "
                   "the subindicies.");
    if (key == QLatin1String("regen"))
        return QStringLiteral(
            "CUE/BIN Regenerator is a tool that will recreate a CUE/BIN image of a S(VCD) from "
            "just the BIN file.  This is useful if you download an image of a VCD and the original "
            "poster (inappropriately) only packaged the BIN file without the cuesheet. This tool "
            "uses a combination of VCDDEBUG, VCDXRIP and VCDXBUILD to achieve its function.");
    return QString();
}

QString TabDescription(int tab) {
    switch (tab) {
        case 0:
            return QStringLiteral(
                       "GNU VCDImager 0.7.12 is a suite of open source (S)VCD authoring programs. "
                       "These programs, though command console applications, provide the most "
                       "power and flexible (S)VCD authoring solution in existence. ") +
                   CR + CR +
                   QStringLiteral(
                       "Torvane allows you use these programs without having to open up the "
                       "command console yourself.");
        case 1:
            return QStringLiteral(
                       "lkVCDImager 5.0.7.12 consists of a series of applications that have been "
                       "forked from VCDImager.  At present, the command console version of these "
                       "applications are used but in future versions of this program, the "
                       "lkVCDImager DLL will be used.") +
                   CR + CR +
                   QStringLiteral(
                       "Each of the tools in lkVCDImager replaces one from the vanilla version of "
                       "GNU VCDImager and is highly recommended.");
        case 2:
            return QStringLiteral(
                "The Special Additional functions are not part of VCDImager itself but are a "
                "number of useful tools that supplement the VCDImager authoring system.  These "
                "tools are exclusive to Torvane.");
        default:
            return QString();
    }
}

QString AboutDescription(const QString& versionText) {
    const QString crlf = QStringLiteral("\r\n");
    return QStringLiteral("About this program.") + crlf + crlf + QStringLiteral("Torvane") + crlf +
           crlf + versionText + crlf + crlf +
           QStringLiteral(
               "Copyright (C) 2003 the makers of Torvane. Free software under the GNU "
               "General Public License.");
}

QString QuitDescription() {
    return QStringLiteral("Quit this program");
}

}  // namespace torvane
