#pragma once
// The image size report of the build tools: the size that the tool printed at the end of
// its log, printed back in words. The tool's own figures are used as they stand, with no
// arithmetic.

#include <QByteArray>
#include <QString>

namespace torvane {

struct ImageSize {
    int minutes = 0;
    int seconds = 0;
    int sectors = 0;
};

// The 10-character field: characters 2-3 minutes, 5-6 seconds, 8-9 sectors (1-based);
// each pair by its leading numeric part (blanks skipped, "08" -> 8, no number -> 0).
ImageSize ParseSizeField(const QByteArray& field);
// vcdxbuild's last log line: the field is its last 10 characters.
ImageSize SizeAtLineEnd(const QByteArray& lastLine);
// vcdimager's last log line: the field is the 10 characters from the first '['; a line
// without '[' gives zeros.
ImageSize SizeAtFirstBracket(const QByteArray& lastLine);
// "The image size is: 74 minutes, 3 seconds, 40 sectors."
QString SizeLine(const ImageSize& size);
// The build tools' question on success: the size line, the disc-fit advice for its
// minutes, and whether to read the log.
QString ImageMadeQuestion(const ImageSize& size);

}  // namespace torvane
