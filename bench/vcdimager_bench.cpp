// Prints what a VCDIMAGER job costs on a VCD of a generated 2-minute clip: the job through
// the dialog (Go to report) against Debian's vcdimager alone with the same switches, and
// our @list adapter against the real tool with the file on its command line.

#include "author/frm_vcdimager.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

using namespace torvane;
using namespace torvane::test;

namespace {

constexpr int kRounds = 5;
const QStringList kSwitches{"-v",
                            "--type=vcd2",
                            "-l",
                            "VIDEOCD",
                            "--info-album-id=MYVCD",
                            "--volume-count=1",
                            "--volume-number=1"};

QString InQuotes(const QString& path) {
    return QLatin1Char('"') + path + QLatin1Char('"');
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Seconds that `program` with `args` takes in `folder`; its output goes to log.txt there.
double RunSeconds(const QString& program, const QStringList& args, const QString& folder) {
    QFile::remove(folder + "/movie.bin");
    QElapsedTimer clock;
    clock.start();
    QProcess tool;
    tool.setWorkingDirectory(folder);
    tool.setStandardOutputFile(folder + "/log.txt");
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(program, args);
    tool.waitForFinished(-1);
    const double seconds = clock.nsecsElapsed() / 1e9;
    if (tool.exitCode() != 0 || !QFile::exists(folder + "/movie.bin")) {
        std::fprintf(stderr, "%s failed\n", qPrintable(program));
        std::exit(1);
    }
    return seconds;
}

// Go to report; the key at "pause" is pressed as soon as the prompt shows.
double JobSeconds(frm_mainmenu& menu, FakeServices& fakes, const QString& clip,
                  const QString& folder) {
    QFile::remove(folder + "/movie.bin");
    auto* dialog = qobject_cast<frm_vcdimager*>(menu.openTool(QStringLiteral("vcdimager")));
    dialog->file_count = 1;
    dialog->file_list = InQuotes(clip);
    fakes.files.names = {folder + "/movie.bin"};
    dialog->cmd_output->click();
    fakes.boxes.answers = {vbNo};
    fakes.boxes.shown.clear();
    QElapsedTimer clock;
    clock.start();
    dialog->cmd_rip->click();
    WaitForPause(dialog->frame);
    PressKeyInConsole();
    WaitForIdle(dialog->frame);
    const double seconds = clock.nsecsElapsed() / 1e9;
    dialog->close();
    if (fakes.boxes.shown.empty() ||
        !fakes.boxes.shown[0].text.startsWith("The process has finished successfully!")) {
        std::fprintf(stderr, "the job failed\n");
        std::exit(1);
    }
    return seconds;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    UseBuiltInterpreter();
    QTemporaryDir work;
    const QString folder = work.path();
    const QString clip = folder + QStringLiteral("/clip.mpg");
    if (QProcess::execute(QStringLiteral(TORVANE_FIXTURES "/make-media"),
                          {QStringLiteral("ntsc-vcd"), QStringLiteral("120"), clip}) != 0) {
        std::fprintf(stderr, "cannot make the clip\n");
        return 1;
    }
    QFile list(folder + "/list.txt");
    if (!list.open(QIODevice::WriteOnly) || list.write(InQuotes(clip).toLocal8Bit()) < 0)
        return 1;
    list.close();
    const QStringList files{"--cue-file=movie.cue", "--bin-file=movie.bin"};
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    menu.show();

    std::vector<double> job, alone, adapter;
    RunSeconds("/usr/bin/vcdimager", kSwitches + files + QStringList{clip}, folder);  // warm up
    for (int round = 0; round < kRounds; ++round) {
        job.push_back(JobSeconds(menu, fakes, clip, folder));
        alone.push_back(
            RunSeconds("/usr/bin/vcdimager", kSwitches + files + QStringList{clip}, folder));
        adapter.push_back(RunSeconds(TORVANE_APP_DIR "/VCDImager/vcdimager.exe",
                                     kSwitches + files + QStringList{"@list.txt"}, folder));
    }
    std::printf("Image: %lld MB; medians of %d runs each:\n",
                QFileInfo(folder + "/movie.bin").size() / 1048576, kRounds);
    std::printf("  VCDIMAGER job, Go to report:   %.3f s\n", Median(job));
    std::printf("  /usr/bin/vcdimager alone:      %.3f s\n", Median(alone));
    std::printf("  vcdimager.exe with @list.txt:  %.3f s\n", Median(adapter));
    // The first tick comes 100 ms after Go and the polls 250 ms apart: a fixed floor.
    std::printf("job/alone %.3f (the engine's own %.3f s); adapter/alone %.3f\n",
                Median(job) / Median(alone), Median(job) - Median(alone),
                Median(adapter) / Median(alone));
    return 0;
}
