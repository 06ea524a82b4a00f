#include "rip/frm_vcdxrip.h"

#include "about/mod_about.h"
#include "core/job_paths.h"
#include "core/mod_general.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace torvane {

frm_vcdxrip::frm_vcdxrip(const ToolContext& context)
    : QWidget(nullptr, kFixedDialogFlags),
      frame(*this, context.services, QStringLiteral("Torvane -- VCDXRIP Tool"),
            {[this] { report(); }, [this] { setControlsEnabled(true); }}),
      context_(context),
      services_(context.services) {
    setObjectName(QStringLiteral("frm_vcdxrip"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("VCDXRIP - Torvane"));
    buildControls();
    connectControls();
    Form_Load();
}

void frm_vcdxrip::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load CD image:", "Specify the input CD image.");
    txt_input = form.pathBox("txt_input", "Specify the input file name.");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the input CD image.");
    form.addPathRow(lbl_input, txt_input, cmd_input);
    lbl_output = form.label("lbl_output", "Save file(s):", "Specify the output XML filename.");
    txt_output = form.pathBox("txt_output", "Specify the output file name.");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output filename.");
    form.addPathRow(lbl_output, txt_output, cmd_output);
    buildOptions(form);

    Frame1 = form.descriptionFrame(
        "What does VCDXRIP do?",
        "VCDXRIP takes a disc image of a S/VCD and extracts from it all the media files (e.g., "
        "sequence-items such as the MPEG video tracks as well as segment-item like high "
        "resolution still images.  The format of the disc image can be either the CUE/BIN "
        "format or the Nero Burning Rom NRG format.",
        QStyle::SP_DriveCDIcon);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));

    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    cmd_about = form.button("cmd_about", "About VCDXRIP", "About VCDXRIP");
    form.addCommandRow(cmd_rip, cmd_cancel, cmd_about, QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, chk_s2336, chk_noextpsd, chk_norip, chk_nofiles,
                 chk_nosequences, chk_nosegments, cmd_rip, cmd_cancel, cmd_about});
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

void frm_vcdxrip::connectControls() {
    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kImageFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kXmlFilter, *txt_output); });
    connect(chk_norip, &QCheckBox::clicked, this, &frm_vcdxrip::chk_norip_Click);
    connect(cmd_rip, &QPushButton::clicked, this, &frm_vcdxrip::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(cmd_about, &QPushButton::clicked, this,
            [this] { ShowComponentAbout(*this, QStringLiteral("vcdxrip")); });
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_vcdxrip::Form_Load() {
    tool_folder = ToolFolder(context_.appPath, QStringLiteral("VCDImager"), QChar(kPathSeparator));
    crlf = QStringLiteral("\r\n");
}

// Extracting only the descriptor makes the three choices of what not to extract moot;
// their ticks are kept for when it is cleared.
void frm_vcdxrip::chk_norip_Click() {
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
    if (!GoMayProceed(services_.boxes, VcdxripValidation(in), CarriedPaths({in.input, in.output}),
                      WrittenFolders({plan.jobDir})))
        return;
    setControlsEnabled(false);
    frame.Start(plan);
}

void frm_vcdxrip::setControlsEnabled(bool enabled) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             txt_output, cmd_output, txt_input, cmd_input, chk_s2336, chk_noextpsd, chk_norip})
        control->setEnabled(enabled);
    const bool free = enabled && !chk_norip->isChecked();
    chk_nofiles->setEnabled(free);
    chk_nosequences->setEnabled(free);
    chk_nosegments->setEnabled(free);
    for (QWidget* control : std::initializer_list<QWidget*>{cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(enabled);
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

void frm_vcdxrip::closeEvent(QCloseEvent* event) {
    UnloadToolDialog(*event, frame, context_);
}

}  // namespace torvane
