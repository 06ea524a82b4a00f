#include "author/frm_vcdxbuild.h"

#include "about/mod_about.h"
#include "author/cue_rewrite.h"
#include "job/form_support.h"
#include "job/job_paths.h"
#include "job/tool_form.h"
#include "shell/frm_mainmenu.h"
#include "shell/mod_general.h"
#include "shell/mod_mainmenu.h"
#include "shell/tool_dialogs.h"
#include "shell/whole_file_write.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace torvane {

namespace {
const QString kTocFilter = QStringLiteral("All Files (*.*)|*.*|TOC Files (*.toc)|*.toc");
}  // namespace

frm_vcdxbuild::frm_vcdxbuild(frm_mainmenu& menu, Services& services)
    : QWidget(nullptr, Qt::Window),
      frame(*this, services, QStringLiteral("Torvane -- VCDXBUILD Tool"),
            {[this] { report(); }, [this] { setControlsEnabled(true); }}),
      menu_(menu),
      services_(services) {
    setObjectName(QStringLiteral("frm_vcdxbuild"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("VCDXBUILD - Torvane"));
    buildControls();
    connectControls();
    Form_Load();
}

void frm_vcdxbuild::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load XML file:", "Specify the input XML file.");
    txt_input = form.pathBox("txt_input", "Specify the input file name.");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the input XML file.");
    form.addPathRow(lbl_input, txt_input, cmd_input);
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
    opt_cuebin->setChecked(true);
    form.addOptionRow({opt_cuebin, opt_toc});
    chk_s2336 = form.checkBox("chk_s2336", "2336 byte sector mode",
                              "Generally not required -- turn on for 99 min CDs");
    chk_subindex = form.checkBox("chk_subindex", "No subindicies in cuesheet",
                                 "NOT RECOMMENDED unless you have problems with subindicies");
    form.addOptionRow({chk_s2336, chk_subindex});

    Frame1 = form.descriptionFrame(
        "What does VCDXBUILD do?",
        "VCDXBUILD takes the XML descripter file of a S/VCD project and creates a CD image on "
        "your hard disc.  This CD image (either in CUE/BIN format or the CDRDAO TOC format) can "
        "then be recorded onto a physical disc (e.g., CD-R)",
        QStyle::SP_DriveCDIcon);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));

    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    cmd_about = form.button("cmd_about", "About VCDXBUILD", "About VCDXBUILD");
    form.addCommandRow(cmd_rip, cmd_cancel, cmd_about, QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, opt_cuebin, opt_toc, chk_s2336, chk_subindex, cmd_rip,
                 cmd_cancel, cmd_about});
}

void frm_vcdxbuild::connectControls() {
    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kXmlFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this, &frm_vcdxbuild::cmd_output_Click);
    connect(opt_cuebin, &QRadioButton::clicked, this, &frm_vcdxbuild::opt_cuebin_Click);
    connect(opt_toc, &QRadioButton::clicked, this, &frm_vcdxbuild::opt_toc_Click);
    connect(cmd_rip, &QPushButton::clicked, this, &frm_vcdxbuild::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(cmd_about, &QPushButton::clicked, this,
            [] { ShowComponentAbout(QStringLiteral("vcdxbuild")); });
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_vcdxbuild::Form_Load() {
    tool_folder = ToolFolder(menu_.Tag, QStringLiteral("VCDImager"), QChar(kPathSeparator));
    crlf = QStringLiteral("\r\n");
}

void frm_vcdxbuild::cmd_output_Click() {
    Browse(services_.files, BrowseKind::Save, opt_toc->isChecked() ? kTocFilter : kBinFilter,
           *txt_output);
}

// The option buttons govern only whether the subindices may be removed; the tick and the
// chosen name stay as they are.
void frm_vcdxbuild::opt_cuebin_Click() {
    chk_subindex->setEnabled(true);
}

void frm_vcdxbuild::opt_toc_Click() {
    chk_subindex->setEnabled(false);
}

VcdxbuildInputs frm_vcdxbuild::inputs() const {
    VcdxbuildInputs in;
    in.input = txt_input->text();
    in.output = txt_output->text();
    in.cueBin = opt_cuebin->isChecked();
    in.sector2336 = chk_s2336->isChecked();
    in.noSubindex = chk_subindex->isChecked();
    in.toolFolder = tool_folder;
    in.sep = QChar(kPathSeparator);
    return in;
}

void frm_vcdxbuild::cmd_rip_Click() {
    const VcdxbuildInputs in = inputs();
    // The job, its script and its log belong in the input folder, the image in its own.
    const VcdxbuildJob job = BuildVcdxbuildJob(in);
    if (!GoMayProceed(services_.boxes, VcdxbuildValidation(in), {in.input, in.output},
                      {job.plan.jobDir, SplitOutputPath(in.output, in.sep).output_dir}))
        return;
    if (in.cueBin)
        cue_path = job.cue_path;
    setControlsEnabled(false);
    frame.Start(job.plan);
}

void frm_vcdxbuild::setControlsEnabled(bool enabled) {
    // Coming back, the selected image type is selected anew and its interlock applied.
    opt_cuebin->setEnabled(enabled);
    opt_toc->setEnabled(enabled);
    chk_subindex->setEnabled(enabled && opt_cuebin->isChecked());
    for (QWidget* control :
         std::initializer_list<QWidget*>{txt_output, cmd_output, txt_input, cmd_input, chk_s2336,
                                         cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(enabled);
}

void frm_vcdxbuild::report() {
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

void frm_vcdxbuild::closeEvent(QCloseEvent* event) {
    UnloadToolDialog(*event, frame, menu_);
}

}  // namespace torvane
