#pragma once
// The small shared routines of the dialogs: validators, the disc-fit advice, log reading
// and analysis, and the cue-sheet subindex rule. All pure but ReadWholeFile.
// File texts are bytes (QByteArray), read and written raw, never converted.

#include <QByteArray>
#include <QString>
#include <optional>

namespace torvane {

// Digits only, value 1 to 65535; leading zeros allowed; empty is false.
bool IsValidNumber(const QString& text);
// Capitals, digits and underscore only; empty is true.
bool IsValidLabel(const QString& text);
// Which CD-R the image fits on, by whole minutes; line breaks are lone CRs.
QString DiscFitAdvice(int minutes);
// Number of CR LF pairs.
int CountLineEnds(const QByteArray& text);
// The whole file as raw bytes; nullopt when it cannot be opened or read.
std::optional<QByteArray> ReadWholeFile(const QString& path);
// The last line that is not empty, without its line end. Only CR LF separates lines;
// trailing CRs and LFs of any kind are dropped. Empty for a text of line ends only.
QByteArray LastLine(const QByteArray& text);
// True if `pattern` occurs in `text`; false if either is empty.
bool ContainsText(const QByteArray& text, const QByteArray& pattern);

// The success test of a job log: at least two line ends, and LastLine begins with
// `successLine` (compared over its whole length). A log that could not be read fails.
bool LogSucceeded(const std::optional<QByteArray>& log, const QByteArray& successLine);
// The two boxes of the success test.
QString LogSuccessText();  // "The process has finished successfully!" ... read the log?
QString LogFailureText();  // "There appears to have been an error!" ... before it closed.

// Drops "    FLAGS DCP" lines and "    INDEX nn" lines with nn > 1; lines joined by CR LF,
// none after the last.
QByteArray RemoveSubindices(const QByteArray& text);

}  // namespace torvane
