// Prints what the regenerator costs: a whole run on the image of a 2-minute clip, Go to
// the report, against the three tools run by hand in sequence with the same switches.
// The two sides alternate; medians of the rounds.

#include "additional/frm_regen.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QApplication>
#include <QDir>
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
const QString kTools = QStringLiteral(TORVANE_APP_DIR "/VCDImager/");

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

bool Run(const QString& program, const QStringList& args, const QString& dir, const QString& log) {
    QProcess tool;
    tool.setWorkingDirectory(dir);
    tool.setStandardOutputFile(log);
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(program, args);
    return tool.waitForFinished(-1) && tool.exitCode() == 0;
}

// What a user would type: the disc read once, taken apart, built again.
double ByHandSeconds(const QString& bin, const QString& out) {
    QDir(out).removeRecursively();
    QDir().mkpath(out + "/_vtools");
    const QString log = out + "/log.txt", xml = out + "/_vtools/videocd.xml";
    QElapsedTimer clock;
    clock.start();
    Run(kTools + "vcddebug.exe", {"-q", "--bin-file=" + bin}, out, log);
    Run(kTools + "vcdxrip.exe", {"-v", "--output-file=" + xml, "--bin-file=" + bin},
        out + "/_vtools", log);
    Run(kTools + "vcdxbuild.exe",
        {"-v", "--image-type=bincue", "--cue-file=" + out + "/new.cue",
         "--bin-file=" + out + "/new.bin", xml},
        out + "/_vtools", log);
    return clock.nsecsElapsed() / 1e9;
}

double RegeneratorSeconds(frm_mainmenu& menu, FakeServices& fakes, const QString& bin,
                          const QString& out) {
    QDir(out).removeRecursively();
    QDir().mkpath(out);
    auto* dialog = qobject_cast<frm_regen*>(menu.openTool(QStringLiteral("regen")));
    fakes.files.names = {bin, out + "/new.bin"};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    QElapsedTimer clock;
    clock.start();
    dialog->cmd_rip->click();
    if (!QTest::qWaitFor([dialog] { return !dialog->job_running; }, 600000))
        std::fprintf(stderr, "the run did not end\n");
    const double seconds = clock.nsecsElapsed() / 1e9;
    dialog->close();
    return seconds;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: regen_bench IMAGE.bin\n");
        return 2;
    }
    UseBuiltInterpreter();
    const QString bin = QString::fromLocal8Bit(argv[1]);
    QTemporaryDir work;
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    std::vector<double> byHand, regenerator;
    ByHandSeconds(bin, work.filePath("warm"));
    for (int round = 0; round < kRounds; ++round) {
        byHand.push_back(ByHandSeconds(bin, work.filePath("hand")));
        regenerator.push_back(RegeneratorSeconds(menu, fakes, bin, work.filePath("regen")));
    }
    const double hand = Median(byHand), regen = Median(regenerator);
    std::printf("three tools by hand: %.3f s (median of %d)\n", hand, kRounds);
    std::printf("regenerator, Go to report: %.3f s (median of %d)\n", regen, kRounds);
    std::printf("ratio regenerator/by hand: %.2f\n", regen / hand);
    // Each stage is armed 100 ms after the last one ends and polled every 250 ms, and the
    // closing step comes 100 ms after the report: about 0.9 s that no tool spends.
    std::printf("regenerator's own time: %.3f s\n", regen - hand);
    return 0;
}
