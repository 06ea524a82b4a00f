#pragma once
// What the CUE/BIN Regenerator turns its two names into: the validation, the job of each
// stage, the reading of each stage's log, and the final report. Built without widgets.

#include "core/job_plan.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <optional>

namespace torvane {

struct RegenInputs {
    QString input;       // txt_input: the lone BIN
    QString output;      // txt_output: the new BIN
    QString toolFolder;  // ends in a separator
    QChar sep;
};

// The first failing check's message, or empty when Go may go on.
QString RegenValidation(const RegenInputs& in);
// Asked, title "Information", when the input is the output (exact, case matters).
bool RegenAsksOverwrite(const RegenInputs& in);
QString RegenOverwriteQuestion();

// Up to and including the output's last separator: the job log's folder.
QString RegenOutputDir(const RegenInputs& in);
// Beside the new image: the folder the disc is taken apart in, with its separator.
QString RegenWorkFolder(const RegenInputs& in);
// The new cue sheet: the output less ".bin" (exact, lower case only), then ".cue".
QString RegenCueName(const QString& output);

// Stage 1: vcddebug.exe; the second attempt reads the image as 2336-byte sectors.
JobPlan BuildRegenDetectJob(const RegenInputs& in, bool secondAttempt);
// Stage 2: vcdxrip.exe takes the image apart into the work folder.
JobPlan BuildRegenRipJob(const RegenInputs& in, bool sector2336);
// Stage 3: vcdxbuild.exe makes the new pair from the work folder's descriptor.
JobPlan BuildRegenBuildJob(const RegenInputs& in, bool sector2336);

// A stage 1 log that says the sector size in force does not fit the image.
bool RegenDetectWarned(const QByteArray& log);
// The disc type of a stage 1 log: the line of the first " detected", up to it; nullopt
// when there is none, or when it stands in the first line.
std::optional<QByteArray> RegenDiscType(const QByteArray& log);

// The success tests of stages 2 and 3 (a log that could not be read fails).
bool RegenRipSucceeded(const std::optional<QByteArray>& log);
bool RegenBuildSucceeded(const std::optional<QByteArray>& log);

// The boxes of the run.
QString RegenNotAVcdText();
QString RegenRipFailureText();    // with a carriage return behind it
QString RegenBuildFailureText();  // without
QString RegenFinalReport(const QByteArray& lastLine, const QByteArray& discType, bool sector2336);

}  // namespace torvane
