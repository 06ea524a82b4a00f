#include "inspect/frm_vcdxminfo.h"

#include "about/mod_about.h"
#include "core/job_paths.h"
#include "core/vcdxminfo_builder.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"
#include "inspect/report_question.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace torvane {

namespace {
const QString kInputFilter = QStringLiteral(
    "All Files (*.*)|*.*|MPEG Files (*.mpg, *.mpeg, *.mpv, *.m2v, *.mp2)|"
    "*.mpg;*.mpeg;*.mpv;*.m2v;*.mp2");
}  // namespace

frm_vcdxminfo::frm_vcdxminfo(const ToolContext& context)
    : QWidget(nullptr, Qt::Window),
      frame(*this, context.services, QStringLiteral("Torvane -- VCDXMINFO Tool"),
            {[this] { report(); }, [this] { setControlsEnabled(true); }}),
      context_(context),
      services_(context.services) {
    setObjectName(QStringLiteral("frm_vcdxminfo"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("VCDXMINFO - Torvane"));
    buildControls();
    Form_Load();
}

void frm_vcdxminfo::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load MPEG file:", "Specify the MPEG to be analysed");
    txt_input = form.pathBox("txt_input", "Specify the MPEG file name");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the MPEG file");
    form.addPathRow(lbl_input, txt_input, cmd_input);
    lbl_output = form.label("lbl_output",
                            "Save the report as an XML file:", "Specify the output XML filename");
    txt_output = form.pathBox("txt_output", "Specify the output XML filename");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output XML filename");
    form.addPathRow(lbl_output, txt_output, cmd_output);

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

    Frame1 = form.descriptionFrame(
        "What does VCDXMINFO do?",
        "VCDXMINFO analyses your MPEG file from the point of view of VCD or SVCD compliance.  It "
        "will report on many parameters including frame size, bitrate, audio as well as APS data "
        "(required for entrypoints).  Furthermore, it will also analyse MPEG still images.",
        QStyle::SP_FileDialogInfoView);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));

    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    cmd_about = form.button("cmd_about", "About VCDXMINFO", "About VCDXMINFO");
    form.addCommandRow(cmd_rip, cmd_cancel, cmd_about, QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, chk_generic, chk_aps, chk_apsrelaxed, cmd_rip, cmd_cancel,
                 cmd_about});

    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kInputFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kXmlFilter, *txt_output); });
    connect(chk_aps, &QCheckBox::clicked, this, &frm_vcdxminfo::chk_aps_Click);
    connect(cmd_rip, &QPushButton::clicked, this, &frm_vcdxminfo::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(cmd_about, &QPushButton::clicked, this,
            [this] { ShowComponentAbout(*this, QStringLiteral("vcdxminfo")); });
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_vcdxminfo::Form_Load() {
    tool_folder = ToolFolder(context_.appPath, QStringLiteral("VCDImager"), QChar(kPathSeparator));
    crlf = QStringLiteral("\r\n");
}

void frm_vcdxminfo::chk_aps_Click() {
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
    if (!GoMayProceed(services_.boxes, OutputThenInputValidation(in.input, in.output),
                      CarriedPaths({in.input, in.output}), WrittenFolders({plan.jobDir})))
        return;
    output_.Start(in.output);
    setControlsEnabled(false);
    frame.Start(plan);
}

void frm_vcdxminfo::setControlsEnabled(bool enabled) {
    chk_generic->setEnabled(enabled);
    chk_aps->setEnabled(enabled);
    chk_apsrelaxed->setEnabled(enabled && chk_aps->isChecked());
    for (QWidget* control : std::initializer_list<QWidget*>{
             txt_output, cmd_output, txt_input, cmd_input, cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(enabled);
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

void frm_vcdxminfo::closeEvent(QCloseEvent* event) {
    UnloadToolDialog(*event, frame, context_);
}

}  // namespace torvane
