#pragma once
// What the CDXA2MPEG dialog turns its inputs into: the command line, the job script and
// the report at the end. The tool has no switches and keeps no log.

#include "core/job_plan.h"

#include <QChar>
#include <QString>

namespace torvane {

struct Cdxa2mpegInputs {
    QString input;       // txt_input: the media file copied off a disc
    QString output;      // txt_output: the plain MPEG stream
    QString toolFolder;  // ends in a separator
    QChar sep;
};

// Job in the output folder, no log.
JobPlan BuildCdxa2mpegJob(const Cdxa2mpegInputs& in);

// The information box's text once the job ended: where the converted file was written,
// or, when the job left none, that nothing was written there and whether an older file
// stands there unchanged.
QString Cdxa2mpegReport(const QString& output, bool written, bool olderKept);

}  // namespace torvane
