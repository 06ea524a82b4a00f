#include "author/disc_tool_form.h"

#include "forms/mpeg_load_dialog.h"
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

DiscToolForm::DiscToolForm(const ToolContext& context, const DiscToolText& text)
    : ToolDialog(context, {text.formName, text.caption, text.consoleTitle, "VCDImager",
                           Qt::Window | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint |
                               Qt::WindowCloseButtonHint}),
      text_(text) {
    buildControls();
    Form_Load();
}

void DiscToolForm::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load source MPEG files:", "Load the source MPEG files");
    Label2 = form.label("Label2", "Number of MPEG files selected:",
                        "The number of source MPEG files selected (max. 98)");
    txt_inputnumber =
        form.pathBox("txt_inputnumber", "Number of source MPEG files selected (max. 98)");
    txt_inputnumber->setMinimumWidth(0);
    txt_inputnumber->setMaximumWidth(txt_inputnumber->fontMetrics().horizontalAdvance("00000"));
    cmd_input = form.button("cmd_input", "Add...", "Add MPEG files to the S/VCD");
    form.addControlRow({lbl_input});
    form.addControlRow({Label2, txt_inputnumber, cmd_input});
    lbl_output = form.label("lbl_output", text_.outputLabel, text_.outputLabelTip);
    txt_output = form.pathBox("txt_output", text_.outputTip);
    cmd_output = form.button("cmd_output", "Browse...", text_.outputBrowseTip);
    form.addPathRow(lbl_output, txt_output, cmd_output);

    Label3 = form.label("Label3", "S/VCD Type:", "Choose the type of disc you want");
    opt_vcd11 = form.optionButton("opt_vcd11", "VCD 1.1",
                                  "VCD 1.1 -- only NTSC is officially supported / no menus");
    opt_vcd2 = form.optionButton("opt_vcd2", "VCD 2.0",
                                 "VCD 2.0 -- if you are making a VCD (352x240/288 MPEG-1 video) "
                                 "this option is recommended");
    opt_svcd = form.optionButton("opt_svcd", "SVCD",
                                 "SVCD -- if you are making a SVCD (480x480/576 MPEG-2 video) "
                                 "this option is recommended");
    opt_hqvcd = form.optionButton("opt_hqvcd", "HQVCD",
                                  "A variant of SVCD -- the \"SVCD\" option is recommended");
    opt_vcd2->setChecked(true);
    form.optionGroup({opt_vcd11, opt_vcd2, opt_svcd, opt_hqvcd});
    form.addOptionRow({Label3, opt_vcd11, opt_vcd2, opt_svcd, opt_hqvcd});

    Label4 = form.label(
        "Label4", "Volume Label:", "This will be the name of your disc that appears on the PC");
    txt_volumelabel = form.textBox(
        "txt_volumelabel",
        "ISO volume label: max. of 32 characters (A-Z, 1-9 and _ characters only)", "VIDEOCD", 32);
    ToolForm::fitCharacters(*txt_volumelabel, 32);
    Label5 = form.label("Label5", "Album ID:", "The name (ID) of your S/VCD \"Album\"");
    txt_albumid = form.textBox("txt_albumid",
                               "Album ID: max. of 16 characters (A-Z, 1-9 and _ characters only)",
                               "MYVCD", 16);
    form.addOptionRow({Label4, txt_volumelabel, Label5, txt_albumid});
    const char* countTip = "The total number of discs in your album";
    const char* numberTip = "The numbered disc of your album (e.g., \"1\" of 3)";
    Label6 = form.label("Label6", "Volume Count:", countTip);
    txt_volumecount = form.textBox("txt_volumecount", countTip, "1", 0);
    Label7 = form.label("Label7", "Volume Number:", numberTip);
    txt_volumenumber = form.textBox("txt_volumenumber", numberTip, "1", 0);
    form.addOptionRow({Label6, txt_volumecount, Label7, txt_volumenumber});

    firstBox = form.checkBox(text_.firstBoxName, text_.firstBoxCaption, text_.firstBoxTip);
    chk_brokensvcd =
        form.checkBox("chk_brokensvcd", "Broken SVCD mode",
                      "Check to enable compatibility mode for some \"broken\" SVCD players");
    chk_update = form.checkBox("chk_update", "Update scan-offsets",
                               "Updates \"scan-offset\" data in SVCD MPEG-2 streams (recommended)");
    chk_update->setChecked(true);
    form.addOptionRow({firstBox, chk_brokensvcd, chk_update});

    addDescription(form, text_.frameTitle, text_.frameText, text_.picture);
    addCommands(form, text_.aboutCaption, text_.aboutCaption, text_.picture);
    form.finish({cmd_input, cmd_output, opt_vcd11, opt_vcd2, opt_svcd, opt_hqvcd, txt_volumelabel,
                 txt_albumid, txt_volumecount, txt_volumenumber, firstBox, chk_brokensvcd,
                 chk_update, cmd_rip, cmd_cancel, cmd_about});

    setJobControls({txt_output, cmd_output, txt_inputnumber, cmd_input, opt_vcd11, opt_vcd2,
                    opt_svcd, opt_hqvcd, txt_volumelabel, txt_albumid, txt_volumecount,
                    txt_volumenumber, firstBox, chk_brokensvcd, chk_update, cmd_about, cmd_rip,
                    cmd_cancel});
    const QString filter = *text_.outputFilter;
    connect(cmd_input, &QPushButton::clicked, this, &DiscToolForm::cmd_input_Click);
    connect(cmd_output, &QPushButton::clicked, this,
            [this, filter] { Browse(services_.files, BrowseKind::Save, filter, *txt_output); });
    // Each type's button sets the check boxes by the interlock; no tick changes.
    for (QRadioButton* type : {opt_vcd11, opt_vcd2, opt_svcd, opt_hqvcd})
        connect(type, &QRadioButton::toggled, this, [this](bool selected) {
            if (selected)
                applyInterlocks();
        });
    MakeDefaultButton(*this, *cmd_input);
}

