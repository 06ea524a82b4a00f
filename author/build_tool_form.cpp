#include "author/build_tool_form.h"

#include "core/cue_rewrite.h"
#include "core/job_paths.h"
#include "core/mod_general.h"
#include "core/whole_file_write.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace torvane {

namespace {
const QString kTocFilter = QStringLiteral("All Files (*.*)|*.*|TOC Files (*.toc)|*.toc");
const QString kNrgFilter = QStringLiteral("All Files (*.*)|*.*|NRG Files (*.nrg)|*.nrg");
}  // namespace

BuildToolForm::BuildToolForm(const ToolContext& context, const BuildToolText& text)
    : ToolDialog(context, {text.formName, text.caption, text.consoleTitle, text.folderWord}),
      text_(text) {
    buildControls();
    connectControls();
}

void BuildToolForm::buildControls() {
    ToolForm form(*this);
    std::tie(lbl_input, txt_input, cmd_input) =
        addPathRow(form, "input",
                   {"Load XML file:", "Specify the input XML file.", "Specify the input file name.",
                    "Browse for the input XML file."},
                   BrowseKind::Open, kXmlFilter);
    lbl_output =
        form.label("lbl_output", "Save CD Image:", "Specify the output CD image filename.");
    txt_output = form.pathBox("txt_output", "Specify the output CD image filename.");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output image filename.");
    form.addPathRow(lbl_output, txt_output, cmd_output);

    opt_cuebin = form.optionButton(
        "opt_cuebin", "CUE/BIN",
        "The CUE/BIN format is the best supported (including CDRWin, CDRDAO and Nero)");
    opt_toc =
        form.optionButton("opt_toc", "CDRDAO/TOC",
                          "The TOC format -- the CUE/BIN format is better supported under Win32.");
    if (text_.withNrg)
        opt_nrg = form.optionButton("opt_nrg", "NRG (Nero)", "The Nero Burning Rom image format");
    opt_cuebin->setChecked(true);
    form.addOptionRow({opt_cuebin, opt_toc});
    if (opt_nrg)
        form.addOptionRow({opt_nrg});
    chk_s2336 = form.checkBox("chk_s2336", "2336 byte sector mode",
                              "Generally not required -- turn on for 99 min CDs");
    chk_subindex = form.checkBox("chk_subindex", "No subindicies in cuesheet",
                                 "NOT RECOMMENDED unless you have problems with subindicies");
    form.addOptionRow({chk_s2336, chk_subindex});

    addDescription(form, text_.frameTitle, text_.frameText, QStyle::SP_DriveCDIcon);
    addCommands(form, text_.aboutCaption, text_.aboutCaption, QStyle::SP_FileDialogInfoView);
    if (opt_nrg)
        form.finish({cmd_input, cmd_output, opt_cuebin, opt_toc, opt_nrg, chk_s2336, chk_subindex,
                     cmd_rip, cmd_cancel, cmd_about});
    else
        form.finish({cmd_input, cmd_output, opt_cuebin, opt_toc, chk_s2336, chk_subindex, cmd_rip,
                     cmd_cancel, cmd_about});
}

void BuildToolForm::connectControls() {
    // Coming back from a job, the selected image type is selected anew and its interlock
    // applied.
    setJobControls({opt_cuebin, opt_toc, opt_nrg, chk_s2336, chk_subindex, txt_output, cmd_output,
                    txt_input, cmd_input, cmd_about, cmd_rip, cmd_cancel});
    connect(cmd_output, &QPushButton::clicked, this, &BuildToolForm::cmd_output_Click);
    // Whatever the order of clicks, focus changes and arrow keys, once they have passed the
    // check boxes follow the selected image type; no tick and no name changes.
    for (QRadioButton* type : {opt_cuebin, opt_toc, opt_nrg})
        if (type)
            connect(type, &QRadioButton::toggled, this, &BuildToolForm::applyInterlocks);
}

void BuildToolForm::cmd_output_Click() {
    const bool nrg = opt_nrg && opt_nrg->isChecked();
    Browse(services_.files, BrowseKind::Save,
           nrg                    ? kNrgFilter
           : opt_toc->isChecked() ? kTocFilter
                                  : kBinFilter,
           *txt_output);
}

// Subindices can go only from a cue sheet; a Nero image has no 2336-byte mode.
void BuildToolForm::applyInterlocks() {
    chk_subindex->setEnabled(opt_cuebin->isChecked());
    chk_s2336->setEnabled(!opt_nrg || !opt_nrg->isChecked());
}

VcdxbuildInputs BuildToolForm::inputs() const {
    VcdxbuildInputs in;
    in.input = txt_input->text();
    in.output = txt_output->text();
    in.cueBin = opt_cuebin->isChecked();
    in.sector2336 = chk_s2336->isChecked();
    in.noSubindex = chk_subindex->isChecked();
    in.toolFolder = tool_folder;
    in.sep = QChar(kPathSeparator);
    in.nrg = opt_nrg && opt_nrg->isChecked();
    return in;
}

void BuildToolForm::cmd_rip_Click() {
    const VcdxbuildInputs in = inputs();
    // The job, its script and its log belong in the input folder, the image in its own.
    const VcdxbuildJob job = text_.buildJob(in);
    if (!goMayProceed(
            VcdxbuildValidation(in), CarriedPaths({in.input, in.output}),
            WrittenFolders({job.plan.jobDir, SplitOutputPath(in.output, in.sep).output_dir})))
        return;
    if (in.cueBin)
        cue_path = job.cue_path;
    startJob(job.plan);
}

void BuildToolForm::report() {
    const VcdxbuildReport outcome = BuildVcdxbuildReport(ReadWholeFile(frame.log_path));
    if (!outcome.succeeded) {
        InformationBox(services_.boxes, kInformation, outcome.text);
        return;
    }
    if (ConfirmationBox(services_.boxes, kInformation, outcome.text) == vbYes)
        OpenInViewer(services_, frame.log_path);
    // After the question, and without a word of its own.
    if (!opt_cuebin->isChecked() || !chk_subindex->isChecked())
        return;
    const QString reason = RewriteCueWithoutSubindices(cue_path);
    if (!reason.isEmpty())
        InformationBox(services_.boxes, kInformation, FileNotWrittenMessage(cue_path, reason));
}

}  // namespace torvane
