// Prints what an MPEG MAKER job costs on a generated 2-minute H.264/AAC clip: the job through
// the dialog, Go to report (its script run by torvane-cmd in the console, ffmpeg through
// MPEG/mpegmaker.exe with the stand-in, the log and the VCDXMINFO check), against ffmpeg
// alone with the same arguments, in alternating rounds.

#include "core/mpegmaker_builder.h"
#include "maker/frm_mpegmaker.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr int kRounds = 3;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Fail(const char* what) {
    std::fprintf(stderr, "%s failed\n", what);
    std::exit(1);
}

double FfmpegSeconds(const QStringList& args) {
    QElapsedTimer clock;
    clock.start();
    if (QProcess::execute(QStringLiteral("ffmpeg"), args) != 0)
        Fail("ffmpeg alone");
    return clock.nsecsElapsed() / 1e9;
}

// Go to report; the key at "pause" is pressed as soon as the prompt shows.
double JobSeconds(frm_mainmenu& menu, FakeServices& fakes, const QString& clip,
                  const QString& folder) {
    auto* dialog = qobject_cast<frm_mpegmaker*>(menu.openTool(QStringLiteral("mpegmaker")));
    dialog->files = WithFileAdded(MpegList{}, clip);
    fakes.files.names = {folder};
    dialog->cmd_output->click();
    fakes.boxes.answers = {vbYes, vbOK};  // overwrite the last round's file; the report
    fakes.boxes.shown.clear();
    QElapsedTimer clock;
    clock.start();
    dialog->cmd_rip->click();
    WaitForPause(dialog->frame);
    PressKeyInConsole();
    WaitForIdle(dialog->frame);
    const double seconds = clock.nsecsElapsed() / 1e9;
    dialog->close();
    if (fakes.boxes.shown.empty() || !fakes.boxes.shown.back().text.startsWith("Finished!  1 of 1"))
        Fail("the job");
    return seconds;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    UseBuiltInterpreter();
    QTemporaryDir work;
    const QString folder = work.path(), clip = folder + QStringLiteral("/clip.mp4");
    if (QProcess::execute(
            QStringLiteral("ffmpeg"),
            {"-v", "error", "-f", "lavfi", "-i", "testsrc=size=1280x720:rate=25:duration=120", "-f",
             "lavfi", "-i", "sine=duration=120", "-c:v", "libx264", "-preset", "ultrafast", "-c:a",
             "aac", "-shortest", clip}) != 0)
        Fail("making the clip");
    // The adapter's own arguments, its output quiet as the job's is in its log.
    const QStringList alone{"-hide_banner",
                            "-v",
                            "error",
                            "-nostdin",
                            "-y",
                            "-i",
                            "file:" + clip,
                            "-target",
                            "pal-vcd",
                            "-vf",
                            PaddingFilter(MakerTarget::Vcd, TvStandard::Pal),
                            "file:" + folder + "/alone.mpg"};
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    menu.show();

    std::vector<double> job, bare;
    for (int round = 0; round < kRounds; ++round) {
        job.push_back(JobSeconds(menu, fakes, clip, folder));
        bare.push_back(FfmpegSeconds(alone));
    }
    std::printf("A 2-minute 720p clip made into PAL VCD MPEG; medians of %d runs each:\n", kRounds);
    std::printf("  MPEG MAKER job, Go to report:  %.3f s\n", Median(job));
    std::printf("  ffmpeg alone:                  %.3f s\n", Median(bare));
    // The first tick comes 100 ms after Go and the polls 250 ms apart: a fixed floor.
    std::printf("job/alone %.3f (the job's own %.3f s)\n", Median(job) / Median(bare),
                Median(job) - Median(bare));
    return 0;
}
