#include "core/vcddebug_builder.h"

#include "core/job_paths.h"

namespace torvane {

namespace {

// "--sector-2336" if ticked, then " -v" or " -q".
QString VcddebugSwitches(const VcddebugInputs& in) {
    return (in.sector2336 ? QStringLiteral("--sector-2336") : QString()) +
           (in.verbose ? QStringLiteral(" -v") : QStringLiteral(" -q"));
}

}  // namespace

JobPlan BuildVcddebugJob(const VcddebugInputs& in) {
    const OutputSplit split = SplitOutputPath(in.output, in.sep);
    const QString switches = VcddebugSwitches(in);

    JobPlan plan;
    plan.commandLine = Quoted(in.toolFolder + QStringLiteral("vcddebug.exe")) + QLatin1Char(' ') +
                       switches + QLatin1Char(' ') + QStringLiteral("--bin-file=") +
                       Quoted(in.input) + QStringLiteral(" > ") + Quoted(in.output);
    PlaceJob(plan, split.output_dir,
             QStringLiteral("VCDDEBUG Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input BIN File:   ") + in.input
                     << QStringLiteral("echo Output Text File: ") + split.fileName
                     << QStringLiteral("echo Option switches:  ") + switches
                     << QStringLiteral("echo.") << plan.commandLine;
    plan.scriptLines << ScriptClosing();
    return plan;
}

}  // namespace torvane
