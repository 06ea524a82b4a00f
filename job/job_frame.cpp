#include "job/job_frame.h"

#include "core/services.h"
#include "job/job_start.h"

#include <QDir>
#include <QFile>
#include <QWidget>

namespace torvane {

namespace {

// The first tick comes shortly after Go; the polls then follow four times a second.
constexpr int kFirstTickMs = 100;
constexpr int kPollMs = 250;

void DeleteFile(const QString& path) {
    if (!path.isEmpty())
        QFile::remove(path);
}

}  // namespace

JobFrame::JobFrame(QWidget& dialog, Services& services, QString consoleTitle, Hooks hooks)
    : dialog_(dialog),
      services_(services),
      consoleTitle_(std::move(consoleTitle)),
      hooks_(std::move(hooks)) {
    Timer1.setEnabled(false);
    connect(&Timer1, &JobTimer::Timer, this, &JobFrame::Timer1_Timer);
}

JobFrame::~JobFrame() = default;

bool JobFrame::Start(const JobPlan& plan, const QStringList& extraFiles) {
    script_path.clear();
    script_path = plan.scriptPath;
    log_path.clear();
    log_path = plan.logPath;
    extraFiles_ = extraFiles;
    // The job folder was checked at Go; a job that then fails shows in its log.
    QDir::setCurrent(plan.jobDir);
    if (const QString failure = WriteJobScript(plan); !failure.isEmpty()) {
        InformationBox(services_.boxes, kInformation, failure);
        abandonJob();
        return false;
    }
    Timer1.setEnabled(true);
    Timer1.Tag = QStringLiteral("0");
    Timer1.setInterval(kFirstTickMs);
    job_running = -1;
    return true;
}

void JobFrame::Timer1_Timer() {
    if (Timer1.Tag.toInt() == 0) {
        startConsole();
    } else {
        pollForEndMarker();
    }
}

void JobFrame::startConsole() {
    try {
        console = StartJobConsole(services_.boxes, consoleTitle_, script_path);
    } catch (const ConsoleError& error) {
        // No console, no job: say why and come back to Idle.
        Timer1.setEnabled(false);
        InformationBox(services_.boxes, kInformation, error.description);
        abandonJob();
        return;
    }
    dialog_.showMinimized();
    Timer1.Tag = QStringLiteral("1");
    Timer1.setInterval(kPollMs);
}

void JobFrame::pollForEndMarker() {
    if (console->WordScan() != QLatin1String(kEndMarker)) {
        Timer1.setInterval(kPollMs);
        return;
    }
    finishJob();
}

void JobFrame::finishJob() {
    // Stopped before any box shows, so the end-of-job step runs exactly once.
    Timer1.setEnabled(false);
    console.reset();
    if (hooks_.report)
        hooks_.report();
    deleteJobFiles();
    dialog_.showNormal();
    if (hooks_.enableControls)
        hooks_.enableControls();
    Timer1.setEnabled(false);
    Timer1.Tag = QStringLiteral("0");
    job_running = 0;
}

void JobFrame::abandonJob() {
    Timer1.setEnabled(false);
    console.reset();
    deleteJobFiles();
    dialog_.showNormal();
    if (hooks_.enableControls)
        hooks_.enableControls();
    Timer1.Tag = QStringLiteral("0");
    job_running = 0;
}

void JobFrame::deleteJobFiles() {
    DeleteFile(script_path);
    for (const QString& path : extraFiles_)
        DeleteFile(path);
}

bool JobFrame::Form_Unload() {
    if (job_running != -1)
        return true;
    if (!ConfirmQuitWhileRunning(services_.boxes))
        return false;
    // The job ends with the dialog; the user's files are not touched.
    Timer1.setEnabled(false);
    console.reset();
    deleteJobFiles();
    job_running = 0;
    return true;
}

}  // namespace torvane
