#include "author/frm_vcdxgen.h"

#include "core/vcdxgen_builder.h"
#include "forms/form_support.h"

#include <QCheckBox>

namespace torvane {

namespace {

const DiscToolText kText{
    "frm_vcdxgen",
    "VCDXGEN - Torvane",
    "Torvane -- VCDXGEN Tool",
    "frm_vcdxgen_load",
    "Save XML descriptor file:",
    "Specify the output XML filename",
    "Specify the output XML filename",
    "Browse for the output XML filename",
    &kXmlFilter,
    "chk_nopbc",
    "No PBC",
    "Check this to turn off  PBC (playback control) on the disc (PBC is required for menus and "
    "chapters)",
    NoPbcCounts,
    [](const DiscSettings& disc, bool ticked) {
        return BuildVcdxgenJob({disc, ticked});
    },
    BuildVcdxgenReport,
    false,
    "About VCDXGEN",
    "vcdxgen",
    "What does VCDXGEN do?",
    "VCDXGEN is a tools that generates a simple XML descriptor file for a potential VCD and "
    "SVCD.  The XML will only describe a simple multitrack S/VCD but you can add more content "
    "by editing the XML file.  VCDXGEN is intended only as the first step in authoring the "
    "S/VCD.",
    QStyle::SP_FileDialogDetailedView};

}  // namespace

frm_vcdxgen::frm_vcdxgen(const ToolContext& context)
    : DiscToolForm(context, kText), chk_nopbc(firstBox) {}

}  // namespace torvane
