#include "shell/tool_registry.h"

#include "additional/frm_regen.h"
#include "additional/frm_subindex.h"
#include "author/frm_lkvcdxbuild.h"
#include "author/frm_vcdimager.h"
#include "author/frm_vcdxbuild.h"
#include "author/frm_vcdxgen.h"
#include "inspect/frm_cdxa2mpeg.h"
#include "inspect/frm_vcddebug.h"
#include "inspect/frm_vcdxminfo.h"
#include "maker/frm_mpegmaker.h"
#include "rip/frm_lkvcdxrip.h"
#include "rip/frm_vcdxrip.h"

namespace torvane {

namespace {

const QChar Quote = QLatin1Char('"');
// Ends the sentence that says whose fork the lk tools are.
const QString kForkClause = QStringLiteral(" by the makers of the lkVCDImager fork.  ");

template <typename Form>
QWidget* Open(const ToolContext& context) {
    return new Form(context);
}

}  // namespace

const std::vector<ToolRow>& ToolRows() {
    static const std::vector<ToolRow> rows = {
        {"vcdimager",
         0,
         0,
         0,
         "&vcdimager",
         "Use VCDIMAGER to make a S/VCD image from you MPEG.",
         "VCDIMAGER",
         QStyle::SP_DriveCDIcon,
         [] {
             return QStringLiteral(
                 "VCDIMAGER is the original tool for authoring (S)VCD disc images from MPEG files. "
                 " "
                 "Since the 0.7.x versions of the VCDImager suite and the advent of the XML "
                 "scripting "
                 "system this particular tool is now outdated.  However, it is still very useful "
                 "for "
                 "making a quick and simple multitrack (S)VCD.");
         },
         {"About VCDIMAGER", "vcdimager (GNU VCDImager) 0.7.12", AboutShape::Suite},
         Open<frm_vcdimager>},
        {"vcdxgen",
         0,
         0,
         0,
         "vcdx&gen",
         "Use VCDXGEN to generate a simple XML.",
         "VCDXGEN",
         QStyle::SP_FileDialogDetailedView,
         [] {
             return QStringLiteral(
                 "VCDXGEN is a tool that is used for the rudimentary generation of XML descriptor "
                 "files. It takes your MPEG files and a few settings and creates a simple XML "
                 "file.  "
                 "This is an ideal start for further editing and customisation of the XML file.");
         },
         {"About VCDXGEN", "vcdxgen (GNU VCDImager) 0.7.12", AboutShape::Suite},
         Open<frm_vcdxgen>},
        {"vcdxbuild",
         0,
         0,
         0,
         "vcdx&build",
         "Use VCDXBUILD to create your S/VCD image.",
         "VCDXBUILD",
         QStyle::SP_DialogSaveButton,
         [] {
             return QStringLiteral(
                 "VCDXBUILD is the tool that reads the XML descriptor file of a (S)VCD.  It parses "
                 "the "
                 "commands within and uses the referenced files to create a CD disc image of of "
                 "the "
                 "(S)VCD.  Basically, it creates a CUE/BIN disc image from the XML file.  You can "
                 "then "
                 "burn the CUE/BIN image to a physical disc.");
         },
         {"About VCDXBUILD", "vcdxbuild (GNU VCDImager) 0.7.12", AboutShape::Suite},
         Open<frm_vcdxbuild>},
        {"vcdxrip",
         0,
         0,
         0,
         "vcdx&rip",
         "Use VCDXRIP to rip a disc image to XML and MPEG.",
         "VCDXRIP",
         QStyle::SP_DialogOpenButton,
         [] {
             return QStringLiteral(
                 "VCDXRIP is a tool that will take a disc image of a (S)VCD (in either CUE/BIN or "
                 "NRG "
                 "format) and then extract all the media files from it (i.e., the MPEG files) as "
                 "well "
                 "as generate an XML descriptor file. This tool is particularly useful for editing "
                 "an "
                 "existing VCD.");
         },
         {"About VCDXRIP", "vcdxrip (GNU VCDImager) 0.7.12", AboutShape::Suite},
         Open<frm_vcdxrip>},
        {"cdxa2mpeg",
         0,
         0,
         0,
         "&cdxa2mpeg",
         "Use CDXA2MPEG to remove RIFF headers from MPEG files copied off S/VCDs.",
         "CDXA2MPEG",
         QStyle::SP_MediaPlay,
         [] {
             return QStringLiteral(
                 "When you copy the DAT or MPEG files off a (S)VCD, Windows automatically appends "
                 "a "
                 "RIFF header to the file.  This can cause problems with some programs so it is "
                 "highly "
                 "recommended that you remove them / convert the files back to standard MPEG "
                 "before you "
                 "do any subsequent editing. This can be achieved with CDXA2MPEG.");
         },
         {"About CDXA2MPEG", "usage: cdxa2mpg infile [outfile]", AboutShape::UsageOnly},
         Open<frm_cdxa2mpeg>},
        {"vcdxminfo",
         0,
         1,
         0,
         "vcdxm&info",
         "Use VCDXMINFO to analyse MPEG files.",
         "VCDXMINFO",
         QStyle::SP_FileDialogInfoView,
         [] {
             return QStringLiteral(
                 "VCDXMINFO is a tool used to analyse MPEG files, specifically for (S)VCD "
                 "authoring.  "
                 "It will report information on whether a particular media file is (S)VCD "
                 "compliant - "
                 "including MPEG still images.");
         },
         {"About VCDXMINFO", "vcdxminfo (GNU VCDImager) 0.7.12", AboutShape::Suite},
         Open<frm_vcdxminfo>},
        {"vcddebug",
         0,
         1,
         0,
         "vcd&debug",
         "Use VCDDEBUG to analyse a S/VCD disc image.",
         "VCDDEBUG",
         QStyle::SP_FileDialogContentsView,
         [] {
             return QStringLiteral(
                 "VCDDEBUG is a tool that will analyse a CUE/BIN image of a S/VCD (e.g., after "
                 "you've "
                 "just built or extracted one with VCDXBUILD or VCDXRIP) and report on all the "
                 "information within.  It is particularly useful at picking up bugs, or authoring "
                 "errors before you record your (S)VCD to a physical disc.");
         },
         {"About VCDDEBUG", "vcddebug (GNU VCDImager) 0.7.12", AboutShape::Suite},
         Open<frm_vcddebug>},
        {"lkvcdxbuild",
         1,
         0,
         1,
         "lkvcdxbuild",
         "Use lkVCDXBUILD to create your S/VCD image with ISO Level 2 filesystems.",
         "lkVCDxBUILD",
         QStyle::SP_DriveDVDIcon,
         [] {
             return QStringLiteral(
                        "lkVCDxBUILD is a tool that is near identical in its function to "
                        "VCDXBUILD.  "
                        "This is a fork from the v0.7.10 build of VCDXBUILD") +
                    kForkClause +
                    QStringLiteral(
                        "It allows ISO Level 2 path and filenames to be used on the VCD "
                        "filesystem!  "
                        "The lkVCDxBUILD readme file has more details.  You use this tool to "
                        "create a "
                        "(S)VCD disc image from the XML descriptor file and the referenced media "
                        "files.");
         },
         {"About lkVCDxBUILD", "lkVCDxBuild 5.0.7.10(win32)", AboutShape::Fork},
         Open<frm_lkvcdxbuild>},
        {"subindex",
         2,
         0,
         2,
         "&subindices",
         "Use Subindicies Remover to strip the subindices from your cuesheets",
         "Subindicies Remover",
         QStyle::SP_FileDialogListView,
         [] {
             return QStringLiteral(
                        "Subindicies Remover - VCDIMAGER / VCDXBUILD / lkVCDxBUILD all create ") +
                    Quote + QStringLiteral("detailed") + Quote +
                    QStringLiteral(
                        " cuesheets for a CUE/BIN type image. These will include subindicies for "
                        "the "
                        "entrypoints. Some drives appear to have difficulty playing back (S)VCDs "
                        "with "
                        "multiple subindices and some CD recording programs (esp. Fireburner) have "
                        "problems with subindices in the cuesheet.  If so, then use this tool to "
                        "remove "
                        "the subindicies.");
         },
         {},
         Open<frm_subindex>},
        {"regen",
         2,
         0,
         2,
         "rege&nerator",
         "Use Image Regenerator to recreate a CUE/BIN image if you are missing the CUE file",
         "CUE/BIN Regenerator",
         QStyle::SP_BrowserReload,
         [] {
             return QStringLiteral(
                 "CUE/BIN Regenerator is a tool that will recreate a CUE/BIN image of a S(VCD) "
                 "from "
                 "just the BIN file.  This is useful if you download an image of a VCD and the "
                 "original "
                 "poster (inappropriately) only packaged the BIN file without the cuesheet. This "
                 "tool "
                 "uses a combination of VCDDEBUG, VCDXRIP and VCDXBUILD to achieve its function.");
         },
         {},
         Open<frm_regen>},
        {"mpegmaker",
         2,
         0,
         2,
         "&mpeg maker",
         "Use MPEG Maker to make VCD or SVCD MPEG files from any video file",
         "MPEG MAKER",
         QStyle::SP_MediaSeekForward,
         [] {
             return QStringLiteral(
                 "MPEG Maker is a tool that will turn any video file that ffmpeg can read (MP4, "
                 "MKV, MOV, AVI, WebM ...) into an MPEG file made to the VCD or SVCD standard, "
                 "in PAL or NTSC.  The picture is fitted into the frame with black bars rather "
                 "than stretched, and every file made is checked with VCDXMINFO, so that it can "
                 "go straight into VCDIMAGER or VCDXGEN.");
         },
         {"About MPEG MAKER", "usage: mpegmaker target filter infile outfile", AboutShape::Maker},
         Open<frm_mpegmaker>},
        {"lkvcdxrip",
         1,
         0,
         -1,
         "lkvcdxrip",
         "Use lkVCDxRIP to rip a (S)VCD to XML and MPEG files",
         "lkVCDxRIP",
         QStyle::SP_DirOpenIcon,
         [] {
             return QStringLiteral(
                        "lkVCDxRIP is a tool that is near identical in its function to VCDXRIP.  "
                        "This "
                        "is a fork from the v0.7.10 build of VCDXRIP") +
                    kForkClause +
                    QStringLiteral(
                        "The main difference is that lkVCDxRIP allows you to extract/rip all the "
                        "media "
                        "files and generate an XML file from the (S)VCD disc itself.  It isn't "
                        "necessary to create a disc image of the disc first.");
         },
         {"About lkVCDxRIP", "lkVCDxRIP 5.0.7.10(win32)", AboutShape::Fork},
         Open<frm_lkvcdxrip>},
    };
    return rows;
}

const ToolRow* FindTool(const QString& key) {
    for (const ToolRow& row : ToolRows()) {
        if (key == QLatin1String(row.key))
            return &row;
    }
    return nullptr;
}

}  // namespace torvane
