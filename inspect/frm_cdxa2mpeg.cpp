#include "inspect/frm_cdxa2mpeg.h"

#include "about/mod_about.h"
#include "core/cdxa2mpeg_builder.h"
#include "core/job_paths.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"
#include "inspect/report_question.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace torvane {

namespace {
const QString kMediaFilter =
    QStringLiteral("All Files (*.*)|*.*|S/VCD Media Files (*.dat, *.mpg)|*.dat;*.mpg");
const QString kMpegFilter = QStringLiteral("All Files (*.*)|*.*|MPEG Files (*.mpg)|*.mpg");
}  // namespace

frm_cdxa2mpeg::frm_cdxa2mpeg(const ToolContext& context)
    : QWidget(nullptr, Qt::Window),
      frame(*this, context.services, QStringLiteral("Torvane -- CDXA2MPEG Tool"),
            {[this] { report(); }, [this] { setControlsEnabled(true); }}),
      context_(context),
      services_(context.services) {
    setObjectName(QStringLiteral("frm_cdxa2mpeg"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("CDXA2MPEG - Torvane"));
    buildControls();
    Form_Load();
}

void frm_cdxa2mpeg::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load S/VCD file:", "Specify the S/VCD file to be loaded");
    txt_input = form.pathBox("txt_input", "Specify the S/VCD file to be loaded");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the S/VCD file");
    form.addPathRow(lbl_input, txt_input, cmd_input);
    lbl_output =
        form.label("lbl_output", "Save to a plain MPEG file:", "Specify the output MPEG filename");
    txt_output = form.pathBox("txt_output", "Specify the output MPEG filename");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output MPEG filename");
    form.addPathRow(lbl_output, txt_output, cmd_output);

    Frame1 = form.descriptionFrame(
        "What does CDXA2MPEG do?",
        "CDXA2MPEG removes RIFF headers from a file.  Under the Microsoft Windows OSes, the media "
        "files copied off a VCD or SVCD have RIFF headers appended.  This tool simply removes "
        "those headers and converts the file back into a plain MPEG stream.",
        QStyle::SP_MediaPlay);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));

    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    cmd_about = form.button("cmd_about", "About CDXA2MPEG", "About CDXA2MPGEG");
    form.addCommandRow(cmd_rip, cmd_cancel, cmd_about, QStyle::SP_MediaPlay);
    form.finish({cmd_about, cmd_cancel, cmd_rip, cmd_input, cmd_output});

    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kMediaFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kMpegFilter, *txt_output); });
    connect(cmd_rip, &QPushButton::clicked, this, &frm_cdxa2mpeg::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(cmd_about, &QPushButton::clicked, this,
            [this] { ShowComponentAbout(*this, QStringLiteral("cdxa2mpeg")); });
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_cdxa2mpeg::Form_Load() {
    tool_folder = ToolFolder(context_.appPath, QStringLiteral("VCDImager"), QChar(kPathSeparator));
    crlf = QStringLiteral("\r\n");
}

void frm_cdxa2mpeg::cmd_rip_Click() {
    const Cdxa2mpegInputs in{txt_input->text(), txt_output->text(), tool_folder,
                             QChar(kPathSeparator)};
    const JobPlan plan = BuildCdxa2mpegJob(in);
    if (!GoMayProceed(services_.boxes, OutputThenInputValidation(in.input, in.output),
                      CarriedPaths({in.input, in.output}), WrittenFolders({plan.jobDir})))
        return;
    output_.Start(in.output);
    setControlsEnabled(false);
    frame.Start(plan);
}

void frm_cdxa2mpeg::setControlsEnabled(bool enabled) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             txt_output, cmd_output, txt_input, cmd_input, cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(enabled);
}

void frm_cdxa2mpeg::report() {
    InformationBox(services_.boxes, kInformation,
                   Cdxa2mpegReport(txt_output->text(), output_.Written(), output_.Kept()));
}

void frm_cdxa2mpeg::closeEvent(QCloseEvent* event) {
    UnloadToolDialog(*event, frame, context_);
}

}  // namespace torvane
