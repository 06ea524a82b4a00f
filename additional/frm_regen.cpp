#include "additional/frm_regen.h"

#include "core/job_paths.h"
#include "core/mod_general.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"
#include "job/job_runner.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace torvane {

namespace {

const QString kConsoleTitle = QStringLiteral("Torvane -- CUE/BIN Regenerator Tool");
const QString kWorking = QStringLiteral("Working...");
const QString kSuccess = QStringLiteral("Success!");
const QString kFailed = QStringLiteral("Failed!");
constexpr int kHandOverMs = 100;  // from the end of a run to the dialog's return
constexpr QDir::Filters kPlainFiles = QDir::Files | QDir::Hidden | QDir::System;

}  // namespace

frm_regen::frm_regen(const ToolContext& context)
    : QWidget(nullptr, Qt::Window),
      runner(context.services.boxes, kConsoleTitle),
      context_(context),
      services_(context.services) {
    setObjectName(QStringLiteral("frm_regen"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("CUE/BIN Regenerator - Torvane"));
    buildControls();
    connect(&Timer4, &JobTimer::Timer, this, &frm_regen::Timer4_Timer);
    Form_Load();
}

frm_regen::~frm_regen() {
    runner.Stop();
}

void frm_regen::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label(
        "lbl_input", "Load the source BIN file:", "Specify the BIN file you want to regenerate");
    txt_input = form.pathBox("txt_input", "Specify the name and path of the source bin file");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the BIN file");
    form.addPathRow(lbl_input, txt_input, cmd_input);
    lbl_output = form.label("lbl_output", "Save the destination BIN file:",
                            "Specify the destination \"regenerated\" CUE/BIN image");
    txt_output = form.pathBox("txt_output", "Specify the output BIN filename");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output BIN filename");
    form.addPathRow(lbl_output, txt_output, cmd_output);
    Frame1 = form.descriptionFrame(
        "What does CUE/BIN Regenerator do?",
        "CUE/BIN Regenerator is to tool that creates a new CUE/BIN image of a (S)VCD only from "
        "an exisiting BIN file.  This tool is useful if you happen to download an image of a "
        "VCD where the CUE file is missing or damaged.  It allows you to recreate a working "
        "image, ready for recording.",
        QStyle::SP_BrowserReload);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));
    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    form.addCommandRow(cmd_rip, cmd_cancel, nullptr, QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, cmd_rip, cmd_cancel});

    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kBinFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kBinFilter, *txt_output); });
    connect(cmd_rip, &QPushButton::clicked, this, &frm_regen::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_regen::Form_Load() {
    tool_folder = ToolFolder(context_.appPath, QStringLiteral("VCDImager"), QChar(kPathSeparator));
    crlf = QStringLiteral("\r\n");
    Timer1.setEnabled(false);
    Timer2.setEnabled(false);
    Timer3.setEnabled(false);
    job_running = false;
}

RegenInputs frm_regen::inputs() const {
    return {txt_input->text(), txt_output->text(), tool_folder, QChar(kPathSeparator)};
}

void frm_regen::setControlsEnabled(bool enabled) {
    for (QWidget* control : std::initializer_list<QWidget*>{txt_input, txt_output, cmd_input,
                                                            cmd_output, cmd_rip, cmd_cancel})
        control->setEnabled(enabled);
}

void frm_regen::cmd_rip_Click() {
    output_path.clear();
    input_path.clear();
    output_dir.clear();
    const RegenInputs in = inputs();
    if (!GoMayProceed(services_.boxes, RegenValidation(in), CarriedPaths({in.input, in.output}),
                      WrittenFolders({RegenOutputDir(in)})))
        return;
    // A tool that is missing, or an input that cannot be read, would only read as a file
    // that is no disc; say what it is instead.
    for (const char* tool : {"vcddebug.exe", "vcdxrip.exe", "vcdxbuild.exe"}) {
        if (!QFileInfo(tool_folder + QLatin1String(tool)).isExecutable()) {
            InformationBox(
                services_.boxes, kInformation,
                QStringLiteral("The tool folder has no %1:\r\r").arg(QLatin1String(tool)) +
                    ShownPath(tool_folder));
            return;
        }
    }
    if (!QFileInfo(in.input).isFile() || !QFileInfo(in.input).isReadable()) {
        InformationBox(services_.boxes, kInformation,
                       QStringLiteral("The BIN file could not be read:\r\r") + ShownPath(in.input));
        return;
    }
    if (RegenAsksOverwrite(in) &&
        ConfirmationBox(services_.boxes, kInformation, RegenOverwriteQuestion()) == vbNo)
        return;
    output_path = in.output;
    input_path = in.input;
    output_dir = RegenOutputDir(in);
    log_path = output_dir + QStringLiteral("log.txt");
    sector_2336 = 0;
    workRecorded_ = false;
    setControlsEnabled(false);
    showMinimized();
    status = std::make_unique<frm_regen_status>();
    status->show();
    job_running = true;
    startStage(Timer1, 1, true, BuildRegenDetectJob(in, false), [this] { detectionEnded(1); });
}

// The stage job start that every stage and both attempts of stage 1 share, on the stage's
// own timer. A job that cannot start ends the run at this stage, in words.
void frm_regen::startStage(JobTimer& timer, int stage, bool firstStart, const JobPlan& plan,
                           std::function<void()> ended) {
    script_path = plan.scriptPath;
    QDir::setCurrent(plan.jobDir);
    const auto started = [this, stage, firstStart] {
        status->showNormal();
        if (!firstStart)
            return;
        const frm_regen_status::StageRow row = status->row(stage);
        row.title->setEnabled(true);
        row.image->setEnabled(true);
        row.result->setText(kWorking);
    };
    runner.Run(timer, plan, {started, std::move(ended), [this, stage](const QString& why) {
                                 endRun(stage, kFailed, why);
                             }});
}

// Stage 1 read as 2352-byte sectors first; a disc it does not recognise so may be one of
// 2336, which the second attempt reads.
void frm_regen::detectionEnded(int attempt) {
    const QByteArray log = ReadWholeFile(log_path).value_or(QByteArray());
    if (!RegenDetectWarned(log)) {
        if (attempt == 2)
            sector_2336 = -1;
        finishDetection(log);
    } else if (attempt == 1) {
        deleteJobFiles();
        startStage(Timer1, 1, false, BuildRegenDetectJob(inputs(), true),
                   [this] { detectionEnded(2); });
    } else {
        endRun(1, kFailed, RegenNotAVcdText());
    }
}

// A log with neither the warning nor a disc type names no disc: it fails as one that
// was no disc in either sector size.
void frm_regen::finishDetection(const QByteArray& log) {
    const std::optional<QByteArray> type = RegenDiscType(log);
    if (!type) {
        endRun(1, kFailed, RegenNotAVcdText());
        return;
    }
    disc_type = QString::fromLocal8Bit(*type);
    deleteJobFiles();
    status->lbl_vcddebug->setText(kSuccess);
    recordWorkFolder();
    QDir().mkpath(RegenWorkFolder(inputs()));
    startStage(Timer2, 2, true, BuildRegenRipJob(inputs(), sector_2336 == -1),
               [this] { ripEnded(); });
}

void frm_regen::ripEnded() {
    if (!RegenRipSucceeded(ReadWholeFile(log_path))) {
        // What vcdxrip left stays in the work folder, for the user to look into, beside
        // the user's own files.
        putHeldFilesBack();
        workRecorded_ = false;
        endRun(2, kFailed, RegenRipFailureText());
        return;
    }
    status->lbl_vcdxrip->setText(kSuccess);
    deleteJobFiles();
    startStage(Timer3, 3, true, BuildRegenBuildJob(inputs(), sector_2336 == -1),
               [this] { buildEnded(); });
}

void frm_regen::buildEnded() {
    const std::optional<QByteArray> log = ReadWholeFile(log_path);
    if (RegenBuildSucceeded(log))
        endRun(3, kSuccess,
               RegenFinalReport(LastLine(*log), disc_type.toLocal8Bit(), sector_2336 == -1));
    else
        endRun(3, kFailed, RegenBuildFailureText());
}

// The end of a run at `stage`: the stage's timer stopped before the box shows, so that this
// runs once; the box; then the job's files and the run's own part of the work folder go, and
// Timer4 closes the run.
void frm_regen::endRun(int stage, const QString& result, const QString& box) {
    runner.Stop();
    status->row(stage).result->setText(result);
    InformationBox(services_.boxes, kInformation, box);
    QDir::setCurrent(output_dir);
    deleteJobFiles();
    removeWorkFolder();
    Timer4.setEnabled(true);
    Timer4.setInterval(kHandOverMs);
}

void frm_regen::Timer4_Timer() {
    status.reset();
    setControlsEnabled(true);
    showNormal();
    Timer4.setEnabled(false);
    job_running = false;
}

void frm_regen::deleteJobFiles() {
    QFile::remove(script_path);
    QFile::remove(log_path);
}

void frm_regen::recordWorkFolder() {
    const QDir work(RegenWorkFolder(inputs()));
    workExisted_ = work.exists();
    workHeld_ = workExisted_ ? work.entryList(kPlainFiles) : QStringList();
    setHeldFilesAside();
    workRecorded_ = true;
}

// The rip writes names of its own choosing (avseq01.mpg, videocd.xml, ...) in the work
// folder: a file of the user's under such a name would be overwritten. The files the folder
// held wait in a folder beside it until the clean-up puts them back.
void frm_regen::setHeldFilesAside() {
    QTemporaryDir aside(RegenOutputDir(inputs()) + QStringLiteral("_vtools-kept-XXXXXX"));
    if (workHeld_.isEmpty() || !aside.isValid())
        return;
    aside.setAutoRemove(false);
    keptFolder_ = aside.path();
    const QDir work(RegenWorkFolder(inputs()));
    for (const QString& name : workHeld_)
        if (QFile::rename(work.filePath(name), QDir(keptFolder_).filePath(name)))
            keptAside_ << name;
}

// The user's files back in the work folder, over what the run wrote under their names.
void frm_regen::putHeldFilesBack() {
    const QDir work(RegenWorkFolder(inputs()));
    for (const QString& name : std::as_const(keptAside_)) {
        QFile::remove(work.filePath(name));
        QFile::rename(QDir(keptFolder_).filePath(name), work.filePath(name));
    }
    // A file that could not go back stays in the folder beside, which then stays too.
    if (!keptFolder_.isEmpty())
        QDir().rmdir(keptFolder_);
    keptAside_.clear();
    keptFolder_.clear();
}

void frm_regen::removeWorkFolder() {
    if (!workRecorded_)
        return;
    QDir work(RegenWorkFolder(inputs()));
    for (const QString& name : work.entryList(kPlainFiles))
        if (!workHeld_.contains(name))
            work.remove(name);
    putHeldFilesBack();
    // A folder that still holds something stays: nothing is reported.
    if (!workExisted_)
        QDir().rmdir(work.path());
    workRecorded_ = false;
}

// While a run goes on, the guard asks; Yes ends the run with the dialog: the console goes
// (its processes end), then the job's files and the run's part of the work folder.
void frm_regen::closeEvent(QCloseEvent* event) {
    if (job_running) {
        if (!ConfirmQuitWhileRunning(services_.boxes)) {
            event->ignore();
            return;
        }
        runner.Stop();
        Timer4.setEnabled(false);
        QDir::setCurrent(output_dir);
        deleteJobFiles();
        removeWorkFolder();
        status.reset();
        job_running = false;
    }
    context_.returnToMenu();
    event->accept();
}

}  // namespace torvane
