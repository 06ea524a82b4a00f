#pragma once
// The start of a console job, shared by the job frame and the regenerator's stages: the
// script written whole as raw bytes, and a console that runs it, titled and coloured as
// every job's and shown in its window.

#include "core/job_plan.h"
#include "job/cconsole.h"

#include <QProcess>
#include <QString>
#include <memory>

namespace torvane {

class MessageBoxes;

// Writes the plan's script at its path; the information box's text when it could not be
// written (no script, no job: the console would wait forever for an end marker), or empty.
QString WriteJobScript(const JobPlan& plan);

// A new console, shown in a console window that goes with it, running the script at
// `scriptPath` by its full path, so that only the script just written may run. Raises
// ConsoleError when no console can be had.
std::unique_ptr<CConsole> StartJobConsole(MessageBoxes& boxes, const QString& title,
                                          const QString& scriptPath);

// A job script run with no console and no window, in a process group of its own: the
// script and every program it started end when this goes, so that a scan of a dialog
// that has closed writes nothing that a later one could read as its own.
class HiddenScript {
public:
    HiddenScript();
    ~HiddenScript();
    HiddenScript(const HiddenScript&) = delete;
    HiddenScript& operator=(const HiddenScript&) = delete;

    // Starts the script at `scriptPath` in `workDir` and goes on at once; false when it
    // cannot be started.
    bool Start(const QString& scriptPath, const QString& workDir);

private:
    std::unique_ptr<QProcess> process_;
};

// The unload guard's question while a job runs; true when the user answers Yes.
bool ConfirmQuitWhileRunning(MessageBoxes& boxes);

}  // namespace torvane
