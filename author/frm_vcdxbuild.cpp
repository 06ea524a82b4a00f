#include "author/frm_vcdxbuild.h"

namespace torvane {

namespace {

const BuildToolText kText{
    "frm_vcdxbuild",
    "VCDXBUILD - Torvane",
    "Torvane -- VCDXBUILD Tool",
    "VCDImager",
    "About VCDXBUILD",
    "vcdxbuild",
    "What does VCDXBUILD do?",
    "VCDXBUILD takes the XML descripter file of a S/VCD project and creates a CD image on your "
    "hard disc.  This CD image (either in CUE/BIN format or the CDRDAO TOC format) can then be "
    "recorded onto a physical disc (e.g., CD-R)",
    false,
    BuildVcdxbuildJob};

}  // namespace

frm_vcdxbuild::frm_vcdxbuild(const ToolContext& context) : BuildToolForm(context, kText) {}

}  // namespace torvane
