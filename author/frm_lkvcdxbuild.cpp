#include "author/frm_lkvcdxbuild.h"

namespace torvane {

namespace {

BuildToolText Text() {
    BuildToolText text;
    text.formName = "frm_lkvcdxbuild";
    text.caption = "lkVCDxBUILD - Torvane";
    text.consoleTitle = "Torvane -- lkVCDxBUILD Tool";
    text.folderWord = "lkVCDImager";
    text.aboutCaption = "About lkVCDxBUILD";
    text.frameTitle = "What does lkVCDxBUILD do?";
    text.frameText =
        "lkVCDxBUILD takes the XML descripter file of a S/VCD project and creates a CD image on "
        "your hard disc.  It has the same basic functionality as VCDXBUILD.  However, this "
        "\"fork\" "
        "of VCDXBUILD allows VCDs with ISO Level 2 filesystems to be created.";
    text.withNrg = true;
    text.buildJob = BuildLkvcdxbuildJob;
    return text;
}

const BuildToolText kText = Text();

}  // namespace

frm_lkvcdxbuild::frm_lkvcdxbuild(const ToolContext& context) : BuildToolForm(context, kText) {}

}  // namespace torvane
