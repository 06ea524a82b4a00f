#include "inspect/frm_vcddebug.h"

#include "core/job_paths.h"
#include "core/vcddebug_builder.h"
#include "forms/tool_form.h"
#include "inspect/report_question.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

namespace torvane {

namespace {
const QString kTextFilter = QStringLiteral("All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
}  // namespace

frm_vcddebug::frm_vcddebug(const ToolContext& context)
    : ToolDialog(context, {"frm_vcddebug", "VCDDEBUG - Torvane", "Torvane -- VCDDEBUG Tool"}) {
    buildControls();
}

void frm_vcddebug::buildControls() {
    ToolForm form(*this);
    std::tie(lbl_input, txt_input, cmd_input) =
        addPathRow(form, "input",
                   {"Load CUE/BIN image:", "Specify the CD image to be loaded",
                    "Specify the CD Image to be loaded", "Browse for the CD image"},
                   BrowseKind::Open, kBinFilter);
    std::tie(lbl_output, txt_output, cmd_output) =
        addPathRow(form, "output",
                   {"Save the report as a TXT file:", "Specify the output TXT filename",
                    "Specify the output TXT filename", "Browse for the output TXT filename"},
                   BrowseKind::Save, kTextFilter);

    chk_s2336 = form.checkBox("chk_s2336", "2336 byte sector mode",
                              "Only check this option if your CD image is in this mode");
    opt_verbose = form.optionButton("opt_verbose", "Verbose Report",
                                    "Recommended - this report gives you more information");
    opt_quiet = form.optionButton("opt_quiet", "Critical Messages only",
                                  "The report will only give \"critical\" information");
    opt_verbose->setChecked(true);
    form.addOptionRow({chk_s2336, opt_verbose, opt_quiet});

    addDescription(
        form, "What does VCDDEBUG do?",
        "VCDDEBUG analyses VCD and SVCD disc images (in CUE/BIN) format and reports on a the "
        "structure of the disc.  It reports on the filesystem, the PBC area as well as a number "
        "of other areas.  This tool is particularly useful in debugging an authored S/VCD before "
        "committing it to a disc.",
        QStyle::SP_FileDialogContentsView);
    addCommands(form, "About VCDDEBUG", "About VCDDEBUG", QStyle::SP_FileDialogInfoView);
    form.finish(
        {cmd_input, cmd_output, chk_s2336, opt_verbose, opt_quiet, cmd_rip, cmd_cancel, cmd_about});
    setJobControls({chk_s2336, opt_verbose, opt_quiet, txt_output, cmd_output, txt_input, cmd_input,
                    cmd_about, cmd_rip, cmd_cancel});
}

void frm_vcddebug::cmd_rip_Click() {
    const VcddebugInputs in{txt_input->text(),        txt_output->text(), chk_s2336->isChecked(),
                            opt_verbose->isChecked(), tool_folder,        QChar(kPathSeparator)};
    const JobPlan plan = BuildVcddebugJob(in);
    if (goMayProceed(OutputThenInputValidation(in.input, in.output),
                     CarriedPaths({in.input, in.output}), WrittenFolders({plan.jobDir})))
        startJob(plan);
}

void frm_vcddebug::report() {
    AskToOpenReport(services_, QStringLiteral("TXT"), txt_output->text());
}

}  // namespace torvane
