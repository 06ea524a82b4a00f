#include "rip/frm_lkvcdxrip.h"

#include "core/job_paths.h"
#include "core/lkvcdxrip_builder.h"
#include "core/mod_general.h"
#include "core/scan_list.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"
#include "job/job_runner.h"
#include "rip/scan_forms.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace torvane {

namespace {

// The values of the tool's /d switch, in their order.
const QStringList kDrivers{"GENERIC",
                           "TOSHIBA",
                           "TOSHIBANEW",
                           "IBM",
                           "NEC",
                           "DEC",
                           "IMS",
                           "KODAK",
                           "RICOH",
                           "HP",
                           "PHILIPS",
                           "PLASMON",
                           "GRUNDIGCDR100IPW",
                           "MITSUMICDR",
                           "PLEXTOR",
                           "SONY",
                           "YAMAHA",
                           "NRC",
                           "IMSCDD5"};

QComboBox* List(QWidget* form, const char* name, const char* tip) {
    auto* list = new QComboBox(form);
    list->setObjectName(QLatin1String(name));
    list->setToolTip(QString::fromUtf8(tip));
    list->setMinimumWidth(300);
    return list;
}

}  // namespace

frm_lkvcdxrip::frm_lkvcdxrip(const ToolContext& context)
    : ToolDialog(context, {"frm_lkvcdxrip", "lkVCDxRIP - Torvane", "Torvane -- lkVCDxRIP Tool",
                           "lkVCDImager", kFixedDialogFlags}),
      scan(context.services.boxes, QString()) {
    buildControls();
    connectControls();
    // After the form's fixed size is set: fixing the size clears a minimised state.
    setWindowState(Qt::WindowMinimized);
    Form_Load();
}

void frm_lkvcdxrip::buildControls() {
    ToolForm form(*this);
    opt_image = form.optionButton(
        "opt_image", "Rip from CD image:", "Select this option to rip from a disc image");
    txt_input = form.pathBox("txt_input", "Specify the input file name.");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the input CD image.");
    opt_cddrive = form.optionButton("opt_cddrive", "Rip directly from CD drive:",
                                    "Select this to rip directly from the (S)VCD disc");
    list_cd = List(this, "list_cd", "Select the drive that the (S)VCD is in");
    cmd_help = form.button("cmd_help", "Help...", nullptr);
    Label2 = form.label("Label2", "CD driver:", "Unless there are problems, use \"GENERIC\"");
    list_driver = List(this, "list_driver", "Unless there are problems, use \"GENERIC\"");
    list_driver->addItems(kDrivers);
    list_driver->setCurrentIndex(-1);
    form.addControlRow({opt_image});
    form.addControlRow({txt_input, cmd_input});
    form.addControlRow({opt_cddrive});
    form.addControlRow({list_cd, cmd_help});
    form.addControlRow({Label2, list_driver});
    lbl_output = form.label("lbl_output", "Save file(s):", "Specify the output XML filename.");
    txt_output = form.pathBox("txt_output", "Specify the output file name.");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output filename.");
    form.addPathRow(lbl_output, txt_output, cmd_output);
    chk_s2336 = form.checkBox("chk_s2336", "2336 byte sector mode", nullptr);
    chk_noextpsd = form.checkBox("chk_noextpsd", "Ignore /EXT/PSD_X.VCD", nullptr);
    chk_norip = form.checkBox("chk_norip", "Only extract XML structure",
                              "Check if you only want the XML descriptor");
    form.addOptionRow({chk_s2336, chk_noextpsd, chk_norip});
    addDescription(
        form, "What does lkVCDxRIP do?",
        "lkVCDxRIP takes a disc image of a (S)VCD and extracts from it all the media files, as "
        "well as generating an XML file of the disc.  The format of the disc image can be "
        "either the CUE/BIN format or the Nero Burning Rom NRG format.  You can also DIRECTLY "
        "rip from the (S)VCD as well!",
        QStyle::SP_DirOpenIcon);
    addCommands(form, "About lkVCDxRIP", "About lkVCDxRIP", QStyle::SP_FileDialogInfoView);
    form.finish({opt_image, opt_cddrive, cmd_input, list_cd, list_driver, cmd_help, cmd_output,
                 chk_s2336, chk_noextpsd, chk_norip, cmd_rip, cmd_cancel, cmd_about});
    opt_image->setChecked(true);
    for (QWidget* control : std::initializer_list<QWidget*>{opt_cddrive, list_cd, list_driver})
        control->setEnabled(false);
    cmd_help->hide();
    cmd_help->setEnabled(false);
}

void frm_lkvcdxrip::connectControls() {
    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kImageFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kXmlFilter, *txt_output); });
    // Clicks, focus changes and arrow keys alike leave the controls in step with the source.
    connect(opt_image, &QRadioButton::toggled, this, &frm_lkvcdxrip::ApplyRipSource);
    connect(cmd_help, &QPushButton::clicked, this, [this] {
        frm_scanfail help(*this, services_);
        help.exec();
    });
}

void frm_lkvcdxrip::Form_Load() {
    startScan();
}

