#include "inspect/frm_vcddebug.h"

#include "about/mod_about.h"
#include "core/job_paths.h"
#include "core/vcddebug_builder.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"
#include "inspect/report_question.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace torvane {

namespace {
const QString kTextFilter = QStringLiteral("All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
}  // namespace

frm_vcddebug::frm_vcddebug(const ToolContext& context)
    : QWidget(nullptr, Qt::Window),
      frame(*this, context.services, QStringLiteral("Torvane -- VCDDEBUG Tool"),
            {[this] { AskToOpenReport(services_, QStringLiteral("TXT"), txt_output->text()); },
             [this] { setControlsEnabled(true); }}),
      context_(context),
      services_(context.services) {
    setObjectName(QStringLiteral("frm_vcddebug"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("VCDDEBUG - Torvane"));
    buildControls();
    Form_Load();
}

void frm_vcddebug::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load CUE/BIN image:", "Specify the CD image to be loaded");
    txt_input = form.pathBox("txt_input", "Specify the CD Image to be loaded");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the CD image");
    form.addPathRow(lbl_input, txt_input, cmd_input);
    lbl_output = form.label("lbl_output",
                            "Save the report as a TXT file:", "Specify the output TXT filename");
    txt_output = form.pathBox("txt_output", "Specify the output TXT filename");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output TXT filename");
    form.addPathRow(lbl_output, txt_output, cmd_output);

    chk_s2336 = form.checkBox("chk_s2336", "2336 byte sector mode",
                              "Only check this option if your CD image is in this mode");
    opt_verbose = form.optionButton("opt_verbose", "Verbose Report",
                                    "Recommended - this report gives you more information");
    opt_quiet = form.optionButton("opt_quiet", "Critical Messages only",
                                  "The report will only give \"critical\" information");
    opt_verbose->setChecked(true);
    form.addOptionRow({chk_s2336, opt_verbose, opt_quiet});

    Frame1 = form.descriptionFrame(
        "What does VCDDEBUG do?",
        "VCDDEBUG analyses VCD and SVCD disc images (in CUE/BIN) format and reports on a the "
        "structure of the disc.  It reports on the filesystem, the PBC area as well as a number "
        "of other areas.  This tool is particularly useful in debugging an authored S/VCD before "
        "committing it to a disc.",
        QStyle::SP_FileDialogContentsView);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));

    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    cmd_about = form.button("cmd_about", "About VCDDEBUG", "About VCDDEBUG");
    form.addCommandRow(cmd_rip, cmd_cancel, cmd_about, QStyle::SP_FileDialogInfoView);
    form.finish(
        {cmd_input, cmd_output, chk_s2336, opt_verbose, opt_quiet, cmd_rip, cmd_cancel, cmd_about});

    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kBinFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kTextFilter, *txt_output); });
    connect(cmd_rip, &QPushButton::clicked, this, &frm_vcddebug::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(cmd_about, &QPushButton::clicked, this,
            [this] { ShowComponentAbout(*this, QStringLiteral("vcddebug")); });
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_vcddebug::Form_Load() {
    tool_folder = ToolFolder(context_.appPath, QStringLiteral("VCDImager"), QChar(kPathSeparator));
    crlf = QStringLiteral("\r\n");
}

void frm_vcddebug::cmd_rip_Click() {
    const VcddebugInputs in{txt_input->text(),        txt_output->text(), chk_s2336->isChecked(),
                            opt_verbose->isChecked(), tool_folder,        QChar(kPathSeparator)};
    const JobPlan plan = BuildVcddebugJob(in);
    if (!GoMayProceed(services_.boxes, OutputThenInputValidation(in.input, in.output),
                      CarriedPaths({in.input, in.output}), WrittenFolders({plan.jobDir})))
        return;
    setControlsEnabled(false);
    frame.Start(plan);
}

// Radio buttons keep their selection while disabled, so enabling both again leaves the
// user's choice as it was.
void frm_vcddebug::setControlsEnabled(bool enabled) {
    for (QWidget* control :
         std::initializer_list<QWidget*>{chk_s2336, opt_verbose, opt_quiet, txt_output, cmd_output,
                                         txt_input, cmd_input, cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(enabled);
}

void frm_vcddebug::closeEvent(QCloseEvent* event) {
    UnloadToolDialog(*event, frame, context_);
}

}  // namespace torvane
