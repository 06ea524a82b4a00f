#include "core/vcdxrip_builder.h"

#include "core/job_paths.h"
#include "core/mod_general.h"

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');
const QByteArray kSuccessLine = QByteArrayLiteral("   INFO: done");

QString CommandLine(const VcdxripInputs& in) {
    return Quoted(in.toolFolder + QStringLiteral("vcdxrip.exe ")) + QLatin1Char(' ') +
           VcdxripOptions(in) + QStringLiteral(" -v ") + QStringLiteral("--output-file=") +
           Quoted(in.output) + QLatin1Char(' ') + VcdxripInputSwitch(in) +
           QStringLiteral(" > log.txt");
}

}  // namespace

QString VcdxripValidation(const VcdxripInputs& in) {
    if (in.output.isEmpty())
        return QStringLiteral("You have not set an output file!");
    if (in.input.isEmpty())
        return QStringLiteral("You have not set an input CD image!");
    if (VcdxripInputSwitch(in).isEmpty())
        return QStringLiteral("The CD Image has not been recognised as either") + CR +
               QStringLiteral("CUE/BIN image type or NRG (Nero Burning Rom)!");
    return {};
}

QString VcdxripInputSwitch(const VcdxripInputs& in) {
    const QString extension = in.input.right(4);
    if (extension == QLatin1String(".bin"))
        return QStringLiteral("--bin-file=") + Quoted(in.input);
    if (extension == QLatin1String(".nrg"))
        return QStringLiteral("--nrg-file=") + Quoted(in.input);
    return {};
}

QString VcdxripOptions(const VcdxripInputs& in) {
    QString options;
    if (in.sector2336)
        options += QStringLiteral(" --sector-2336");
    if (in.noExtPsd)
        options += QStringLiteral(" --no-ext-psd");
    if (in.norip) {
        // Extracting nothing overrides the choice of what not to extract.
        return options + QStringLiteral(" --norip");
    }
    if (in.noFiles)
        options += QStringLiteral(" --nofiles");
    if (in.noSequences)
        options += QStringLiteral(" --nosequences");
    if (in.noSegments)
        options += QStringLiteral(" --nosegments");
    return options;
}

JobPlan BuildVcdxripJob(const VcdxripInputs& in) {
    const OutputSplit output = SplitOutputPath(in.output, in.sep);
    JobPlan plan;
    plan.commandLine = CommandLine(in);
    plan.logPath = output.output_dir + QStringLiteral("log.txt");
    PlaceJob(plan, output.output_dir,
             QStringLiteral("VCDXRIP Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input image:     ") + in.input
                     << QStringLiteral("echo Ouput directory: ") + output.output_dir
                     << QStringLiteral("echo Output XML file: ") + output.fileName
                     << QStringLiteral("echo Option switches: ") + VcdxripOptions(in) +
                            QStringLiteral(" -v")
                     << QStringLiteral("echo.") << PleaseWaitLines() << plan.commandLine;
    plan.scriptLines << ScriptClosing();
    return plan;
}

VcdxripReport BuildVcdxripReport(const std::optional<QByteArray>& log) {
    VcdxripReport report;
    report.succeeded = LogSucceeded(log, kSuccessLine);
    report.text = report.succeeded ? LogSuccessText() : LogFailureText();
    return report;
}

}  // namespace torvane
