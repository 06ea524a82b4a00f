#include "core/vcdxminfo_builder.h"

#include "core/job_paths.h"

namespace torvane {

namespace {
const QChar Quote = QLatin1Char('"');
}  // namespace

QString VcdxminfoSwitches(const VcdxminfoInputs& in) {
    QString switches;
    if (in.generic)
        switches = QStringLiteral("-i");
    if (in.aps) {
        switches += QStringLiteral(" -a");
        if (in.apsRelaxed)
            switches += QStringLiteral(" --relaxed-aps");
    }
    return switches;
}

JobPlan BuildVcdxminfoJob(const VcdxminfoInputs& in) {
    const OutputSplit split = SplitOutputPath(in.output, in.sep);
    const QString switches = VcdxminfoSwitches(in);

    JobPlan plan;
    plan.commandLine = Quote + in.toolFolder + QStringLiteral("vcdxminfo.exe") + Quote +
                       QLatin1Char(' ') + switches + QStringLiteral(" -v  -p ") +
                       QStringLiteral("--output-file=") + Quote + in.output + Quote +
                       QLatin1Char(' ') + Quote + in.input + Quote;
    PlaceJob(plan, split.output_dir,
             QStringLiteral("VCDXMINFO Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input MPEG File:  ") + in.input
                     << QStringLiteral("echo Output XML File:  ") + split.fileName
                     << QStringLiteral("echo Option switches:  ") + switches +
                            QStringLiteral(" -v -p")
                     << QStringLiteral("echo.") << plan.commandLine;
    plan.scriptLines << ScriptClosing();
    return plan;
}

}  // namespace torvane
