#include "core/cdxa2mpeg_builder.h"

#include "core/job_paths.h"
#include "core/output_watch.h"

namespace torvane {

JobPlan BuildCdxa2mpegJob(const Cdxa2mpegInputs& in) {
    const OutputSplit split = SplitOutputPath(in.output, in.sep);

    JobPlan plan;
    plan.commandLine = Quoted(in.toolFolder + QStringLiteral("cdxa2mpeg.exe")) + QLatin1Char(' ') +
                       Quoted(in.input) + QLatin1Char(' ') + Quoted(in.output);
    PlaceJob(plan, split.output_dir,
             QStringLiteral("CDXA2MPEG Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input S/VCD File:  ") + in.input
                     << QStringLiteral("echo Output MPEG File:  ") + split.fileName
                     << QStringLiteral("echo.") << plan.commandLine;
    plan.scriptLines << ScriptClosing();
    return plan;
}

QString Cdxa2mpegReport(const QString& output, bool written, bool olderKept) {
    if (written)
        return QStringLiteral("Finished!\r\rConverted file written in:\r") + output;
    // The tool leaves the output as it was when the input holds no MPEG stream.
    return QStringLiteral("Finished!\r\r") +
           NothingWrittenText(QStringLiteral("converted file"), output, olderKept) +
           QStringLiteral(
               "\r\rThe console showed why: is the input a media file copied off a "
               "S/VCD?");
}

}  // namespace torvane
