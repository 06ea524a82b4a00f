#include "job/job_runner.h"

#include "core/job_paths.h"

namespace torvane {

namespace {

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
