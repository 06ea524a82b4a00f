#pragma once
// What the MPEG maker reports once its job has ended, read from each file's log: the
// maker's tool ends a failed file's log with its reason ("**ERROR: ...") and a written
// file's log with VCDXMINFO's report on it (vcdxminfo -i).

#include "core/image_size_report.h"
#include "core/mpegmaker_builder.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace torvane {

// What VCDXMINFO says of a stream, as far as VCDIMAGER cares.
struct MpegInfo {
    bool read = false;  // the log holds a report of VCDXMINFO's
    int version = 0;    // 1: MPEG-1, 2: MPEG-2; 0: no video stream
    int width = 0;
    int height = 0;
    double playingTime = 0;  // seconds
};
MpegInfo ReadMpegInfo(const QByteArray& log);

// Why VCDIMAGER would refuse the stream for the target's disc, or empty when it is ready.
QString NotReadyReason(const MpegInfo& info, MakerTarget target);

// The words of a failed file's log: its "**ERROR: " line, else its last line.
QString FailureWords(const std::optional<QByteArray>& log);

// The image that VCDIMAGER would make of streams of these sizes (bytes): one 2324-byte
// sector a pack, and the disc's own sectors around each track and before the first.
ImageSize EstimatedImageSize(const std::vector<qint64>& streamBytes);

// One file of the job as it ended.
struct MadeFile {
    QString input;
    QString output;
    bool written = false;    // OutputWatch: a new file stands at `output`
    bool olderKept = false;  // the file that stood there before is there still
    std::optional<QByteArray> log;
    qint64 bytes = 0;  // the written file's size
};

// The information box at the end: each file written (with its playing time and whether it
// is ready for VCDIMAGER) or not (with the tool's words), then the playing time of all that
// was written and the disc it fits on.
QString MpegmakerReport(const std::vector<MadeFile>& files, MakerTarget target);

}  // namespace torvane
