#pragma once
// What the VCDXGEN dialog turns its inputs into: the switches, the command line, the job
// script, and the report, which reads the very start of the log.

#include "core/disc_settings.h"

namespace torvane {

struct VcdxgenInputs {
    DiscSettings disc;
    bool noPbc = false;  // chk_nopbc ticked
};

// Whether chk_nopbc is enabled, and so counts: with every type but VCD 1.1.
bool NoPbcCounts(DiscType type);

JobPlan BuildVcdxgenJob(const VcdxgenInputs& in);

ListToolReport BuildVcdxgenReport(const std::optional<QByteArray>& log);

}  // namespace torvane
