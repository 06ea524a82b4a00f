#include "core/mpegmaker_report.h"

#include "core/mod_general.h"
#include "core/output_watch.h"

#include <QRegularExpression>
#include <cmath>

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');
const QByteArray kErrorPrefix = "**ERROR: ";

// The disc's own sectors, as VCDIMAGER 2.0.1 lays out a VCD 2.0: the ISO area and the
// entries before the first track, and the gaps around each track.
constexpr qint64 kSectorPayload = 2324;
constexpr int kDiscSectors = 450;
constexpr int kTrackSectors = 225;
constexpr int kSectorsPerSecond = 75;

QString Tag(const QString& report, const char* tag) {
    const QRegularExpression pattern(QStringLiteral("<%1>([^<]*)</%1>").arg(QLatin1String(tag)));
    return pattern.match(report).captured(1).trimmed();
}

QString Duration(double seconds) {
    const int whole = static_cast<int>(std::lround(seconds));
    return QStringLiteral("%1 minutes, %2 seconds").arg(whole / 60).arg(whole % 60);
}

QString WrittenEntry(const MadeFile& file, const MpegInfo& info, MakerTarget target) {
    const QString reason = NotReadyReason(info, target);
    return file.output + CR + QStringLiteral("   plays ") + Duration(info.playingTime) +
           (reason.isEmpty() ? QStringLiteral("; ready for VCDIMAGER.")
                             : QStringLiteral("; NOT ready for VCDIMAGER: ") + reason);
}

QString FailedEntry(const MadeFile& file) {
    return QStringLiteral("Not converted: ") + file.input + CR + QStringLiteral("   ") +
           FailureWords(file.log) + CR + QStringLiteral("   ") +
           NothingWrittenText(QStringLiteral("MPEG file"), file.output, file.olderKept);
}

}  // namespace

MpegInfo ReadMpegInfo(const QByteArray& log) {
    MpegInfo info;
    const qsizetype start = log.lastIndexOf("<mpeg-info");
    if (start < 0)
        return info;
    const QString report = QString::fromLocal8Bit(log.mid(start));
    info.read = true;
    if (report.contains(QStringLiteral("<video-stream")))
        info.version = Tag(report, "version").toInt();
    info.width = Tag(report, "horizontal-size").toInt();
    info.height = Tag(report, "vertical-size").toInt();
    info.playingTime = Tag(report, "playing-time").toDouble();
    return info;
}

QString NotReadyReason(const MpegInfo& info, MakerTarget target) {
    if (!info.read)
        return QStringLiteral("VCDXMINFO could not read it.");
    if (info.version == 0)
        return QStringLiteral("VCDXMINFO found no video stream in it.");
    const bool vcd = target == MakerTarget::Vcd;
    const int version = vcd ? 1 : 2;
    const int width = vcd ? 352 : 480;
    const int palHeight = vcd ? 288 : 576;
    const int ntscHeight = vcd ? 240 : 480;
    const QString disc = vcd ? QStringLiteral("a VCD") : QStringLiteral("an SVCD");
    if (info.version != version)
        return QStringLiteral("%1 takes MPEG-%2 video, this is MPEG-%3.")
            .arg(disc)
            .arg(version)
            .arg(info.version);
    if (info.width != width || (info.height != palHeight && info.height != ntscHeight))
        return QStringLiteral("%1 takes pictures of %2x%3 or %2x%4, this one is %5x%6.")
            .arg(disc)
            .arg(width)
            .arg(palHeight)
            .arg(ntscHeight)
            .arg(info.width)
            .arg(info.height);
    return {};
}

QString FailureWords(const std::optional<QByteArray>& log) {
    if (!log)
        return QStringLiteral("Its log could not be read.");
    const qsizetype error = log->lastIndexOf(kErrorPrefix);
    if (error >= 0) {
        const qsizetype end = log->indexOf('\n', error);
        return QString::fromLocal8Bit(
                   log->mid(error + kErrorPrefix.size(), end - error - kErrorPrefix.size()))
            .trimmed();
    }
    const QByteArray last = LastLine(log->split('\n').join("\r\n"));
    return last.isEmpty() ? QStringLiteral("Its log is empty.") : QString::fromLocal8Bit(last);
}

ImageSize EstimatedImageSize(const std::vector<qint64>& streamBytes) {
    qint64 sectors = kDiscSectors;
    for (qint64 bytes : streamBytes)
        sectors += (bytes + kSectorPayload - 1) / kSectorPayload + kTrackSectors;
    ImageSize size;
    size.minutes = static_cast<int>(sectors / (60 * kSectorsPerSecond));
    size.seconds = static_cast<int>(sectors / kSectorsPerSecond % 60);
    size.sectors = static_cast<int>(sectors % kSectorsPerSecond);
    return size;
}

QString MpegmakerReport(const std::vector<MadeFile>& files, MakerTarget target) {
    QStringList entries;
    double playingTime = 0;
    std::vector<qint64> written;
    for (const MadeFile& file : files) {
        if (!file.written) {
            entries << FailedEntry(file);
            continue;
        }
        const MpegInfo info = ReadMpegInfo(file.log.value_or(QByteArray()));
        entries << WrittenEntry(file, info, target);
        playingTime += info.playingTime;
        written.push_back(file.bytes);
    }
    QString text = QStringLiteral("Finished!  %1 of %2 files converted.")
                       .arg(written.size())
                       .arg(files.size()) +
                   CR + CR + entries.join(QStringLiteral("\r\r"));
    if (written.empty())
        return text;
    const ImageSize size = EstimatedImageSize(written);
    return text + CR + CR + QStringLiteral("Together they play for ") + Duration(playingTime) +
           QStringLiteral(".  Put on one disc by VCDIMAGER:") + CR + SizeLine(size) + CR + CR +
           DiscFitAdvice(size.minutes);
}

}  // namespace torvane
