#include "maker/frm_mpegmaker.h"

#include "core/job_paths.h"
#include "core/mod_general.h"
#include "core/mpegmaker_report.h"
#include "forms/form_support.h"
#include "forms/mpeg_load_dialog.h"
#include "forms/tool_form.h"

#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>

namespace torvane {

namespace {

const QString kVideoFilter = QStringLiteral(
    "All Files (*.*)|*.*|Video Files (*.mp4, *.mkv, *.mov, *.avi, *.webm, *.mpg, ...)|"
    "*.mp4;*.m4v;*.mkv;*.mov;*.avi;*.webm;*.mpg;*.mpeg;*.vob;*.ts;*.m2ts;*.mts;*.wmv;*.flv;"
    "*.ogv;*.3gp;*.dv");
// ffprobe answers at once on a readable file; one that hangs must not hold the dialog.
constexpr int kProbeTimeoutMs = 10000;

std::optional<double> FrameRateOf(const QString& path) {
    QProcess probe;
    probe.start(QStringLiteral("ffprobe"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                 QStringLiteral("v:0"), QStringLiteral("-show_entries"),
                 QStringLiteral("stream=r_frame_rate,avg_frame_rate"), QStringLiteral("-of"),
                 QStringLiteral("default=noprint_wrappers=1"), QStringLiteral("file:") + path});
    if (!probe.waitForFinished(kProbeTimeoutMs)) {
        probe.kill();
        probe.waitForFinished();
        return std::nullopt;
    }
    return ProbedFrameRate(probe.readAllStandardOutput());
}

}  // namespace

frm_mpegmaker::frm_mpegmaker(const ToolContext& context)
    : ToolDialog(context, {"frm_mpegmaker", "MPEG MAKER - Torvane", "Torvane -- MPEG MAKER Tool",
                           "MPEG", kFixedDialogFlags}) {
    buildControls();
}

void frm_mpegmaker::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label(
        "lbl_input", "Load source video files:", "Load the video files to be made into MPEG files");
    Label2 = form.label("Label2", "Number of video files selected:",
                        "The number of video files selected (max. 98)");
    txt_inputnumber = form.pathBox("txt_inputnumber", "Number of video files selected (max. 98)");
    txt_inputnumber->setText(QStringLiteral("0"));
    txt_inputnumber->setMinimumWidth(0);
    txt_inputnumber->setMaximumWidth(txt_inputnumber->fontMetrics().horizontalAdvance("00000"));
    cmd_input = form.button("cmd_input", "Add...", "Add video files to convert");
    form.addControlRow({lbl_input});
    form.addControlRow({Label2, txt_inputnumber, cmd_input});
    lbl_output = form.label("lbl_output", "Save the MPEG files in folder:",
                            "Specify the folder the MPEG files are written in");
    txt_output = form.pathBox("txt_output", "Specify the folder the MPEG files are written in");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output folder");
    form.addPathRow(lbl_output, txt_output, cmd_output);

    Label3 = form.label("Label3", "Make MPEG for:", "Choose the disc the MPEG files are made for");
    opt_vcd = form.optionButton("opt_vcd", "VCD", "VCD -- 352x240/288 MPEG-1 video");
    opt_svcd = form.optionButton("opt_svcd", "SVCD", "SVCD -- 480x480/576 MPEG-2 video");
    opt_vcd->setChecked(true);
    form.optionGroup({opt_vcd, opt_svcd});
    form.addOptionRow({Label3, opt_vcd, opt_svcd});
    Label4 = form.label("Label4", "TV standard:", "Choose the TV standard of the MPEG files");
    opt_pal = form.optionButton("opt_pal", "PAL", "PAL -- 25 frames a second");
    opt_ntsc = form.optionButton("opt_ntsc", "NTSC", "NTSC -- 29.97 frames a second");
    opt_pal->setChecked(true);
    form.optionGroup({opt_pal, opt_ntsc});
    lbl_standard = form.label("lbl_standard", "", "Why this standard was chosen");
    form.addOptionRow({Label4, opt_pal, opt_ntsc, lbl_standard});

    addDescription(
        form, "What does MPEG MAKER do?",
        "MPEG MAKER turns any video file that ffmpeg can read (MP4, MKV, MOV, AVI, WebM and "
        "many more) into an MPEG stream made to the VCD or SVCD standard, ready for VCDIMAGER "
        "and VCDXGEN as it is.  The picture keeps its shape: it is fitted into the frame with "
        "black bars, never stretched.  Each file is checked with VCDXMINFO once it is made.",
        QStyle::SP_MediaSeekForward);
    addCommands(form, "About MPEG MAKER", "About MPEG MAKER", QStyle::SP_MediaSeekForward);
    form.finish({cmd_input, cmd_output, opt_vcd, opt_svcd, opt_pal, opt_ntsc, cmd_rip, cmd_cancel,
                 cmd_about});
    setJobControls({txt_output, cmd_output, txt_inputnumber, cmd_input, opt_vcd, opt_svcd, opt_pal,
                    opt_ntsc, cmd_rip, cmd_cancel, cmd_about});

