#include "core/vcdxgen_builder.h"

namespace torvane {

namespace {

QString VcdxgenOptionSwitches(const VcdxgenInputs& in) {
    const QString noPbc =
        NoPbcCounts(in.disc.type) && in.noPbc ? QStringLiteral("--nopbc") : QString();
    return noPbc + SvcdOptionSwitches(in.disc);
}

}  // namespace

bool NoPbcCounts(DiscType type) {
    return type != DiscType::Vcd11;
}

JobPlan BuildVcdxgenJob(const VcdxgenInputs& in) {
    return BuildListToolJob(
        in.disc, {QStringLiteral("vcdxgen.exe"),
                  QStringLiteral("VCDXGEN Tool - Batch File (quelmora productions)"),
                  QStringLiteral("echo Output XML file: "), VcdxgenOptionSwitches(in),
                  QStringLiteral("--output-file=\"") + in.disc.output + QLatin1Char('"')});
}

ListToolReport BuildVcdxgenReport(const std::optional<QByteArray>& log) {
    // Only the very start of the log counts: no line counting, no last line.
    if (!log || !log->startsWith("(Super) VideoCD xml description created successfully"))
        return {false, ListToolFailureText()};
    return {true, QStringLiteral("The process has finished successfully!\r\rDo you want to load "
                                 "the generated XML file?")};
}

}  // namespace torvane
