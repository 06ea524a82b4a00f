#include "job/job_runner.h"

#include "core/job_paths.h"
#include "core/services.h"
#include "job/console_window.h"
#include "platform/replace_file.h"

#include <unistd.h>
#include <QFile>
#include <QProcess>
#include <csignal>
#include <cstring>

namespace torvane {

// A job script run with no console and no window, in a process group of its own: the
// script and every program it started end when this goes, so that a scan of a dialog
// that has closed writes nothing that a later one could read as its own.
class HiddenScript {
public:
    HiddenScript() = default;
    ~HiddenScript();
    HiddenScript(const HiddenScript&) = delete;
    HiddenScript& operator=(const HiddenScript&) = delete;

    // Starts the script at `scriptPath` in `workDir` and goes on at once; false when it
    // cannot be started.
    bool Start(const QString& scriptPath, const QString& workDir);

private:
    std::unique_ptr<QProcess> process_;
};

HiddenScript::~HiddenScript() {
    if (!process_ || process_->state() == QProcess::NotRunning)
        return;
    // The whole group: the interpreter and the program it waits for.
    kill(-static_cast<pid_t>(process_->processId()), SIGKILL);
    process_->waitForFinished();
}

bool HiddenScript::Start(const QString& scriptPath, const QString& workDir) {
    process_ = std::make_unique<QProcess>();
    process_->setProgram(CConsole::interpreterPath());
    process_->setArguments({scriptPath});
    process_->setWorkingDirectory(workDir);
    process_->setStandardInputFile(QProcess::nullDevice());
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardErrorFile(QProcess::nullDevice());
    process_->setChildProcessModifier([] { setpgid(0, 0); });
    process_->start();
    return process_->waitForStarted();
}

bool ConfirmQuitWhileRunning(MessageBoxes& boxes) {
    return ConfirmationBox(boxes, kInformation,
                           QStringLiteral("The command is still running!  Are you") +
                               QLatin1Char('\r') + QStringLiteral("sure that you want to quit?")) !=
           vbNo;
}

namespace {

// The plan's script written at its path; the information box's text when it could not be
// written (no script, no job: the console would wait forever for an end marker), or empty.
QString WriteJobScript(const JobPlan& plan) {
    QFile::remove(plan.scriptPath);
    // Raw bytes, nothing added: no byte-order mark, no end-of-file mark.
    const QByteArray script = JoinScriptLines(plan.scriptLines).toLocal8Bit();
    const int error = ReplaceFileContents(QFile::encodeName(plan.scriptPath).toStdString(),
                                          std::string_view(script.constData(), script.size()));
    if (!error)
        return {};
    return QStringLiteral("The job script could not be written:\r\r") + ShownPath(plan.scriptPath) +
           QStringLiteral("\r\r") + QString::fromLocal8Bit(std::strerror(error));
}

// A new console, shown in a console window that goes with it, running the script at
// `scriptPath` by its full path, so that only the script just written may run. Raises
// ConsoleError when no console can be had.
std::unique_ptr<CConsole> StartJobConsole(MessageBoxes& boxes, const QString& title,
                                          const QString& scriptPath) {
    auto console = std::make_unique<CConsole>(&boxes);
    console->setTitle(title);
    console->setForeColor(2);
    console->setForeIntense(true);
    AttachConsoleWindow(*console);
    console->StartApp(scriptPath);
    return console;
}

// The first tick comes shortly after the start; the polls then follow four times a second.
constexpr int kFirstTickMs = 100;
constexpr int kPollMs = 250;

}  // namespace

JobRunner::JobRunner(MessageBoxes& boxes, QString consoleTitle)
    : boxes_(boxes), consoleTitle_(std::move(consoleTitle)) {}

JobRunner::~JobRunner() {
    Stop();
}

bool JobRunner::Run(JobTimer& timer, const JobPlan& plan, Hooks hooks) {
    Stop();
    hooks_ = std::move(hooks);
    endSeen_ = nullptr;
    scriptPath_ = plan.scriptPath;
    // No script, no job: the console would wait forever for an end marker.
    if (const QString failure = WriteJobScript(plan); !failure.isEmpty()) {
        if (hooks_.failed)
            hooks_.failed(failure);
        return false;
    }
    arm(timer, kFirstTickMs);
    return true;
}

bool JobRunner::RunHidden(JobTimer& timer, const QString& scriptPath, const QString& workDir,
                          std::function<bool()> endSeen, std::function<void()> ended) {
    Stop();
    hooks_ = {nullptr, std::move(ended), nullptr};
    endSeen_ = std::move(endSeen);
    hidden_ = std::make_unique<HiddenScript>();
    const bool started = hidden_->Start(scriptPath, workDir);
    arm(timer, kPollMs);
    return started;
}

void JobRunner::Stop() {
    if (timer_) {
        timer_->setEnabled(false);
        disconnect(ticks_);
        timer_ = nullptr;
    }
    console.reset();
    hidden_.reset();
}

void JobRunner::arm(JobTimer& timer, int firstTickMs) {
    timer_ = &timer;
    ticks_ = connect(&timer, &JobTimer::Timer, this, &JobRunner::tick);
    timer.Tag = QStringLiteral("0");
    timer.setEnabled(true);
    timer.setInterval(firstTickMs);
}

void JobRunner::tick() {
    if (endSeen_) {
        if (endSeen_())
            finish();
        return;
    }
    if (!console) {
        startConsole();
        return;
    }
    if (console->WordScan() != QLatin1String(kEndMarker)) {
        timer_->setInterval(kPollMs);
        return;
    }
    finish();
}

void JobRunner::startConsole() {
    try {
        console = StartJobConsole(boxes_, consoleTitle_, scriptPath_);
    } catch (const ConsoleError& error) {
        Stop();
        if (hooks_.failed)
            hooks_.failed(error.description);
        return;
    }
    timer_->Tag = QStringLiteral("1");
    timer_->setInterval(kPollMs);
    if (hooks_.started)
        hooks_.started();
}

// Stopped before the stage's end runs, so that it runs exactly once, whatever boxes it shows.
void JobRunner::finish() {
    const std::function<void()> ended = hooks_.ended;
    Stop();
    if (ended)
        ended();
}

}  // namespace torvane
