#pragma once
// The drive list that the scan leaves in scanbus.txt, read as the lkVCDxRIP dialog reads
// it: by fixed counts from its end (the scanner's side is scanbus_text.h).

#include <QByteArray>
#include <QStringList>
#include <optional>

namespace torvane {

struct ScanList {
    bool found = false;  // a list with at least one drive and a heading in front
    QStringList drives;  // the entries of list_cd: the file's last drive first
};

// nullopt: the file could not be read.
ScanList ReadScanList(const std::optional<QByteArray>& text);

// The entry of list_cd after a failed scan.
inline const char* const kScanFailedEntry = "CD Drive detection failed...";

}  // namespace torvane
