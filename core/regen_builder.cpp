#include "core/regen_builder.h"

#include "core/image_size_report.h"
#include "core/job_paths.h"
#include "core/mod_general.h"

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');
const QByteArray kWarning = QByteArrayLiteral("++ WARN: INFO.SVD: signature not found");

QString LogSwitch(const RegenInputs& in) {
    return QStringLiteral(" > ") + Quoted(RegenOutputDir(in) + QStringLiteral("log.txt"));
}

JobPlan Plan(const RegenInputs& in, const QString& jobDir, const QString& commandLine) {
    JobPlan plan;
    plan.commandLine = commandLine;
    plan.jobDir = jobDir;
    plan.scriptPath = jobDir + QStringLiteral("run.bat");
    plan.logPath = RegenOutputDir(in) + QStringLiteral("log.txt");
    return plan;
}

// Stages 2 and 3 share their script but for the banner's phase and the command line.
QStringList PhaseScript(int phase, const QString& commandLine) {
    QStringList lines = ScriptOpening(
        QStringLiteral("CUE/BIN Regenerator - Phase %1 (quelmora productions)").arg(phase));
    lines << QStringLiteral("echo.") << PleaseWaitLines() << commandLine << QStringLiteral("echo.")
          << QStringLiteral("echo Finished!") << QStringLiteral("cls")
          << QStringLiteral("echo ") + QLatin1String(kEndMarker);
    return lines;
}

}  // namespace

QString RegenValidation(const RegenInputs& in) {
    if (in.output.isEmpty())
        return QStringLiteral("You have not set an output file!");
    if (in.input.isEmpty())
        return QStringLiteral("You have not loaded an input XML file!");
    return {};
}

bool RegenAsksOverwrite(const RegenInputs& in) {
    return in.input == in.output;
}

QString RegenOverwriteQuestion() {
    return QStringLiteral("Are you sure you want to overwrite the ") + CR +
           QStringLiteral("existing file?");
}

QString RegenOutputDir(const RegenInputs& in) {
    return SplitOutputPath(in.output, in.sep).output_dir;
}

QString RegenWorkFolder(const RegenInputs& in) {
    return RegenOutputDir(in) + QStringLiteral("_vtools") + in.sep;
}

QString RegenCueName(const QString& output) {
    return WithoutExtension(output, QStringLiteral(".bin")) + QStringLiteral(".cue");
}

JobPlan BuildRegenDetectJob(const RegenInputs& in, bool secondAttempt) {
    const QString commandLine =
        Quoted(in.toolFolder + QStringLiteral("vcddebug.exe")) + QLatin1Char(' ') +
        (secondAttempt ? QStringLiteral("--sector-2336 -q") : QStringLiteral(" -q")) +
        QStringLiteral(" --bin-file=") + Quoted(in.input) + LogSwitch(in);
    JobPlan plan = Plan(in, RegenOutputDir(in), commandLine);
    plan.scriptLines =
        ScriptOpening(QStringLiteral("CUE/BIN Regenerator Tool - Stage 1 (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Please wait...") << QStringLiteral("echo.")
                     << commandLine << QStringLiteral("echo.") << QStringLiteral("echo Finished!")
                     << QStringLiteral("cls")
                     << QStringLiteral("echo ") + QLatin1String(kEndMarker);
    return plan;
}

JobPlan BuildRegenRipJob(const RegenInputs& in, bool sector2336) {
    const QString commandLine = Quoted(in.toolFolder + QStringLiteral("vcdxrip.exe ")) +
                                QLatin1Char(' ') +
                                (sector2336 ? QStringLiteral(" --sector-2336") : QString()) +
                                QStringLiteral(" -v --output-file=") +
                                Quoted(RegenWorkFolder(in) + QStringLiteral("videocd.xml")) +
                                QStringLiteral(" --bin-file=") + Quoted(in.input) + LogSwitch(in);
    JobPlan plan = Plan(in, RegenWorkFolder(in), commandLine);
    plan.scriptLines = PhaseScript(2, commandLine);
    return plan;
}

JobPlan BuildRegenBuildJob(const RegenInputs& in, bool sector2336) {
    const QString commandLine =
        Quoted(in.toolFolder + QStringLiteral("vcdxbuild.exe ")) + QLatin1Char(' ') +
        (sector2336 ? QStringLiteral("--sector-2336") : QString()) +
        QStringLiteral(" -v --image-type=bincue --cue-file=") + Quoted(RegenCueName(in.output)) +
        QStringLiteral(" --bin-file=") + Quoted(in.output) + QLatin1Char(' ') +
        Quoted(RegenWorkFolder(in) + QStringLiteral("videocd.xml")) + LogSwitch(in);
    JobPlan plan = Plan(in, RegenWorkFolder(in), commandLine);
    plan.scriptLines = PhaseScript(3, commandLine);
    return plan;
}

bool RegenDetectWarned(const QByteArray& log) {
    return ContainsText(log, kWarning);
}

std::optional<QByteArray> RegenDiscType(const QByteArray& log) {
    const qsizetype found = log.indexOf(" detected");
    const qsizetype lineEnd = found < 0 ? -1 : log.lastIndexOf("\r\n", found);
    if (lineEnd < 0)
        return std::nullopt;
    return log.mid(lineEnd + 2, found - lineEnd - 2);
}

bool RegenRipSucceeded(const std::optional<QByteArray>& log) {
    return LogSucceeded(log, QByteArrayLiteral("   INFO: done"));
}

bool RegenBuildSucceeded(const std::optional<QByteArray>& log) {
    return LogSucceeded(log, QByteArrayLiteral("   INFO: finished ok"));
}

QString RegenNotAVcdText() {
    return QStringLiteral("The BIN file you selected isn't that of a S(VCD)!");
}

QString RegenRipFailureText() {
    return RegenBuildFailureText() + CR;
}

QString RegenBuildFailureText() {
    return QStringLiteral("There appears to have been an error!");
}

QString RegenFinalReport(const QByteArray& lastLine, const QByteArray& discType, bool sector2336) {
    const ImageSize size = SizeAtLineEnd(lastLine);
    return QStringLiteral("The process has finished successfully!") + CR + CR +
           QStringLiteral("The CUE/BIN files that were regenerated is an ") + CR +
           QStringLiteral("image of a ") + QString::fromLocal8Bit(discType) +
           QStringLiteral(" disc in ") +
           (sector2336 ? QStringLiteral("2336") : QStringLiteral("2352")) +
           QStringLiteral(" byte sectors.") + CR + CR + SizeLine(size) + CR + CR +
           DiscFitAdvice(size.minutes);
}

}  // namespace torvane
