#pragma once
// What the VCDXBUILD dialog turns its inputs into: the validation message, the switches,
// the command line, the job script, the cue sheet's name, and the end-of-job report.

#include "core/job_plan.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <optional>

namespace torvane {

struct VcdxbuildInputs {
    QString input;            // txt_input: the XML descriptor
    QString output;           // txt_output: the image name
    bool cueBin = true;       // opt_cuebin selected; otherwise opt_toc
    bool sector2336 = false;  // chk_s2336 ticked
    bool noSubindex = false;  // chk_subindex ticked
    QString toolFolder;       // ends in a separator
    QChar sep;
    bool nrg = false;  // opt_nrg selected, on lkVCDxBUILD; then cueBin is false
};

// The first failing check's message, or empty when Go may go on.
QString VcdxbuildValidation(const VcdxbuildInputs& in);

// The pieces of the command line that follow from the image type and the options.
struct VcdxbuildSwitches {
    QString imageType;  // "--image-type=bincue" or "--image-type=cdrdao"
    QString files;      // --cue-file=... --bin-file=..., or --cdrdao-file=...
    QString sector;     // "--sector-2336" or empty
    QString cuePath;    // the cue sheet's name; empty with CDRDAO/TOC
};
VcdxbuildSwitches BuildVcdxbuildSwitches(const VcdxbuildInputs& in);

struct VcdxbuildJob {
    JobPlan plan;  // runs in the input folder; the log goes beside the image
    QString cue_path;
};
VcdxbuildJob BuildVcdxbuildJob(const VcdxbuildInputs& in);

// The same job for lkVCDxBUILD: the fork's switches and script lines.
VcdxbuildJob BuildLkvcdxbuildJob(const VcdxbuildInputs& in);

// Whether the new cue sheet loses its subindices after a successful job.
bool VcdxbuildRewritesCue(const VcdxbuildInputs& in);

// The outcome of a job, read from its log (nullopt: the log could not be read).
struct VcdxbuildReport {
    bool succeeded = false;
    QString text;  // the confirmation box on success, the information box otherwise
};
VcdxbuildReport BuildVcdxbuildReport(const std::optional<QByteArray>& log);

}  // namespace torvane
