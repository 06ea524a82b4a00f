#pragma once
// The start of a console job, shared by the job frame and the regenerator's stages: the
// script written whole as raw bytes, and a console titled and coloured as every job's
// that runs it.

#include "job/cconsole.h"
#include "job/job_plan.h"

#include <QString>
#include <memory>

namespace torvane {

class MessageBoxes;

// Writes the plan's script at its path; the information box's text when it could not be
// written (no script, no job: the console would wait forever for an end marker), or empty.
QString WriteJobScript(const JobPlan& plan);

// A new console running the script at `scriptPath` by its full path, so that only the
// script just written may run. Raises ConsoleError when no console can be had.
std::unique_ptr<CConsole> StartJobConsole(MessageBoxes& boxes, const QString& title,
                                          const QString& scriptPath);

// Starts the job script at `scriptPath` in `workDir` with no console and no window, and
// goes on at once, holding nothing of the process; false when it cannot be started.
bool StartHiddenScript(const QString& scriptPath, const QString& workDir);

// The unload guard's question while a job runs; true when the user answers Yes.
bool ConfirmQuitWhileRunning(MessageBoxes& boxes);

}  // namespace torvane
