#include "core/scan_list.h"

namespace torvane {

namespace {

constexpr int kMinimumLength = 140;
constexpr int kEntryWidth = 39;  // description and address
constexpr int kLineWidth = 46;   // five skipped, the entry, CR LF
constexpr int kCommaFromEnd = 3;

bool CommaAtAddress(const QByteArray& rest) {
    return rest.size() >= kCommaFromEnd && rest[rest.size() - kCommaFromEnd] == ',';
}

}  // namespace

ScanList ReadScanList(const std::optional<QByteArray>& text) {
    ScanList list;
    if (!text || text->size() < 2)
        return list;
    // The final line end goes unseen, whatever the two characters are.
    QByteArray rest = text->chopped(2);
    if (rest.size() < kMinimumLength || !CommaAtAddress(rest))
        return list;
    while (CommaAtAddress(rest)) {
        // A list of drive lines alone runs out of text before its heading: a failure, with
        // the drives taken so far.
        if (rest.size() < kEntryWidth)
            return list;
        list.drives << QString::fromLocal8Bit(rest.right(kEntryWidth));
        if (rest.size() < kLineWidth)
            return list;
        rest.chop(kLineWidth);
    }
    list.found = true;
    return list;
}

}  // namespace torvane
