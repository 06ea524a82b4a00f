#pragma once
// What the VCDDEBUG dialog turns its inputs into: the switches, the command line and the
// job script. The report goes where the command line's redirection puts it.

#include "core/job_plan.h"

#include <QChar>
#include <QString>

namespace torvane {

struct VcddebugInputs {
    QString input;            // txt_input: the image's BIN file
    QString output;           // txt_output: the report
    bool sector2336 = false;  // chk_s2336 ticked
    bool verbose = true;      // opt_verbose selected, else opt_quiet
    QString toolFolder;       // ends in a separator
    QChar sep;
};

// Job in the output folder, no log: the tool's standard output is the report.
JobPlan BuildVcddebugJob(const VcddebugInputs& in);

}  // namespace torvane
