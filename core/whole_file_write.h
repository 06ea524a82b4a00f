#pragma once
// Writing a whole file on the user's behalf (cue sheets, descriptors): complete or not at
// all, and a failure the user is told about in words.

#include <QByteArray>
#include <QString>

namespace torvane {

// Puts exactly `bytes` in the file at `path`, replacing the old file only once every byte
// is on disk. Returns the system's reason when it could not, else an empty text.
QString WriteWholeFile(const QString& path, const QByteArray& bytes);

// The information box's text for a file that was not written, naming it and the reason.
QString FileNotWrittenMessage(const QString& path, const QString& reason);

}  // namespace torvane
