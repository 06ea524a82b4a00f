#pragma once
// What the VCDXMINFO dialog turns its inputs into: the validation message, the switches,
// the command line, the job script, and the question at the end of the job.

#include "job/job_plan.h"

#include <QChar>
#include <QString>

namespace torvane {

struct VcdxminfoInputs {
    QString input;            // txt_input
    QString output;           // txt_output
    bool generic = true;      // chk_generic ticked
    bool aps = true;          // chk_aps ticked
    bool apsRelaxed = false;  // chk_apsrelaxed ticked
    QString toolFolder;       // ends in a separator
    QChar sep;
};

// The first failing check's message, or empty when Go may go on.
QString VcdxminfoValidation(const VcdxminfoInputs& in);
// "-i", " -a", " --relaxed-aps", as ticked; relaxed only counts with APS data on.
QString VcdxminfoSwitches(const VcdxminfoInputs& in);
// Job in the output folder, no log.
JobPlan BuildVcdxminfoJob(const VcdxminfoInputs& in);
// The question of the end-of-job step.
QString VcdxminfoReportText(const QString& output);

}  // namespace torvane
