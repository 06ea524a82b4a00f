#include "job/job_frame.h"

#include "job/job_paths.h"
#include "platform/replace_file.h"

#include <QDir>
#include <QFile>
#include <QWidget>
#include <cstring>

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
    DeleteFile(script_path);
    // Raw bytes, nothing added: no byte-order mark, no end-of-file mark.
    const QByteArray script = JoinScriptLines(plan.scriptLines).toLocal8Bit();
    if (const int error =
            ReplaceFileContents(QFile::encodeName(script_path).toStdString(),
                                std::string_view(script.constData(), script.size()))) {
        const QString reason = QString::fromLocal8Bit(std::strerror(error));
        // No script, no job: the console would wait forever for an end marker.
        InformationBox(services_.boxes, QStringLiteral("Information"),
                       QStringLiteral("The job script could not be written:\r\r") +
                           ShownPath(script_path) + QStringLiteral("\r\r") + reason);
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
        console = std::make_unique<CConsole>(&services_.boxes);
    } catch (const ConsoleError& error) {
        // No console, no job: say why and come back to Idle.
        Timer1.setEnabled(false);
        InformationBox(services_.boxes, QStringLiteral("Information"), error.description);
        abandonJob();
        return;
    }
    console->setTitle(consoleTitle_);
    console->setForeColor(2);
    console->setForeIntense(true);
    // By its full path: only the script just written may run, never one of the same name
    // that the interpreter would find elsewhere.
    console->StartApp(script_path);
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
    const int answer =
        ConfirmationBox(services_.boxes, QStringLiteral("Information"),
                        QStringLiteral("The command is still running!  Are you") +
                            QLatin1Char('\r') + QStringLiteral("sure that you want to quit?"));
    if (answer == vbNo)
        return false;
    // The job ends with the dialog; the user's files are not touched.
    Timer1.setEnabled(false);
    console.reset();
    deleteJobFiles();
    job_running = 0;
    return true;
}

}  // namespace torvane
