#include "core/mpegmaker_builder.h"

#include "core/job_paths.h"

#include <QDir>
#include <QRegularExpression>
#include <cmath>

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');

// The frame of each target, and the two frame rates.
struct Frame {
    int width;
    int height;
};
constexpr double kPalRate = 25.0;
constexpr double kNtscRate = 30000.0 / 1001.0;

Frame FrameOf(MakerTarget target, TvStandard standard) {
    const bool pal = standard == TvStandard::Pal;
    if (target == MakerTarget::Vcd)
        return {352, pal ? 288 : 240};
    return {480, pal ? 576 : 480};
}

QString TargetName(const MakerInputs& in) {
    return QString(in.standard == TvStandard::Pal ? "PAL" : "NTSC") +
           QString(in.target == MakerTarget::Vcd ? " VCD" : " SVCD");
}

// The name less its last extension; a name that is all extension (".mp4") stays whole.
QString BaseName(const QString& path, QChar sep) {
    const QString name = SplitOutputPath(path, sep).fileName;
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.left(dot) : name;
}

QString Rate(double rate) {
    return QString::number(rate, 'f', 3).remove(QRegularExpression(QStringLiteral("\\.?0+$")));
}

}  // namespace

QString TargetWord(MakerTarget target, TvStandard standard) {
    return QString(standard == TvStandard::Pal ? "pal-" : "ntsc-") +
           QString(target == MakerTarget::Vcd ? "vcd" : "svcd");
}

QString PaddingFilter(MakerTarget target, TvStandard standard) {
    const Frame frame = FrameOf(target, standard);
    // On a 4:3 screen of the frame's size a picture of display aspect `dar` is, at full
    // height, 3/4 * width * dar pixels wide; wider than 4:3 it takes the full width instead
    // and height * 4/3 / dar lines. Sizes are kept even for the 4:2:0 chroma.
    const int fullHeightWidth = frame.width * 3;   // over 4, times dar
    const int fullWidthHeight = frame.height * 4;  // over 3, over dar
    return QStringLiteral(
               "scale=w='if(gt(dar,4/3),%1,2*round(%3*dar/8))':"
               "h='if(gt(dar,4/3),2*round(%4/dar/6),%2)',pad=%1:%2:-1:-1,setdar=4/3")
        .arg(frame.width)
        .arg(frame.height)
        .arg(fullHeightWidth)
        .arg(fullWidthHeight);
}

QString MakerFolder(const MakerInputs& in) {
    return in.outputFolder.endsWith(in.sep) ? in.outputFolder : in.outputFolder + in.sep;
}

QString MadeFilePath(const MakerInputs& in, int index) {
    return MakerFolder(in) + BaseName(in.inputs.at(index), in.sep) + QStringLiteral(".mpg");
}

QString MadeLogPath(const MakerInputs& in, int index) {
    return MakerFolder(in) + BaseName(in.inputs.at(index), in.sep) + QStringLiteral(".log");
}

QString MakerCommandLine(const MakerInputs& in, int index) {
    return Quoted(in.toolFolder + QStringLiteral("mpegmaker.exe")) + QLatin1Char(' ') +
           TargetWord(in.target, in.standard) + QLatin1Char(' ') +
           Quoted(PaddingFilter(in.target, in.standard)) + QLatin1Char(' ') +
           Quoted(in.inputs.at(index)) + QLatin1Char(' ') + Quoted(MadeFilePath(in, index)) +
           QStringLiteral(" > ") + Quoted(MadeLogPath(in, index));
}

