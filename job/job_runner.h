#pragma once
// The one way a job starts and runs, for every tool: a stage at a time, on a timer its owner names,
// so that each owner keeps its own timers and their timing. A console stage has its script written
// whole, its console started at the timer's first tick (shortly after the start) and its screen
// polled four times a second for the end marker. A hidden stage runs its script at once, with no
// console and no window, and is polled for a sign of its end of its own. At the end the timer
// stops, the console or the hidden script goes with every program it started, and the stage's
// `ended` runs; it may start the next stage.

#include "core/job_plan.h"
#include "job/cconsole.h"
#include "job/job_timer.h"

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

namespace torvane {

class MessageBoxes;

class HiddenScript;

// The unload guard's question while a job runs; true when the user answers Yes.
bool ConfirmQuitWhileRunning(MessageBoxes& boxes);

class JobRunner : public QObject {
    Q_OBJECT
public:
    struct Hooks {
        std::function<void()> started;               // the console is up
        std::function<void()> ended;                 // the end seen; console and timer gone
        std::function<void(const QString&)> failed;  // no script or no console: the words why
    };

    JobRunner(MessageBoxes& boxes, QString consoleTitle);
    ~JobRunner() override;

    // A console stage of `plan` on `timer`: the script written, the timer armed (its Tag
    // "0"), the console started at its first tick (its Tag "1", for whoever reads it). A script
    // that cannot be written is `failed` at once, arms nothing and returns false.
    bool Run(JobTimer& timer, const JobPlan& plan, Hooks hooks);
    // A hidden stage on `timer`: `scriptPath` runs in `workDir` at once, and each poll asks
    // `endSeen`. A script that cannot start leaves the polls waiting; it returns false.
    bool RunHidden(JobTimer& timer, const QString& scriptPath, const QString& workDir,
                   std::function<bool()> endSeen, std::function<void()> ended);
    // Ends the stage at once, without its `ended`: timer, console and hidden script go.
    void Stop();
    bool running() const { return timer_ != nullptr; }

    std::unique_ptr<CConsole> console;

private:
    void arm(JobTimer& timer, int firstTickMs);
    void tick();
    void startConsole();
    void finish();

    MessageBoxes& boxes_;
    QString consoleTitle_;
    QString scriptPath_;
    Hooks hooks_;
    std::function<bool()> endSeen_;  // set for a hidden stage only
    std::unique_ptr<HiddenScript> hidden_;
    JobTimer* timer_ = nullptr;
    QMetaObject::Connection ticks_;
};

}  // namespace torvane