void DiscToolForm::Form_Load() {
    file_count = 0;
    file_list.clear();
    txt_inputnumber->setText(QStringLiteral("0"));
    applyInterlocks();
}

DiscType DiscToolForm::selectedType() const {
    if (opt_vcd11->isChecked())
        return DiscType::Vcd11;
    if (opt_svcd->isChecked())
        return DiscType::Svcd;
    return opt_hqvcd->isChecked() ? DiscType::Hqvcd : DiscType::Vcd2;
}

void DiscToolForm::applyInterlocks() {
    const DiscType type = selectedType();
    firstBox->setEnabled(text_.firstBoxCounts(type));
    chk_brokensvcd->setEnabled(SvcdOptionsCount(type));
    chk_update->setEnabled(SvcdOptionsCount(type));
}

void DiscToolForm::cmd_input_Click() {
    Tag = ExchangeText({file_count, file_list});
    MpegLoadDialog list(*this, Tag, services_, text_.loadFormName);
    list.exec();
    const QString exchange = Tag;
    Tag.clear();
    // A cancelled list dialog left Tag empty: the list stands as it stood.
    if (const std::optional<MpegList> files = ReadExchangeText(exchange)) {
        file_count = static_cast<int16_t>(files->count);
        file_list = files->text;
        txt_inputnumber->setText(QString::number(file_count));
    }
}

DiscSettings DiscToolForm::settings() const {
    DiscSettings disc;
    disc.files = {file_count, file_list};
    disc.output = txt_output->text();
    disc.type = selectedType();
    disc.volumeLabel = txt_volumelabel->text();
    disc.albumId = txt_albumid->text();
    disc.volumeCount = txt_volumecount->text();
    disc.volumeNumber = txt_volumenumber->text();
    disc.brokenSvcd = chk_brokensvcd->isChecked();
    disc.updateScanOffsets = chk_update->isChecked();
    disc.toolFolder = tool_folder;
    disc.sep = QChar(kPathSeparator);
    return disc;
}

void DiscToolForm::cmd_rip_Click() {
    const DiscSettings disc = settings();
    const JobPlan plan = text_.buildJob(disc, firstBox->isChecked());
    const QString outputDir = SplitOutputPath(disc.output, disc.sep).output_dir;
    // The list's names were each looked at as they were added (mpeg_load_dialog.cpp).
    if (!goMayProceed(DiscSettingsValidation(disc), CarriedPaths({disc.output}),
                      WrittenFolders({tool_folder, outputDir})))
        return;
    list_path = ListFilePath(disc);
    // The list file holds exactly the list text; a job without it would only fail.
    const QString reason = WriteWholeFile(list_path, disc.files.text.toLocal8Bit());
    if (!reason.isEmpty()) {
        InformationBox(services_.boxes, kInformation, FileNotWrittenMessage(list_path, reason));
        return;
    }
    startJob(plan, {list_path});
}

void DiscToolForm::report() {
    const ListToolReport outcome = text_.buildReport(ReadWholeFile(frame.log_path));
    if (!outcome.succeeded)
        InformationBox(services_.boxes, kInformation, outcome.text);
    else if (ConfirmationBox(services_.boxes, kInformation, outcome.text) == vbYes)
        OpenInViewer(services_, text_.opensLog ? frame.log_path : txt_output->text());
}

}  // namespace torvane