JobPlan BuildMpegmakerJob(const MakerInputs& in) {
    JobPlan plan;
    PlaceJob(plan, MakerFolder(in),
             QStringLiteral("MPEG MAKER Tool - Batch File (quelmora productions)"));
    const QString count = QString::number(in.inputs.size());
    plan.scriptLines << QStringLiteral("echo Target:  ") + TargetName(in) +
                            QStringLiteral(" (ffmpeg -target ") +
                            TargetWord(in.target, in.standard) + QLatin1Char(')')
                     << QStringLiteral("echo Output Folder:  ") + MakerFolder(in)
                     << QStringLiteral("echo Video Files:  ") + count << QStringLiteral("echo.")
                     << PleaseWaitLines();
    for (int index = 0; index < in.inputs.size(); ++index) {
        plan.scriptLines << QStringLiteral("echo.")
                         << QStringLiteral("echo File %1 of %2:  ").arg(index + 1).arg(count) +
                                in.inputs.at(index)
                         << MakerCommandLine(in, index);
    }
    if (!in.inputs.isEmpty())
        plan.commandLine = MakerCommandLine(in, 0);
    plan.scriptLines << ScriptClosing();
    return plan;
}

QString MpegmakerValidation(const MakerInputs& in) {
    if (in.inputs.isEmpty())
        return QStringLiteral("You have not loaded any video files!");
    if (in.outputFolder.isEmpty())
        return QStringLiteral("You have not set an output folder!");
    QStringList inputs;
    for (const QString& input : in.inputs)
        inputs << QDir::cleanPath(input);
    QStringList made;
    for (int index = 0; index < inputs.size(); ++index) {
        for (const QString& path : {MadeFilePath(in, index), MadeLogPath(in, index)}) {
            if (made.contains(path))
                return QStringLiteral("Two of the video files would be made into one file:") + CR +
                       CR + ShownPath(path) + CR + CR +
                       QStringLiteral("Please rename one of them or convert them one by one.");
            if (inputs.contains(QDir::cleanPath(path)))
                return QStringLiteral("This file would be written over one of the video files:") +
                       CR + CR + ShownPath(path) + CR + CR +
                       QStringLiteral("Please choose another output folder.");
            made << path;
        }
    }
    return {};
}

QStringList MakerCarriedPaths(const MakerInputs& in) {
    QStringList paths{in.toolFolder, MakerFolder(in)};
    for (int index = 0; index < in.inputs.size(); ++index)
        paths << in.inputs.at(index) << MadeFilePath(in, index) << MadeLogPath(in, index);
    return paths;
}

QString OverwriteQuestion(const QStringList& existing) {
    return QStringLiteral("These files exist already:") + CR + CR + existing.join(CR) + CR + CR +
           QStringLiteral(
               "Do you want to overwrite them? A file that cannot be converted\r"
               "leaves its older MPEG file as it was.");
}

std::optional<double> ProbedFrameRate(const QByteArray& probeOutput) {
    for (const QByteArray& line : probeOutput.split('\n')) {
        const QByteArray value = line.trimmed().mid(line.trimmed().indexOf('=') + 1);
        if (!line.trimmed().startsWith("r_frame_rate=") &&
            !line.trimmed().startsWith("avg_frame_rate="))
            continue;
        const QList<QByteArray> parts = value.split('/');
        bool numOk = false;
        bool denOk = parts.size() < 2;
        const double num = parts.at(0).toDouble(&numOk);
        const double den = parts.size() < 2 ? 1.0 : parts.at(1).toDouble(&denOk);
        if (numOk && denOk && num > 0 && den > 0)
            return num / den;
    }
    return std::nullopt;
}

StandardChoice NearerStandard(std::optional<double> rate) {
    if (!rate)
        return {TvStandard::Pal,
                QStringLiteral("PAL: the frame rate of the first file could not be read")};
    // Field rates (50, 59.94) are twice the frame rates.
    const double frames = *rate > 40.0 ? *rate / 2.0 : *rate;
    const TvStandard standard = std::abs(frames - kNtscRate) < std::abs(frames - kPalRate)
                                    ? TvStandard::Ntsc
                                    : TvStandard::Pal;
    return {standard,
            QString(standard == TvStandard::Pal ? "PAL" : "NTSC") +
                QStringLiteral(": the first file runs at %1 frames a second").arg(Rate(*rate))};
}

}  // namespace torvane
