#include "job/job_frame.h"

#include "core/services.h"
#include "job/job_runner.h"

#include <QDir>
#include <QFile>
#include <QWidget>

namespace torvane {

namespace {

void DeleteFile(const QString& path) {
    if (!path.isEmpty())
        QFile::remove(path);
}

}  // namespace

JobFrame::JobFrame(QWidget& dialog, Services& services, QString consoleTitle, Hooks hooks)
    : runner(services.boxes, std::move(consoleTitle)),
      dialog_(dialog),
      services_(services),
      hooks_(std::move(hooks)) {
    Timer1.setEnabled(false);
}

JobFrame::~JobFrame() {
    runner.Stop();
}

bool JobFrame::Start(const JobPlan& plan, const QStringList& extraFiles) {
    script_path = plan.scriptPath;
    log_path = plan.logPath;
    extraFiles_ = extraFiles;
    // The job folder was checked at Go; a job that then fails shows in its log.
    QDir::setCurrent(plan.jobDir);
    const auto failed = [this](const QString& why) {
        // No script or no console, no job: say why and come back to Idle.
        InformationBox(services_.boxes, kInformation, why);
        abandonJob();
    };
    if (!runner.Run(Timer1, plan,
                    {[this] { dialog_.showMinimized(); }, [this] { finishJob(); }, failed}))
        return false;
    job_running = -1;
    return true;
}

void JobFrame::finishJob() {
    if (hooks_.report)
        hooks_.report();
    deleteJobFiles();
    dialog_.showNormal();
    if (hooks_.enableControls)
        hooks_.enableControls();
    Timer1.Tag = QStringLiteral("0");
    job_running = 0;
}

void JobFrame::abandonJob() {
    runner.Stop();
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
    runner.Stop();
    deleteJobFiles();
    job_running = 0;
    return true;
}

}  // namespace torvane
