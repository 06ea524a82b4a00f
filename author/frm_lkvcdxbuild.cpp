#include "author/frm_lkvcdxbuild.h"

namespace torvane {

namespace {

const BuildToolText kText{
    "frm_lkvcdxbuild",
    "lkVCDxBUILD - Torvane",
    "Torvane -- lkVCDxBUILD Tool",
    "lkVCDImager",
    "About lkVCDxBUILD",
    "lkvcdxbuild",
    "What does lkVCDxBUILD do?",
    "lkVCDxBUILD takes the XML descripter file of a S/VCD project and creates a CD image on "
    "your hard disc.  It has the same basic functionality as VCDXBUILD.  However, this \"fork\" "
    "of VCDXBUILD allows VCDs with ISO Level 2 filesystems to be created.",
    true,
    BuildLkvcdxbuildJob};

}  // namespace

frm_lkvcdxbuild::frm_lkvcdxbuild(const ToolContext& context) : BuildToolForm(context, kText) {}

}  // namespace torvane
