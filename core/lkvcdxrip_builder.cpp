#include "core/lkvcdxrip_builder.h"

#include "core/job_paths.h"

#include <QRegularExpression>

namespace torvane {

namespace {

// The drive entry ends in its address, "1, 0, 0".
constexpr int kAddressWidth = 7;

QString Options(const LkvcdxripInputs& in) {
    return QString(in.sector2336 ? QStringLiteral(" /s") : QString()) +
           (in.noExtPsd ? QStringLiteral(" /e") : QString()) +
           (in.norip ? QStringLiteral(" /r") : QString());
}

// "/o" takes the folder without its trailing separator, even a drive's root: "E:".
QString OutputFolder(const OutputSplit& split) {
    return split.output_dir.chopped(split.output_dir.isEmpty() ? 0 : 1);
}

QString LkvcdxripInputSwitch(const LkvcdxripInputs& in) {
    if (in.fromDrive) {
        // "1, 0, 0" becomes "1,0,0": the two blanks go.
        const QString address = in.drive.right(kAddressWidth);
        return QStringLiteral("/c ") + address.left(2) + address.mid(3, 2) + address.right(1) +
               QStringLiteral(" /d ") + in.driver;
    }
    const QString extension = in.input.right(4);
    if (extension == QLatin1String(".bin"))
        return QStringLiteral("/b ") + Quoted(in.input);
    if (extension == QLatin1String(".nrg"))
        return QStringLiteral("/n ") + Quoted(in.input);
    return {};
}

}  // namespace

QString LkvcdxripValidation(const LkvcdxripInputs& in) {
    if (in.output.isEmpty())
        return QStringLiteral("You have not set an output file!");
    if (in.fromDrive &&
        !QRegularExpression(QStringLiteral("\\d, \\d, \\d$")).match(in.drive).hasMatch())
        return QStringLiteral("You have not selected a CD drive!");
    if (!in.fromDrive && in.input.isEmpty())
        return QStringLiteral("You have not set an input CD image!");
    if (!in.fromDrive && LkvcdxripInputSwitch(in).isEmpty())
        return QStringLiteral(
            "The CD Image has not been recognised as either\rCUE/BIN image "
            "type or NRG (Nero Burning Rom)!");
    // The root folder alone, with nothing before its separator, would leave "/o" empty.
    const OutputSplit split = SplitOutputPath(in.output, in.sep);
    if (!split.output_dir.isEmpty() && OutputFolder(split).isEmpty())
        return QStringLiteral("The output file cannot be saved in the root folder:\r\r") +
               ShownPath(in.output) +
               QStringLiteral(
                   "\r\rlkVCDxRIP is given the folder of its output without the last "
                   "separator,\rwhich leaves nothing of the root folder.\rPlease choose a file "
                   "in another folder.");
    return {};
}

JobPlan BuildLkvcdxripJob(const LkvcdxripInputs& in) {
    const OutputSplit split = SplitOutputPath(in.output, in.sep);
    const QString input = LkvcdxripInputSwitch(in);
    JobPlan plan;
    plan.logPath = split.output_dir + QStringLiteral("log.txt");
    plan.commandLine = Quoted(in.toolFolder + QStringLiteral("lkvcdxrip.exe ")) + QLatin1Char(' ') +
                       Options(in) + QStringLiteral(" /o ") + Quoted(OutputFolder(split)) +
                       QLatin1Char(' ') + input + QStringLiteral(" > log.txt");
    PlaceJob(plan, split.output_dir,
             QStringLiteral("lkVCDxRIP Tool - Batch File (quelmora productions)"));
    plan.scriptLines << QStringLiteral("echo Input image:     ") + input.mid(3)
                     << QStringLiteral("echo Ouput directory: ") + split.output_dir
                     << QStringLiteral("echo Output XML file: ") + split.fileName
                     << QStringLiteral("echo Option switches: ") + Options(in)
                     << QStringLiteral("echo.") << PleaseWaitLines() << plan.commandLine
                     << ScriptClosing();
    return plan;
}

QString LkvcdxripDescriptor(const LkvcdxripInputs& in) {
    return SplitOutputPath(in.output, in.sep).output_dir + QStringLiteral("videocd.xml");
}

QString LkvcdxripFailureQuestion() {
    return QStringLiteral(
        "There appears to have been an error!\r\rThe error may have been "
        "shown in the console window\rbefore it closed. Do you want to read "
        "the log file?");
}

}  // namespace torvane
