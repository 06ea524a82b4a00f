#include "core/vcdxminfo_builder.h"

#include "core/job_paths.h"

namespace torvane {

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
    plan.commandLine = Quoted(in.toolFolder + QStringLiteral("vcdxminfo.exe")) + QLatin1Char(' ') +
                       switches + QStringLiteral(" -v  -p ") + QStringLiteral("--output-file=") +
                       Quoted(in.output) + QLatin1Char(' ') + Quoted(in.input);
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
