#include "core/disc_settings.h"

#include "core/job_paths.h"
#include "core/mod_general.h"

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');

// An empty label or album id passes its check and goes into the command line as a blank.
QString BlankIfEmpty(const QString& text) {
    return text.isEmpty() ? QStringLiteral(" ") : text;
}

QString CapitalsMessage(const char* what) {
    return QStringLiteral("The %1 can only contain CAPITAL characters (A-Z),").arg(what) + CR +
           QStringLiteral("numbers (0-9), and underscore (_).");
}

QString TypeSwitch(DiscType type) {
    switch (type) {
        case DiscType::Vcd11:
            return QStringLiteral("--type=vcd11");
        case DiscType::Vcd2:
            return QStringLiteral("--type=vcd2");
        case DiscType::Svcd:
            return QStringLiteral("--type=svcd");
        case DiscType::Hqvcd:
            break;
    }
    return QStringLiteral("--type=hqvcd");
}

}  // namespace

bool SvcdOptionsCount(DiscType type) {
    return type == DiscType::Svcd || type == DiscType::Hqvcd;
}

QString DiscSettingsValidation(const DiscSettings& disc) {
    if (disc.files.count == 0)
        return QStringLiteral("You haven't selected any video files to put on the") + CR +
               QStringLiteral("S/VCD!  You must select at least one video file.");
    if (disc.output.isEmpty())
        return QStringLiteral("You have not set an output file!");
    if (!IsValidLabel(disc.volumeLabel))
        return CapitalsMessage("Volume Label");
    if (!IsValidLabel(disc.albumId))
        return CapitalsMessage("Album ID");
    if (!IsValidNumber(disc.volumeCount))
        return QStringLiteral("The Volume Count must be a number between 1 and 65535");
    if (!IsValidNumber(disc.volumeNumber))
        return QStringLiteral("The Volume Number must be a number between 1 and 65535");
    // Equal passes, in spite of the word.
    if (disc.volumeNumber.toInt() > disc.volumeCount.toInt())
        return QStringLiteral("The Volume Number must be smaller than the Volume Count");
    return {};
}

QString SvcdOptionSwitches(const DiscSettings& disc) {
    QString switches;
    if (SvcdOptionsCount(disc.type) && disc.brokenSvcd)
        switches += QStringLiteral(" --broken-svcd-mode");
    if (SvcdOptionsCount(disc.type) && disc.updateScanOffsets)
        switches += QStringLiteral(" --update-scan-offsets");
    return switches;
}

QString ListFilePath(const DiscSettings& disc) {
    return disc.toolFolder + QStringLiteral("list.txt");
}

JobPlan BuildListToolJob(const DiscSettings& disc, const ListToolJobText& text) {
    const OutputSplit split = SplitOutputPath(disc.output, disc.sep);
    JobPlan plan;
    plan.logPath = split.output_dir + QStringLiteral("log.txt");
    plan.commandLine = text.tool + QLatin1Char(' ') + text.optionSwitches +
                       QStringLiteral(" -v  ") + TypeSwitch(disc.type) + QStringLiteral(" -l ") +
                       BlankIfEmpty(disc.volumeLabel) + QStringLiteral(" --info-album-id=") +
                       BlankIfEmpty(disc.albumId) + QStringLiteral(" --volume-count=") +
                       QString::number(disc.volumeCount.toInt()) +
                       QStringLiteral(" --volume-number=") +
                       QString::number(disc.volumeNumber.toInt()) + QLatin1Char(' ') +
                       text.outputSwitches + QStringLiteral(" @list.txt > ") + Quoted(plan.logPath);
    PlaceJob(plan, disc.toolFolder, text.banner);
    plan.scriptLines << QStringLiteral("echo Ouput directory: ") + split.output_dir
                     << text.outputEcho + split.fileName
                     << QStringLiteral("echo Option switches: ") + text.optionSwitches +
                            QStringLiteral(" -v")
                     << QStringLiteral("echo.") << PleaseWaitLines() << plan.commandLine
                     << ScriptClosing();
    return plan;
}

QString ListToolFailureText() {
    return QStringLiteral("There appears to have been an error!") + CR + CR +
           QStringLiteral("The error may have been shown in the console window") + CR +
           QStringLiteral("before it closed.  Otherwise, check your MPEG files.");
}

}  // namespace torvane
