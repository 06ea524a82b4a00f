#pragma once
// What the MPEG maker turns its inputs into: one job that runs the maker's tool on each video
// file in turn, each writing <name>.mpg and its log <name>.log in the output folder, and the
// default TV standard read from the first file's frame rate.

#include "core/job_plan.h"

#include <QByteArray>
#include <QChar>
#include <QString>
#include <QStringList>
#include <optional>

namespace torvane {

enum class MakerTarget { Vcd, Svcd };
enum class TvStandard { Pal, Ntsc };

struct MakerInputs {
    QStringList inputs;    // the video files, in the list's order
    QString outputFolder;  // txt_output: where the MPEG files go
    MakerTarget target = MakerTarget::Vcd;
    TvStandard standard = TvStandard::Pal;
    QString toolFolder;  // the maker's tool folder, ending in a separator
    QChar sep;
};

// ffmpeg's own target: "pal-vcd", "ntsc-vcd", "pal-svcd", "ntsc-svcd".
QString TargetWord(MakerTarget target, TvStandard standard);

// The video filter that fits any picture into the target's frame with its shape kept: scaled
// by its display aspect (ffmpeg's `dar`) to the largest size that fits a 4:3 screen, centred,
// the rest black, and the whole frame marked 4:3. Never stretched.
QString PaddingFilter(MakerTarget target, TvStandard standard);

// The output folder with its trailing separator.
QString MakerFolder(const MakerInputs& in);
// Where the file `index` of the list goes: its name less its last extension, then ".mpg"
// (".log" for its log), in the output folder.
QString MadeFilePath(const MakerInputs& in, int index);
QString MadeLogPath(const MakerInputs& in, int index);

// The command line of the file `index`; its standard output is its log.
QString MakerCommandLine(const MakerInputs& in, int index);

// The job, in the output folder: each file's command after a line that names it.
JobPlan BuildMpegmakerJob(const MakerInputs& in);

// The first check of Go that fails, or empty: files loaded, an output folder named, no two
// files made under one name, no file made over one of the inputs.
QString MpegmakerValidation(const MakerInputs& in);

// Every path the job script carries.
QStringList MakerCarriedPaths(const MakerInputs& in);

// The outputs that already stand in the output folder; the user is asked before they go.
QString OverwriteQuestion(const QStringList& existing);

// The frames a second of the first video stream in ffprobe's output
// ("r_frame_rate=30000/1001"), or nullopt when it names none.
std::optional<double> ProbedFrameRate(const QByteArray& probeOutput);

// The standard whose frame rate lies nearer `rate` (25 or 29.97, or twice that), and the
// words that say why: "PAL: the first file runs at 25 frames a second".
struct StandardChoice {
    TvStandard standard = TvStandard::Pal;
    QString reason;
};
StandardChoice NearerStandard(std::optional<double> rate);

}  // namespace torvane
