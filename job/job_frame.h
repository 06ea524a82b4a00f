#pragma once
// The console job of a tool dialog, written once: the tail of the Go handler (script
// written, timer armed), Timer1's two steps through the job runner, the end-of-job step and
// the unload guard.
// The dialog keeps its own literals and the order of its own steps; it tells the frame
// its console title and gives it two hooks: the report of the end-of-job step and the
// re-enabling of its controls (with its interlocks).

#include "core/job_paths.h"
#include "core/job_plan.h"
#include "core/services.h"
#include "job/cconsole.h"
#include "job/job_runner.h"
#include "job/job_timer.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <memory>

class QWidget;

namespace torvane {

class JobFrame : public QObject {
    Q_OBJECT
public:
    struct Hooks {
        std::function<void()> report;          // the tool's report; the console is gone
        std::function<void()> enableControls;  // the controls back, interlocks applied
    };

    JobFrame(QWidget& dialog, Services& services, QString consoleTitle, Hooks hooks);
    ~JobFrame() override;

    // Steps 3 to 10 of the job start: script and log paths, the change of directory,
    // the script written as raw bytes, Timer1 armed with Tag "0" and interval 100.
    // `extraFiles` are deleted with the script at the end of the job (the list file).
    // A script that cannot be written is reported in a box, the controls come back, no job
    // starts, and it returns false.
    bool Start(const JobPlan& plan, const QStringList& extraFiles = {});

    // Form_Unload's guard. While a job runs it asks whether to quit; No keeps everything
    // as it is and returns false. Yes ends the job: the console is dropped (its processes
    // end), the script and the extra files go, and it returns true.
    bool Form_Unload();

    bool running() const { return job_running != 0; }

    // The fields of the frame, named as the dialogs name them.
    JobTimer Timer1;
    JobRunner runner;  // runs the job on Timer1
    std::unique_ptr<CConsole>& console = runner.console;
    QString script_path;
    QString log_path;
    int16_t job_running = 0;

private:
    void finishJob();
    void abandonJob();
    void deleteJobFiles();

    QWidget& dialog_;
    Services& services_;
    Hooks hooks_;
    QStringList extraFiles_;
};

}  // namespace torvane
