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

const DiscToolText kText{
    "frm_vcdimager",
    "VCDIMAGER - Torvane",
    "Torvane -- VCDImager Tool",
    "frm_vcdimager_load",
    "Save CUE/BIN CD Image:",
    "Specify the output BIN filename:",
    "Specify the output filename",
    "Browse for the output filename",
    &kBinFilter,
    "chk_s2336",
    "Use 2336 byte sectors",
    "Use 2336 byte size sectors - generally not needed (turn on for 99 min CDs)",
    WithEveryType,
    [](const DiscSettings& disc, bool ticked) {
        return BuildVcdimagerJob({disc, ticked});
    },
    BuildVcdimagerReport,
    true,
    "About VCDIMAGER",
    "vcdimager",
    "What does VCDIMAGER do?",
    "VCDIMAGER is the original tool that has since developed into the VCDImager suite of "
    "tools.  It is somewhat outdated since its functions have been modularised and extended in "
    "the other tools.  However, VCDIMAGER itself is still useful for making a simple multitrack "
    "S/VCD.",
    QStyle::SP_DriveCDIcon};

}  // namespace

frm_vcdimager::frm_vcdimager(const ToolContext& context)
    : DiscToolForm(context, kText), chk_s2336(firstBox) {}

}  // namespace torvane
