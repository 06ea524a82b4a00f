#include "core/vcdxbuild_builder.h"

#include "core/image_size_report.h"
#include "core/job_paths.h"
#include "core/mod_general.h"

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');
const QByteArray kSuccessLine = QByteArrayLiteral("   INFO: finished ok");
// "--image-type=" is dropped where the script names the image type.
constexpr int kImageTypeWordPos = 13;

QString CommandLine(const VcdxbuildInputs& in, const VcdxbuildSwitches& sw,
                    const QString& logPath) {
    return Quoted(in.toolFolder + QStringLiteral("vcdxbuild.exe ")) + QLatin1Char(' ') + sw.sector +
           QStringLiteral(" -v ") + sw.imageType + QLatin1Char(' ') + sw.files +
           QStringLiteral("  ") + Quoted(in.input) + QStringLiteral(" > ") + Quoted(logPath);
}

}  // namespace

QString VcdxbuildValidation(const VcdxbuildInputs& in) {
    if (in.output.isEmpty())
        return QStringLiteral("You have not set an output file!");
    if (in.input.isEmpty())
        return QStringLiteral("You have not loaded an input XML file!");
    return {};
}

VcdxbuildSwitches BuildVcdxbuildSwitches(const VcdxbuildInputs& in) {
    VcdxbuildSwitches sw;
    if (in.cueBin) {
        const QString base = WithoutExtension(in.output, QStringLiteral(".bin"));
        sw.cuePath = base + QStringLiteral(".cue");
        sw.imageType = QStringLiteral("--image-type=bincue");
        sw.files = QStringLiteral("--cue-file=") + Quoted(base + QStringLiteral(".cue")) +
                   QStringLiteral(" --bin-file=") + Quoted(base + QStringLiteral(".bin"));
    } else {
        // The switch carries the name without ".toc": the tool adds it.
        const QString base = WithoutExtension(in.output, QStringLiteral(".toc"));
        sw.imageType = QStringLiteral("--image-type=cdrdao");
        sw.files = QStringLiteral("--cdrdao-file=") + Quoted(base);
    }
    if (in.sector2336)
        sw.sector = QStringLiteral("--sector-2336");
    return sw;
}

VcdxbuildJob BuildVcdxbuildJob(const VcdxbuildInputs& in) {
    const VcdxbuildSwitches sw = BuildVcdxbuildSwitches(in);
    const OutputSplit output = SplitOutputPath(in.output, in.sep);
    const QString inputFolder = SplitOutputPath(in.input, in.sep).output_dir;

    VcdxbuildJob job;
    job.cue_path = sw.cuePath;
    JobPlan& plan = job.plan;
    // The log goes beside the image, and the redirection names it in full.
    plan.logPath = output.output_dir + QStringLiteral("log.txt");
    plan.commandLine = CommandLine(in, sw, plan.logPath);
    PlaceJob(plan, inputFolder,
             QStringLiteral("VCDXBUILD Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input XML File:   ") + in.input
                     << QStringLiteral("echo Output directory: ") + output.output_dir
                     << QStringLiteral("echo Output imagetype: ") +
                            sw.imageType.mid(kImageTypeWordPos)
                     << QStringLiteral("echo Output image:     ") + output.fileName
                     << QStringLiteral("echo Option switches:  ") + sw.sector +
                            QStringLiteral(" -v")
                     << QStringLiteral("echo.") << PleaseWaitLines() << plan.commandLine;
    plan.scriptLines << ScriptClosing();
    return job;
}

bool VcdxbuildRewritesCue(const VcdxbuildInputs& in) {
    return in.cueBin && in.noSubindex;
}

VcdxbuildReport BuildVcdxbuildReport(const std::optional<QByteArray>& log) {
    VcdxbuildReport report;
    report.succeeded = LogSucceeded(log, kSuccessLine);
    if (!report.succeeded) {
        report.text = QStringLiteral("There appears to have been an error!") + CR + CR +
                      QStringLiteral("The error may have been shown in the console window") + CR +
                      QStringLiteral("before it closed.  Otherwise, check your XML file.");
        return report;
    }
    // The tool's own figures from the end of its last line, printed back unchanged.
    const ImageSize size = SizeAtLineEnd(LastLine(*log));
    report.text = ImageMadeQuestion(size);
    return report;
}

}  // namespace torvane
