#include "core/vcdimager_builder.h"

#include "core/image_size_report.h"
#include "core/job_paths.h"
#include "core/mod_general.h"

namespace torvane {

namespace {
QString VcdimagerOptionSwitches(const VcdimagerInputs& in) {
    return (in.sector2336 ? QStringLiteral("--sector-2336") : QString()) +
           SvcdOptionSwitches(in.disc);
}

}  // namespace

QString VcdimagerBaseName(const QString& output) {
    return WithoutExtension(output, QStringLiteral(".bin"));
}

JobPlan BuildVcdimagerJob(const VcdimagerInputs& in) {
    const QString base = VcdimagerBaseName(in.disc.output);
    const QString files = QStringLiteral("--cue-file=") + Quoted(base + QStringLiteral(".cue")) +
                          QStringLiteral(" --bin-file=") + Quoted(base + QStringLiteral(".bin"));
    return BuildListToolJob(
        in.disc, {QStringLiteral("vcdimager.exe"),
                  QStringLiteral("VCDIMAGER Tool - Batch File (quelmora productions)"),
                  QStringLiteral("echo Output BIN file: "), VcdimagerOptionSwitches(in), files});
}

ListToolReport BuildVcdimagerReport(const std::optional<QByteArray>& log) {
    if (!LogSucceeded(log, "finished ok"))
        return {false, ListToolFailureText()};
    // The tool's own figures from the bracket field of its last line, printed back.
    return {true, ImageMadeQuestion(SizeAtFirstBracket(LastLine(*log)))};
}

}  // namespace torvane
