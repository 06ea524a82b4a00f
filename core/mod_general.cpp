#include "core/mod_general.h"

#include <QFile>
#include <initializer_list>

namespace torvane {

namespace {

const QByteArray kCrLf = QByteArrayLiteral("\r\n");
constexpr int kLargestNumber = 65535;

bool IsDigit(QChar c) {
    return c.unicode() >= '0' && c.unicode() <= '9';
}

bool IsLineEndByte(char c) {
    return c == '\r' || c == '\n';
}

// Lines of the disc-fit advice break at lone CRs.
QString Lines(std::initializer_list<const char*> parts) {
    QString text;
    for (const char* part : parts) {
        if (!text.isEmpty())
            text += QLatin1Char('\r');
        text += QLatin1String(part);
    }
    return text;
}

}  // namespace

bool IsValidNumber(const QString& text) {
    for (QChar c : text) {
        if (!IsDigit(c))
            return false;
    }
    // The empty text and a digit string too long for an int convert to 0: out of range.
    const int value = text.toInt();
    return value >= 1 && value <= kLargestNumber;
}

bool IsValidLabel(const QString& text) {
    for (QChar c : text) {
        const char16_t code = c.unicode();
        const bool capital = code >= 'A' && code <= 'Z';
        if (!IsDigit(c) && !capital && code != '_')
            return false;
    }
    return true;
}

QString DiscFitAdvice(int minutes) {
    if (minutes < 21)
        return Lines({"It should fit on a 21min/180MB (8 cm) CD-R disc."});
    if (minutes == 21)
        return Lines({"It may fit on a 21min/180MB (8 cm) CD-R disc with",
                      "a small degree of overburning. Otherwise, use a", "74min/650MB CD-R disc."});
    if (minutes < 74)
        return Lines({"It should fit on a 74min/650MB CD-R disc."});
    if (minutes == 74)
        return Lines({"It may fit on a 74min/650MB CD-R disc with a small",
                      "degree of overburning.  Otherwise, use an 80min/700MB", "CD-R disc."});
    if (minutes < 80)
        return Lines({"It should fit on an 80min/700MB CD-R disc."});
    if (minutes == 80)
        return Lines({"It may fit on an 80min/700MB CD-R disc with a small",
                      "degree of overburning.  Otherwise, use a 90min/790MB", "CD-R disc."});
    if (minutes < 90)
        return Lines({"It should fit on a 90min/790MB CD-R disc."});
    if (minutes == 90)
        return Lines({"It may fit on a 90min/790MB CD-R disc with a small",
                      "degree of overburning.  Otherwise, use a 99min/870MB", "CD-R disc."});
    return Lines({"It may fit on a 99min/870MB CD-R disc. Use with caution!"});
}

int CountLineEnds(const QByteArray& text) {
    return static_cast<int>(text.count(kCrLf));
}

std::optional<QByteArray> ReadWholeFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return text;
}

QByteArray LastLine(const QByteArray& text) {
    qsizetype end = text.size();
    while (end > 0 && IsLineEndByte(text[end - 1]))
        --end;
    const QByteArray cut = text.left(end);
    const qsizetype pair = cut.lastIndexOf(kCrLf);
    return pair < 0 ? cut : cut.mid(pair + kCrLf.size());
}

bool ContainsText(const QByteArray& text, const QByteArray& pattern) {
    if (text.isEmpty() || pattern.isEmpty())
        return false;
    return text.contains(pattern);
}

bool LogSucceeded(const std::optional<QByteArray>& log, const QByteArray& successLine) {
    if (!log || CountLineEnds(*log) < 2)
        return false;
    return LastLine(*log).startsWith(successLine);
}

QString LogSuccessText() {
    return QStringLiteral(
        "The process has finished successfully!\r\rDo you want to read the log "
        "file?");
}

QString LogFailureText() {
    return QStringLiteral(
        "There appears to have been an error!\r\rThe error may have been shown in the console "
        "window\rbefore it closed.");
}

}  // namespace torvane
