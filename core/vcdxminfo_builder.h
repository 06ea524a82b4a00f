#pragma once
// What the VCDXMINFO dialog turns its inputs into: the switches, the command line and the
// job script. Its checks at Go and its question at the end are the report dialogs' own.

#include "core/job_plan.h"

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

// "-i", " -a", " --relaxed-aps", as ticked; relaxed only counts with APS data on.
QString VcdxminfoSwitches(const VcdxminfoInputs& in);
// Job in the output folder, no log.
JobPlan BuildVcdxminfoJob(const VcdxminfoInputs& in);

}  // namespace torvane
