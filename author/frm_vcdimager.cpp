#include "author/frm_vcdimager.h"

#include "core/vcdimager_builder.h"
#include "forms/form_support.h"

#include <QCheckBox>

namespace torvane {

namespace {

// Only a job disables the sector box.
bool WithEveryType(DiscType) {
    return true;
}

DiscToolText Text() {
    DiscToolText text;
    text.formName = "frm_vcdimager";
    text.caption = "VCDIMAGER - Torvane";
    text.consoleTitle = "Torvane -- VCDImager Tool";
    text.loadFormName = "frm_vcdimager_load";
    text.outputLabel = "Save CUE/BIN CD Image:";
    text.outputLabelTip = "Specify the output BIN filename:";
    text.outputTip = "Specify the output filename";
    text.outputBrowseTip = "Browse for the output filename";
    text.outputFilter = &kBinFilter;
    text.firstBoxName = "chk_s2336";
    text.firstBoxCaption = "Use 2336 byte sectors";
    text.firstBoxTip = "Use 2336 byte size sectors - generally not needed (turn on for 99 min CDs)";
    text.firstBoxCounts = WithEveryType;
    text.buildJob = [](const DiscSettings& disc, bool ticked) {
        return BuildVcdimagerJob({disc, ticked});
    };
    text.buildReport = BuildVcdimagerReport;
    text.opensLog = true;
    text.aboutCaption = "About VCDIMAGER";
    text.frameTitle = "What does VCDIMAGER do?";
    text.frameText =
        "VCDIMAGER is the original tool that has since developed into the VCDImager suite of "
        "tools.  It is somewhat outdated since its functions have been modularised and extended in "
        "the other tools.  However, VCDIMAGER itself is still useful for making a simple "
        "multitrack "
        "S/VCD.";
    text.picture = QStyle::SP_DriveCDIcon;
    return text;
}

const DiscToolText kText = Text();

}  // namespace

frm_vcdimager::frm_vcdimager(const ToolContext& context)
    : DiscToolForm(context, kText), chk_s2336(firstBox) {}

}  // namespace torvane
