// The cue-sheet rule of the subindices remover: copy-permit flags and subindex lines go,
// every other line is passed on byte for byte. Lines are judged by exact text at fixed
// positions; nothing of the cue sheet's grammar is parsed.

#include "core/leading_number.h"
#include "core/mod_general.h"

#include <QByteArrayView>
#include <algorithm>
#include <vector>

namespace torvane {

namespace {

const QByteArray kCrLf = QByteArrayLiteral("\r\n");
const QByteArray kFlagsDcp = QByteArrayLiteral("    FLAGS DCP");
const QByteArray kIndex = QByteArrayLiteral("    INDEX");
// The index number stands in characters 11 and 12 of the line (0-based 10 and 11).
constexpr int kIndexNumberAt = 10;
constexpr int kIndexNumberWidth = 2;

bool IsLineEndByte(char c) {
    return c == '\r' || c == '\n';
}

QByteArrayView WithoutTrailingLineEnds(QByteArrayView text) {
    qsizetype end = text.size();
    while (end > 0 && IsLineEndByte(text[end - 1]))
        --end;
    return text.first(end);
}

// INDEX 00 and 01 stay: only the subindices, 02 and up, go.
bool IsDropped(QByteArrayView line) {
    if (line == kFlagsDcp)
        return true;
    if (!line.startsWith(kIndex) || line.size() <= kIndexNumberAt)
        return false;
    const qsizetype width = std::min<qsizetype>(kIndexNumberWidth, line.size() - kIndexNumberAt);
    return LeadingNumber(line.sliced(kIndexNumberAt, width)) > 1;
}

// The kept lines, in order. Empty lines ahead of the first line with text are not kept.
std::vector<QByteArrayView> KeptLines(QByteArrayView sheet) {
    std::vector<QByteArrayView> kept;
    qsizetype start = 0;
    while (start < sheet.size()) {
        qsizetype end = sheet.indexOf(kCrLf, start);
        if (end < 0)
            end = sheet.size();
        const QByteArrayView line = sheet.sliced(start, end - start);
        if (!IsDropped(line) && !(kept.empty() && line.isEmpty()))
            kept.push_back(line);
        start = end + kCrLf.size();
    }
    return kept;
}

// The output ends in text, as the input is cut in front of its trailing line ends: empty
// lines kept after the text, with only dropped lines behind them, go as well, and so do
// the lone CRs and LFs that end the last line. A last line that this leaves as a copy-permit
// flag goes too, so that the rule applied to its own output changes nothing.
void TrimTail(std::vector<QByteArrayView>& kept) {
    while (!kept.empty()) {
        QByteArrayView& last = kept.back();
        last = WithoutTrailingLineEnds(last);
        if (!last.isEmpty() && !IsDropped(last))
            return;
        kept.pop_back();
    }
}

}  // namespace

QByteArray RemoveSubindices(const QByteArray& text) {
    const QByteArrayView sheet = WithoutTrailingLineEnds(text);
    std::vector<QByteArrayView> kept = KeptLines(sheet);
    TrimTail(kept);
    QByteArray result;
    result.reserve(sheet.size());
    for (const QByteArrayView& line : kept) {
        if (!result.isEmpty())
            result += kCrLf;
        result += line;
    }
    return result;
}

}  // namespace torvane
