#include "rip/frm_vcdxrip.h"

#include "core/job_paths.h"
#include "core/mod_general.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"

#include <QCheckBox>
#include <QLineEdit>

namespace torvane {

frm_vcdxrip::frm_vcdxrip(const ToolContext& context)
    : ToolDialog(context, {"frm_vcdxrip", "VCDXRIP - Torvane", "Torvane -- VCDXRIP Tool",
                           "VCDImager", kFixedDialogFlags}) {
    buildControls();
}

void frm_vcdxrip::buildControls() {
    ToolForm form(*this);
    std::tie(lbl_input, txt_input, cmd_input) =
        addPathRow(form, "input",
                   {"Load CD image:", "Specify the input CD image.", "Specify the input file name.",
                    "Browse for the input CD image."},
                   BrowseKind::Open, kImageFilter);
    std::tie(lbl_output, txt_output, cmd_output) =
        addPathRow(form, "output",
                   {"Save file(s):", "Specify the output XML filename.",
                    "Specify the output file name.", "Browse for the output filename."},
                   BrowseKind::Save, kXmlFilter);
    buildOptions(form);

    addDescription(
        form, "What does VCDXRIP do?",
        "VCDXRIP takes a disc image of a S/VCD and extracts from it all the media files (e.g., "
        "sequence-items such as the MPEG video tracks as well as segment-item like high "
        "resolution still images.  The format of the disc image can be either the CUE/BIN "
        "format or the Nero Burning Rom NRG format.",
        QStyle::SP_DriveCDIcon);
    addCommands(form, "About VCDXRIP", "About VCDXRIP", QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, chk_s2336, chk_noextpsd, chk_norip, chk_nofiles,
                 chk_nosequences, chk_nosegments, cmd_rip, cmd_cancel, cmd_about});
    setJobControls({txt_output, cmd_output, txt_input, cmd_input, chk_s2336, chk_noextpsd,
                    chk_norip, chk_nofiles, chk_nosequences, chk_nosegments, cmd_about, cmd_rip,
                    cmd_cancel});
    connect(chk_norip, &QCheckBox::clicked, this, &frm_vcdxrip::applyInterlocks);
}

void frm_vcdxrip::buildOptions(ToolForm& form) {
    chk_s2336 = form.checkBox("chk_s2336", "2336 byte sector mode", nullptr);
    chk_noextpsd = form.checkBox("chk_noextpsd", "Ignore /EXT/PSD_X.VCD", nullptr);
    chk_norip = form.checkBox("chk_norip", "Only extract XML structure",
                              "Check if you only want the XML descriptor");
    form.addOptionRow({chk_s2336, chk_noextpsd, chk_norip});
    chk_nofiles = form.checkBox("chk_nofiles", "Don't extract files", nullptr);
    chk_nosequences = form.checkBox("chk_nosequences", "Don't extract sequences", nullptr);
    chk_nosegments = form.checkBox("chk_nosegments", "Don't extract segment play items", nullptr);
    form.addOptionRow({chk_nofiles, chk_nosequences, chk_nosegments});
}

// Extracting only the descriptor makes the three choices of what not to extract moot;
// their ticks are kept for when it is cleared.
void frm_vcdxrip::applyInterlocks() {
    const bool free = !chk_norip->isChecked();
    chk_nofiles->setEnabled(free);
    chk_nosequences->setEnabled(free);
    chk_nosegments->setEnabled(free);
}

VcdxripInputs frm_vcdxrip::inputs() const {
    VcdxripInputs in;
    in.input = txt_input->text();
    in.output = txt_output->text();
    in.sector2336 = chk_s2336->isChecked();
    in.noExtPsd = chk_noextpsd->isChecked();
    in.norip = chk_norip->isChecked();
    in.noFiles = chk_nofiles->isChecked();
    in.noSequences = chk_nosequences->isChecked();
    in.noSegments = chk_nosegments->isChecked();
    in.toolFolder = tool_folder;
    in.sep = QChar(kPathSeparator);
    return in;
}

void frm_vcdxrip::cmd_rip_Click() {
    const VcdxripInputs in = inputs();
    // The job, its log and what the tool extracts all belong in the output folder.
    const JobPlan plan = BuildVcdxripJob(in);
    if (goMayProceed(VcdxripValidation(in), CarriedPaths({in.input, in.output}),
                     WrittenFolders({plan.jobDir})))
        startJob(plan);
}

// The log alone decides; the descriptor and the extracted files are not looked at.
void frm_vcdxrip::report() {
    const VcdxripReport outcome = BuildVcdxripReport(ReadWholeFile(frame.log_path));
    if (!outcome.succeeded) {
        InformationBox(services_.boxes, kInformation, outcome.text);
        return;
    }
    if (ConfirmationBox(services_.boxes, kInformation, outcome.text) == vbYes)
        OpenInViewer(services_, frame.log_path);
}

}  // namespace torvane