    connect(cmd_input, &QPushButton::clicked, this, &frm_mpegmaker::cmd_input_Click);
    connect(cmd_output, &QPushButton::clicked, this, &frm_mpegmaker::cmd_output_Click);
    MakeDefaultButton(*this, *cmd_input);
}

void frm_mpegmaker::cmd_input_Click() {
    Tag = ExchangeText(files);
    MpegLoadDialog list(
        *this, Tag, services_, "frm_mpegmaker_load",
        {QStringLiteral("Load video files..."), kVideoFilter, QStringLiteral("video")});
    list.exec();
    const QString exchange = Tag;
    Tag.clear();
    // A cancelled list dialog left Tag empty: the list stands as it stood.
    const std::optional<MpegList> picked = ReadExchangeText(exchange);
    if (!picked)
        return;
    const QString firstBefore = EntryPaths(files).value(0);
    files = *picked;
    txt_inputnumber->setText(QString::number(files.count));
    const QString first = EntryPaths(files).value(0);
    if (txt_output->text().isEmpty() && !first.isEmpty())
        txt_output->setText(SplitOutputPath(first, QChar(kPathSeparator)).output_dir);
    if (first != firstBefore)
        chooseStandard(first);
}

void frm_mpegmaker::cmd_output_Click() {
    const std::optional<QString> folder =
        services_.files.existingFolder(BrowseStartFolder(txt_output->text()));
    if (folder)
        txt_output->setText(*folder);
}

// The standard nearer the first file's frame rate, with the reason beside it.
void frm_mpegmaker::chooseStandard(const QString& firstFile) {
    if (firstFile.isEmpty()) {
        lbl_standard->clear();
        return;
    }
    const StandardChoice choice = NearerStandard(FrameRateOf(firstFile));
    (choice.standard == TvStandard::Pal ? opt_pal : opt_ntsc)->setChecked(true);
    lbl_standard->setText(choice.reason);
}

MakerInputs frm_mpegmaker::inputs() const {
    MakerInputs in;
    in.inputs = EntryPaths(files);
    in.outputFolder = txt_output->text();
    in.target = opt_svcd->isChecked() ? MakerTarget::Svcd : MakerTarget::Vcd;
    in.standard = opt_ntsc->isChecked() ? TvStandard::Ntsc : TvStandard::Pal;
    in.toolFolder = tool_folder;
    in.sep = QChar(kPathSeparator);
    return in;
}

// Asks before MPEG files, or the logs beside them, that stand in the output folder are
// written over.
bool frm_mpegmaker::mayOverwrite(const MakerInputs& in) {
    QStringList existing;
    for (int index = 0; index < in.inputs.size(); ++index)
        for (const QString& path : {MadeFilePath(in, index), MadeLogPath(in, index)})
            if (QFileInfo::exists(path))
                existing << ShownPath(path);
    return existing.isEmpty() || ConfirmationBox(services_.boxes, QStringLiteral("Question"),
                                                 OverwriteQuestion(existing)) == vbYes;
}

void frm_mpegmaker::cmd_rip_Click() {
    const MakerInputs in = inputs();
    if (!goMayProceed(MpegmakerValidation(in), CarriedPaths(MakerCarriedPaths(in)),
                      WrittenFolders({MakerFolder(in)})) ||
        !mayOverwrite(in))
        return;
    running_ = in;
    outputs_.assign(static_cast<std::size_t>(in.inputs.size()), OutputWatch());
    for (int index = 0; index < in.inputs.size(); ++index)
        outputs_[static_cast<std::size_t>(index)].Start(MadeFilePath(in, index));
    startJob(BuildMpegmakerJob(in));
}

void frm_mpegmaker::report() {
    std::vector<MadeFile> made;
    for (int index = 0; index < running_.inputs.size(); ++index) {
        const OutputWatch& watch = outputs_[static_cast<std::size_t>(index)];
        MadeFile file;
        file.input = running_.inputs.at(index);
        file.output = MadeFilePath(running_, index);
        file.written = watch.Written();
        file.olderKept = watch.Kept();
        file.log = ReadWholeFile(MadeLogPath(running_, index));
        file.bytes = QFileInfo(file.output).size();
        made.push_back(file);
    }
    InformationBox(services_.boxes, kInformation, MpegmakerReport(made, running_.target));
}

}  // namespace torvane
