#include "author/frm_vcdxgen.h"

#include "core/vcdxgen_builder.h"
#include "forms/form_support.h"

#include <QCheckBox>

namespace torvane {

namespace {

DiscToolText Text() {
    DiscToolText text;
    text.formName = "frm_vcdxgen";
    text.caption = "VCDXGEN - Torvane";
    text.consoleTitle = "Torvane -- VCDXGEN Tool";
    text.loadFormName = "frm_vcdxgen_load";
    text.outputLabel = "Save XML descriptor file:";
    text.outputLabelTip = "Specify the output XML filename";
    text.outputTip = "Specify the output XML filename";
    text.outputBrowseTip = "Browse for the output XML filename";
    text.outputFilter = &kXmlFilter;
    text.firstBoxName = "chk_nopbc";
    text.firstBoxCaption = "No PBC";
    text.firstBoxTip =
        "Check this to turn off  PBC (playback control) on the disc (PBC is required for menus and "
        "chapters)";
    text.firstBoxCounts = NoPbcCounts;
    text.buildJob = [](const DiscSettings& disc, bool ticked) {
        return BuildVcdxgenJob({disc, ticked});
    };
    text.buildReport = BuildVcdxgenReport;
    text.opensLog = false;
    text.aboutCaption = "About VCDXGEN";
    text.frameTitle = "What does VCDXGEN do?";
    text.frameText =
        "VCDXGEN is a tools that generates a simple XML descriptor file for a potential VCD and "
        "SVCD.  The XML will only describe a simple multitrack S/VCD but you can add more content "
        "by editing the XML file.  VCDXGEN is intended only as the first step in authoring the "
        "S/VCD.";
    text.picture = QStyle::SP_FileDialogDetailedView;
    return text;
}

const DiscToolText kText = Text();

}  // namespace

frm_vcdxgen::frm_vcdxgen(const ToolContext& context)
    : DiscToolForm(context, kText), chk_nopbc(firstBox) {}

}  // namespace torvane
