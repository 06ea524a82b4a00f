#include "core/mpeg_list.h"

#include "core/job_paths.h"

namespace torvane {

namespace {
const QString kLineEnd = QStringLiteral("\r\n");
}  // namespace

QString ExchangeText(const MpegList& list) {
    return QString::number(list.count) + kLineEnd + list.text;
}

std::optional<MpegList> ReadExchangeText(const QString& exchange) {
    const int end = exchange.indexOf(kLineEnd);
    if (end < 0)
        return std::nullopt;
    return MpegList{exchange.left(end).toInt(), exchange.mid(end + kLineEnd.size())};
}

MpegList WithFileAdded(const MpegList& list, const QString& path) {
    const QString entry = Quoted(path);
    return {list.count + 1, list.count == 0 ? entry : list.text + kLineEnd + entry};
}

MpegList WithoutLastEntry(const MpegList& list) {
    if (list.count <= 1)
        return {};
    const int lastEnd = list.text.lastIndexOf(kLineEnd);
    if (lastEnd < 0)
        return list;
    return {list.count - 1, list.text.left(lastEnd)};
}

QStringList EntryPaths(const MpegList& list) {
    QStringList paths;
    if (list.count == 0)
        return paths;
    // The list dialog refuses a name holding a quote or a line end (UnsafePathReason), so
    // each entry is one quoted path and no more.
    for (QString entry : list.text.split(kLineEnd)) {
        if (entry.startsWith(QLatin1Char('"')) && entry.endsWith(QLatin1Char('"')))
            entry = entry.mid(1, entry.size() - 2);
        paths << entry;
    }
    return paths;
}

}  // namespace torvane
