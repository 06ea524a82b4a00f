#include "inspect/frm_cdxa2mpeg.h"

#include "core/cdxa2mpeg_builder.h"
#include "core/job_paths.h"
#include "forms/tool_form.h"
#include "inspect/report_question.h"

#include <QLineEdit>

namespace torvane {

namespace {
const QString kMediaFilter =
    QStringLiteral("All Files (*.*)|*.*|S/VCD Media Files (*.dat, *.mpg)|*.dat;*.mpg");
const QString kMpegFilter = QStringLiteral("All Files (*.*)|*.*|MPEG Files (*.mpg)|*.mpg");
}  // namespace

frm_cdxa2mpeg::frm_cdxa2mpeg(const ToolContext& context)
    : ToolDialog(context, {"frm_cdxa2mpeg", "CDXA2MPEG - Torvane", "Torvane -- CDXA2MPEG Tool"}) {
    buildControls();
}

void frm_cdxa2mpeg::buildControls() {
    ToolForm form(*this);
    std::tie(lbl_input, txt_input, cmd_input) =
        addPathRow(form, "input",
                   {"Load S/VCD file:", "Specify the S/VCD file to be loaded",
                    "Specify the S/VCD file to be loaded", "Browse for the S/VCD file"},
                   BrowseKind::Open, kMediaFilter);
    std::tie(lbl_output, txt_output, cmd_output) =
        addPathRow(form, "output",
                   {"Save to a plain MPEG file:", "Specify the output MPEG filename",
                    "Specify the output MPEG filename", "Browse for the output MPEG filename"},
                   BrowseKind::Save, kMpegFilter);

    addDescription(
        form, "What does CDXA2MPEG do?",
        "CDXA2MPEG removes RIFF headers from a file.  Under the Microsoft Windows OSes, the media "
        "files copied off a VCD or SVCD have RIFF headers appended.  This tool simply removes "
        "those headers and converts the file back into a plain MPEG stream.",
        QStyle::SP_MediaPlay);
    addCommands(form, "About CDXA2MPEG", "About CDXA2MPGEG", QStyle::SP_MediaPlay);
    form.finish({cmd_about, cmd_cancel, cmd_rip, cmd_input, cmd_output});
    setJobControls({txt_output, cmd_output, txt_input, cmd_input, cmd_about, cmd_rip, cmd_cancel});
}

void frm_cdxa2mpeg::cmd_rip_Click() {
    const Cdxa2mpegInputs in{txt_input->text(), txt_output->text(), tool_folder,
                             QChar(kPathSeparator)};
    const JobPlan plan = BuildCdxa2mpegJob(in);
    if (!goMayProceed(OutputThenInputValidation(in.input, in.output),
                      CarriedPaths({in.input, in.output}), WrittenFolders({plan.jobDir})))
        return;
    output_.Start(in.output);
    startJob(plan);
}

void frm_cdxa2mpeg::report() {
    InformationBox(services_.boxes, kInformation,
                   Cdxa2mpegReport(txt_output->text(), output_.Written(), output_.Kept()));
}

}  // namespace torvane
