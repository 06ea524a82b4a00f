#pragma once
// What the VCDIMAGER dialog turns its inputs into: the image's two file names, the
// switches, the command line, the job script, and the report with the image size.

#include "core/disc_settings.h"

namespace torvane {

struct VcdimagerInputs {
    DiscSettings disc;
    bool sector2336 = false;  // chk_s2336 ticked; counts with every type
};

// The output less a final ".bin" (that exact case), to which ".cue" and ".bin" are added.
QString VcdimagerBaseName(const QString& output);

JobPlan BuildVcdimagerJob(const VcdimagerInputs& in);

ListToolReport BuildVcdimagerReport(const std::optional<QByteArray>& log);

}  // namespace torvane
