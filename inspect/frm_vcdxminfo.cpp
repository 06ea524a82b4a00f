#include "inspect/frm_vcdxminfo.h"

#include "core/job_paths.h"
#include "core/vcdxminfo_builder.h"
#include "forms/tool_form.h"
#include "inspect/report_question.h"

#include <QCheckBox>
#include <QLineEdit>

namespace torvane {

namespace {
const QString kInputFilter = QStringLiteral(
    "All Files (*.*)|*.*|MPEG Files (*.mpg, *.mpeg, *.mpv, *.m2v, *.mp2)|"
    "*.mpg;*.mpeg;*.mpv;*.m2v;*.mp2");
}  // namespace

frm_vcdxminfo::frm_vcdxminfo(const ToolContext& context)
    : ToolDialog(context, {"frm_vcdxminfo", "VCDXMINFO - Torvane", "Torvane -- VCDXMINFO Tool"}) {
    buildControls();
}

void frm_vcdxminfo::buildControls() {
    ToolForm form(*this);
    std::tie(lbl_input, txt_input, cmd_input) =
        addPathRow(form, "input",
                   {"Load MPEG file:", "Specify the MPEG to be analysed",
                    "Specify the MPEG file name", "Browse for the MPEG file"},
                   BrowseKind::Open, kInputFilter);
    std::tie(lbl_output, txt_output, cmd_output) =
        addPathRow(form, "output",
                   {"Save the report as an XML file:", "Specify the output XML filename",
                    "Specify the output XML filename", "Browse for the output XML filename"},
                   BrowseKind::Save, kXmlFilter);

    chk_generic =
        form.checkBox("chk_generic", "Generic Information",
                      "Reports generic information - it is recommended to keep this checked");
    chk_aps = form.checkBox("chk_aps", "APS data",
                            "Reports APS information -- recommended you keep this checked");
    chk_apsrelaxed = form.checkBox(
        "chk_apsrelaxed", "Relax APS contraints",
        "Check this to report APS data with \"relaxed\" constraints - not recommended unless you "
        "are using this feature");
    chk_generic->setChecked(true);
    chk_aps->setChecked(true);
    form.addOptionRow({chk_generic, chk_aps, chk_apsrelaxed});

    addDescription(
        form, "What does VCDXMINFO do?",
        "VCDXMINFO analyses your MPEG file from the point of view of VCD or SVCD compliance.  It "
        "will report on many parameters including frame size, bitrate, audio as well as APS data "
        "(required for entrypoints).  Furthermore, it will also analyse MPEG still images.",
        QStyle::SP_FileDialogInfoView);
    addCommands(form, "About VCDXMINFO", "About VCDXMINFO", QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, chk_generic, chk_aps, chk_apsrelaxed, cmd_rip, cmd_cancel,
                 cmd_about});
    setJobControls({chk_generic, chk_aps, chk_apsrelaxed, txt_output, cmd_output, txt_input,
                    cmd_input, cmd_about, cmd_rip, cmd_cancel});
    connect(chk_aps, &QCheckBox::clicked, this, &frm_vcdxminfo::applyInterlocks);
}

// Relaxed constraints mean something only while APS data is reported.
void frm_vcdxminfo::applyInterlocks() {
    chk_apsrelaxed->setEnabled(chk_aps->isChecked());
}

void frm_vcdxminfo::cmd_rip_Click() {
    VcdxminfoInputs in;
    in.input = txt_input->text();
    in.output = txt_output->text();
    in.generic = chk_generic->isChecked();
    in.aps = chk_aps->isChecked();
    in.apsRelaxed = chk_apsrelaxed->isChecked();
    in.toolFolder = tool_folder;
    in.sep = QChar(kPathSeparator);
    const JobPlan plan = BuildVcdxminfoJob(in);
    if (!goMayProceed(OutputThenInputValidation(in.input, in.output),
                      CarriedPaths({in.input, in.output}), WrittenFolders({plan.jobDir})))
        return;
    output_.Start(in.output);
    startJob(plan);
}

void frm_vcdxminfo::report() {
    if (output_.Written()) {
        AskToOpenReport(services_, QStringLiteral("XML"), txt_output->text());
        return;
    }
    InformationBox(
        services_.boxes, kInformation,
        QStringLiteral("Finished!\r\r") +
            NothingWrittenText(QStringLiteral("XML report"), txt_output->text(), output_.Kept()) +
            QStringLiteral("\r\rThe console showed why."));
}

}  // namespace torvane
