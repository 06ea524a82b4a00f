// Prints what a console job costs: a VCDXMINFO job through the engine against the tool run
// alone, the CPU the program spends polling an idle console, and its resident memory.

#include "inspect/frm_vcdxminfo.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <sys/resource.h>
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
constexpr int kIdleSeconds = 10;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double CpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

long ResidentKiB() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

double ToolAloneSeconds(const QString& clip, const QString& report) {
    QElapsedTimer clock;
    clock.start();
    QProcess tool;
    tool.setStandardOutputFile(QProcess::nullDevice());
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(QStringLiteral(TORVANE_APP_DIR "/VCDImager/vcdxminfo.exe"),
               {"-i", "-a", "-v", "-p", "--output-file=" + report, clip});
    tool.waitForFinished(-1);
    return clock.nsecsElapsed() / 1e9;
}

// Go to report; the key at "pause" is pressed as soon as the prompt shows.
double EngineSeconds(frm_mainmenu& menu, FakeServices& fakes, const QString& clip,
                     const QString& report, bool measureIdle) {
    auto* dialog = qobject_cast<frm_vcdxminfo*>(menu.openTool(QStringLiteral("vcdxminfo")));
    fakes.files.names = {clip, report};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    fakes.boxes.answers = {vbNo};
    QElapsedTimer clock;
    clock.start();
    dialog->cmd_rip->click();
    WaitForPause(dialog->frame);
    const double seconds = clock.nsecsElapsed() / 1e9;
    if (measureIdle) {
        const double before = CpuSeconds();
        QTest::qWait(kIdleSeconds * 1000);
        const double used = CpuSeconds() - before;
        std::printf("idle polling: %.3f s CPU in %d s (%.2f%% of one core)\n", used, kIdleSeconds,
                    100.0 * used / kIdleSeconds);
    }
    QElapsedTimer tail;
    tail.start();
    PressKeyInConsole();
    WaitForIdle(dialog->frame);
    const double afterKey = tail.nsecsElapsed() / 1e9;
    dialog->close();
    return seconds + afterKey;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    UseBuiltInterpreter();
    QTemporaryDir work;
    const QString clip = work.path() + QStringLiteral("/clip.mpg");
    const QString report = work.path() + QStringLiteral("/report.xml");
    if (QProcess::execute(QStringLiteral(TORVANE_FIXTURES "/make-media"),
                          {QStringLiteral("ntsc-vcd"), QStringLiteral("20"), clip}) != 0) {
        std::fprintf(stderr, "cannot make the clip\n");
        return 1;
    }
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    menu.show();
    QTest::qWait(500);
    std::printf("resident memory, menu open: %ld KiB\n", ResidentKiB());

    std::vector<double> alone, engine;
    for (int round = 0; round < kRounds; ++round) {
        alone.push_back(ToolAloneSeconds(clip, report));
        engine.push_back(EngineSeconds(menu, fakes, clip, report, round == 0));
    }
    std::printf("vcdxminfo alone: %.3f s (median of %d)\n", Median(alone), kRounds);
    std::printf("vcdxminfo job, Go to report: %.3f s (median of %d)\n", Median(engine), kRounds);
    std::printf("ratio job/alone: %.2f\n", Median(engine) / Median(alone));
    // The first tick comes 100 ms after Go and the polls 250 ms apart: a fixed cost.
    std::printf("engine's own time per job: %.3f s\n", Median(engine) - Median(alone));
    return 0;
}
