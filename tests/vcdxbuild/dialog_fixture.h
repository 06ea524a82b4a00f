#pragma once
// The tool dialogs' tests: a dialog opened from a menu over fake services, a job's script.

#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QPushButton>

namespace torvane::test {

// With `appDir`, the application's own tool folder; otherwise one whose tools a test adds.
template <class Dialog>
struct DialogFixture {
    explicit DialogFixture(const char* tool, const QString& appDir = {})
        : menu(fakes.services, appDir.isEmpty() ? app.path() : appDir),
          dialog(*qobject_cast<Dialog*>(menu.openTool(QLatin1String(tool)))) {
        UseBuiltInterpreter();
    }
    ~DialogFixture() { CloseDialog(&dialog, fakes.boxes); }

    // `tool`, if named, records its arguments and prints `log`. The named controls are
    // clicked before the two names are picked, as the image type decides the output's type.
    void prepare(const char* tool, const QString& clicks, const QString& input,
                 const QString& output, const QByteArray& log = {}) {
        if (tool)
            app.addRecordingTool(QLatin1String(tool), work.filePath("args.txt"),
                                 QByteArray(log).replace("\r\n", "\\r\\n"));
        for (const QString& name : clicks.split(' ', Qt::SkipEmptyParts))
            dialog.template findChild<QAbstractButton*>(name)->click();
        fakes.files.names = {input, output};
        dialog.cmd_input->click();
        dialog.cmd_output->click();
    }
    void expectRefusal() { PickAndExpectRefusal(fakes, dialog, dialog.frame, work.path()); }
    bool go(int answer) { return RunJobToIdle(*dialog.cmd_rip, dialog.frame, fakes.boxes, answer); }
    QStringList arguments() const { return RecordedArguments(work.filePath("args.txt")); }

    FakeServices fakes;
    FakeAppFolder app;
    QTemporaryDir work;
    frm_mainmenu menu;
    Dialog& dialog;
};

// A job's own `lines`, the command last, within the fixed ones; `wait` asks for patience.
inline QStringList Script(const char* banner, const QString& lines, bool wait) {
    const int command = lines.lastIndexOf('\n') + 1;
    return (QStringLiteral("echo off\ncls\n") + QLatin1String(banner) + lines.left(command) +
            "echo.\n" +
            (wait ? "echo Please wait for this process to complete. It may take\n"
                    "echo a few minutes.\n"
                  : "") +
            lines.mid(command) + "\necho.\necho Finished!\npause\ncls\necho ***end***")
        .split('\n');
}

}  // namespace torvane::test
