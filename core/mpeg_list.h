#pragma once
// The list of MPEG files that VCDXGEN and VCDIMAGER put on a disc, and the text in which
// it travels between a tool dialog and its list dialog. The list is one plain text: each
// path in double quotes, in the order of loading, joined by CR LF, with no line end after
// the last. The same text, unchanged, is the list file that the tool reads.

#include <QString>
#include <QStringList>
#include <optional>

namespace torvane {

// The most MPEG video tracks a disc can hold.
constexpr int kMaxMpegFiles = 98;

struct MpegList {
    int count = 0;  // the number of entries
    QString text;   // the entries
};

// The count in decimal, CR LF, then the list text: "0\r\n" for the empty list.
QString ExchangeText(const MpegList& list);

// The list of an exchange text; nullopt when the text holds no CR LF, as when the list
// dialog was cancelled.
std::optional<MpegList> ReadExchangeText(const QString& exchange);

// `list` with `path`, in double quotes, as its last entry.
MpegList WithFileAdded(const MpegList& list, const QString& path);

// `list` without its last entry, and without the line end before it.
MpegList WithoutLastEntry(const MpegList& list);

// The paths of the list's entries, without their quotes, in the list's order.
QStringList EntryPaths(const MpegList& list);

}  // namespace torvane
