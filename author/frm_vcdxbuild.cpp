#include "author/frm_vcdxbuild.h"

namespace torvane {

namespace {

BuildToolText Text() {
    BuildToolText text;
    text.formName = "frm_vcdxbuild";
    text.caption = "VCDXBUILD - Torvane";
    text.consoleTitle = "Torvane -- VCDXBUILD Tool";
    text.folderWord = "VCDImager";
    text.aboutCaption = "About VCDXBUILD";
    text.frameTitle = "What does VCDXBUILD do?";
    text.frameText =
        "VCDXBUILD takes the XML descripter file of a S/VCD project and creates a CD image on your "
        "hard disc.  This CD image (either in CUE/BIN format or the CDRDAO TOC format) can then be "
        "recorded onto a physical disc (e.g., CD-R)";
    text.withNrg = false;
    text.buildJob = BuildVcdxbuildJob;
    return text;
}

const BuildToolText kText = Text();

}  // namespace

frm_vcdxbuild::frm_vcdxbuild(const ToolContext& context) : BuildToolForm(context, kText) {}

}  // namespace torvane
