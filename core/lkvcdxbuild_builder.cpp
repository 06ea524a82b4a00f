// lkVCDxBUILD's job: VCDXBUILD's, with the fork's switches, its third image type (Nero)
// and its own script lines.

#include "core/vcdxbuild_builder.h"

#include "core/job_paths.h"

namespace torvane {

namespace {

QString FileSwitches(const VcdxbuildInputs& in) {
    if (in.nrg)  // the extension is put back
        return QStringLiteral("-b ") +
               Quoted(WithoutExtension(in.output, QStringLiteral(".nrg")) + QStringLiteral(".nrg"));
    if (!in.cueBin)  // no ".toc" is put back
        return QStringLiteral("-c ") + Quoted(WithoutExtension(in.output, QStringLiteral(".toc")));
    const QString base = WithoutExtension(in.output, QStringLiteral(".bin"));
    return QStringLiteral("-c ") + Quoted(base + QStringLiteral(".cue")) + QStringLiteral(" -b ") +
           Quoted(base + QStringLiteral(".bin"));
}

// "cuebin", "tocimg" or "nrg": the fork's -i argument.
QString LkImageType(const VcdxbuildInputs& in) {
    if (in.nrg)
        return QStringLiteral("nrg");
    return in.cueBin ? QStringLiteral("cuebin") : QStringLiteral("tocimg");
}

}  // namespace

VcdxbuildJob BuildLkvcdxbuildJob(const VcdxbuildInputs& in) {
    // A tick left in the sector box, disabled under NRG, counts for nothing.
    const QString sector = in.sector2336 && !in.nrg ? QStringLiteral("-s") : QString();
    const OutputSplit output = SplitOutputPath(in.output, in.sep);
    const QString inputFolder = SplitOutputPath(in.input, in.sep).output_dir;

    VcdxbuildJob job;
    if (in.cueBin && !in.nrg)
        job.cue_path = WithoutExtension(in.output, QStringLiteral(".bin")) + QStringLiteral(".cue");
    JobPlan& plan = job.plan;
    plan.logPath = output.output_dir + QStringLiteral("log.txt");
    plan.commandLine = Quoted(in.toolFolder + QStringLiteral("lkvcdxbuild.exe")) +
                       QStringLiteral(" -x ") + Quoted(in.input) + QStringLiteral(" -i ") +
                       LkImageType(in) + QLatin1Char(' ') + FileSwitches(in) + QLatin1Char(' ') +
                       sector + QStringLiteral(" -v 2 > ") + Quoted(plan.logPath);
    PlaceJob(plan, inputFolder,
             QStringLiteral("lkVCDxBUILD Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input XML File:   ") + in.input
                     << QStringLiteral("echo Output directory: ") + output.output_dir
                     << QStringLiteral("echo Output imagetype: ") + LkImageType(in)
                     << QStringLiteral("echo Output image:     ") + output.fileName
                     << QStringLiteral("echo Option switches:  ") + sector + QStringLiteral(" -v 2")
                     << QStringLiteral("echo.") << PleaseWaitLines() << plan.commandLine
                     << ScriptClosing();
    return job;
}

}  // namespace torvane