// The scan's script, of the tool folder, runs there hidden; its end is a marker in
// message.txt, which the job runner polls on Timer2. A script that cannot start leaves the
// dialog scanning.
void frm_lkvcdxrip::startScan() {
    QDir::setCurrent(tool_folder);
    message_path = tool_folder + QStringLiteral("message.txt");
    scanbus_path = tool_folder + QStringLiteral("scanbus.txt");
    QFile::remove(message_path);
    QFile::remove(scanbus_path);
    QFile(message_path).open(QIODevice::WriteOnly);
    const QString message = message_path;
    scan.RunHidden(
        Timer2, tool_folder + QStringLiteral("scanbus.bat"), tool_folder,
        [message] {
            return ReadWholeFile(message).value_or(QByteArray()).startsWith("***done***");
        },
        [this] { scanEnded(); });
    wait = new frm_wait(this);
    wait->show();
}

// One scan, one list: the runner has stopped Timer2 and ended the scan.
void frm_lkvcdxrip::scanEnded() {
    wait->hide();
    showNormal();
    QFile::remove(message_path);
    const ScanList scan = ReadScanList(ReadWholeFile(scanbus_path));
    QFile::remove(scanbus_path);
    list_cd->addItems(scan.drives);
    if (scan.found) {
        list_cd->setCurrentIndex(0);
        list_driver->setCurrentIndex(0);
        opt_cddrive->setEnabled(true);
        scan_failed = 0;
        return;
    }
    scan_failed = -1;
    list_cd->addItem(QLatin1String(kScanFailedEntry));
    list_cd->setCurrentIndex(0);
    cmd_help->show();
    cmd_help->setEnabled(true);
}

void frm_lkvcdxrip::ApplyRipSource() {
    const bool drive = opt_cddrive->isChecked();
    list_cd->setEnabled(drive);
    list_driver->setEnabled(drive);
    cmd_input->setEnabled(!drive);
    chk_s2336->setEnabled(!drive);
}

LkvcdxripInputs frm_lkvcdxrip::inputs() const {
    LkvcdxripInputs in;
    in.input = txt_input->text();
    in.output = txt_output->text();
    in.fromDrive = opt_cddrive->isChecked();
    in.drive = list_cd->currentText();
    in.driver = list_driver->currentText();
    in.sector2336 = chk_s2336->isChecked();
    in.noExtPsd = chk_noextpsd->isChecked();
    in.norip = chk_norip->isChecked();
    in.toolFolder = tool_folder;
    in.sep = QChar(kPathSeparator);
    return in;
}

void frm_lkvcdxrip::cmd_rip_Click() {
    const LkvcdxripInputs in = inputs();
    const JobPlan plan = BuildLkvcdxripJob(in);
    const QStringList paths =
        in.fromDrive ? QStringList{in.output} : QStringList{in.input, in.output};
    if (!goMayProceed(LkvcdxripValidation(in), CarriedPaths(paths), WrittenFolders({plan.jobDir})))
        return;
    output_dir = plan.jobDir;
    startJob(plan);
}

// Coming back, each control follows the rip source and the outcome of the scan.
void frm_lkvcdxrip::setControlsEnabled(bool enabled) {
    if (enabled) {
        enableAfterJob();
        return;
    }
    for (QWidget* control :
         std::initializer_list<QWidget*>{txt_output, cmd_output, opt_image, opt_cddrive, list_cd,
                                         list_driver, cmd_help, txt_input, cmd_input, chk_s2336,
                                         chk_noextpsd, chk_norip, cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(false);
}

void frm_lkvcdxrip::enableAfterJob() {
    if (opt_image->isChecked()) {
        txt_input->setEnabled(true);
        cmd_input->setEnabled(true);
    }
    if (opt_cddrive->isChecked())
        for (QWidget* control : std::initializer_list<QWidget*>{opt_cddrive, list_cd, list_driver})
            control->setEnabled(true);
    (scan_failed == 0 ? static_cast<QWidget*>(opt_cddrive) : cmd_help)->setEnabled(true);
    for (QWidget* control : std::initializer_list<QWidget*>{opt_image, txt_output, cmd_output,
                                                            chk_s2336, chk_noextpsd, chk_norip})
        control->setEnabled(true);
    ApplyRipSource();
    for (QWidget* control : std::initializer_list<QWidget*>{cmd_about, cmd_rip, cmd_cancel})
        control->setEnabled(true);
}

void frm_lkvcdxrip::report() {
    const LkvcdxripInputs in = inputs();
    if (!LogSucceeded(ReadWholeFile(frame.log_path), "   INFO: done")) {
        if (QuestionBox(services_.boxes, kInformation, LkvcdxripFailureQuestion()) == vbYes)
            OpenInViewer(services_, frame.log_path);
        return;
    }
    // The tool always writes videocd.xml; it takes the chosen name, replacing any file of
    // that name. Chosen as videocd.xml itself, it stays as it is.
    const QString source = LkvcdxripDescriptor(in);
    if (in.output != source) {
        QFile::remove(in.output);
        QFile::rename(source, in.output);
    }
    if (ConfirmationBox(services_.boxes, kInformation, LogSuccessText()) == vbYes)
        OpenInViewer(services_, frame.log_path);
}

}  // namespace torvane
