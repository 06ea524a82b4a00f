#pragma once
// What the VCDXRIP dialog turns its inputs into: the validation message, the switches,
// the command line, the job script, and the end-of-job report.

#include "core/job_plan.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <optional>

namespace torvane {

struct VcdxripInputs {
    QString input;             // txt_input: the disc image
    QString output;            // txt_output: the XML descriptor
    bool sector2336 = false;   // chk_s2336 ticked
    bool noExtPsd = false;     // chk_noextpsd ticked
    bool norip = false;        // chk_norip ticked: the three below count for nothing
    bool noFiles = false;      // chk_nofiles ticked
    bool noSequences = false;  // chk_nosequences ticked
    bool noSegments = false;   // chk_nosegments ticked
    QString toolFolder;        // ends in a separator
    QChar sep;
};

// The first failing check's message, or empty when Go may go on.
QString VcdxripValidation(const VcdxripInputs& in);

// "--bin-file=" or "--nrg-file=" with the quoted image name, by the name's last four
// characters (exact, lower case only); empty for any other name.
QString VcdxripInputSwitch(const VcdxripInputs& in);

// The ticked options in their fixed order, each with its leading blank.
QString VcdxripOptions(const VcdxripInputs& in);

// Job, script and log in the output folder; the tool extracts into it.
JobPlan BuildVcdxripJob(const VcdxripInputs& in);

// The outcome of a job, read from its log (nullopt: the log could not be read).
struct VcdxripReport {
    bool succeeded = false;
    QString text;  // the confirmation box on success, the information box otherwise
};
VcdxripReport BuildVcdxripReport(const std::optional<QByteArray>& log);

}  // namespace torvane
