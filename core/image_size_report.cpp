#include "core/image_size_report.h"

#include "core/leading_number.h"
#include "core/mod_general.h"

namespace torvane {

namespace {

constexpr int kFieldWidth = 10;
// 0-based starts of the minutes, seconds and sectors pairs; the characters between them
// (":" or "." in the tools' output) are not looked at.
constexpr int kMinutesAt = 1;
constexpr int kSecondsAt = 4;
constexpr int kSectorsAt = 7;
constexpr int kPairWidth = 2;

}  // namespace

ImageSize ParseSizeField(const QByteArray& field) {
    ImageSize size;
    size.minutes = LeadingNumber(field.mid(kMinutesAt, kPairWidth));
    size.seconds = LeadingNumber(field.mid(kSecondsAt, kPairWidth));
    size.sectors = LeadingNumber(field.mid(kSectorsAt, kPairWidth));
    return size;
}

ImageSize SizeAtLineEnd(const QByteArray& lastLine) {
    return ParseSizeField(lastLine.right(kFieldWidth));
}

ImageSize SizeAtFirstBracket(const QByteArray& lastLine) {
    const qsizetype bracket = lastLine.indexOf('[');
    if (bracket < 0)
        return ImageSize();
    return ParseSizeField(lastLine.mid(bracket, kFieldWidth));
}

QString SizeLine(const ImageSize& size) {
    return QStringLiteral("The image size is: %1 minutes, %2 seconds, %3 sectors.")
        .arg(size.minutes)
        .arg(size.seconds)
        .arg(size.sectors);
}

QString ImageMadeQuestion(const ImageSize& size) {
    const QString paragraph = QStringLiteral("\r\r");
    return QStringLiteral("The process has finished successfully!") + paragraph + SizeLine(size) +
           paragraph + DiscFitAdvice(size.minutes) + paragraph +
           QStringLiteral("Do you want to read the log file?");
}

}  // namespace torvane
