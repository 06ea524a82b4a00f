#pragma once
// For tests that drive a real job: fake tools, the steps of a user at the console, and a
// tool dialog opened from the menu over fake services.

#include "job/console_window.h"
#include "job/job_frame.h"
#include "shell/tool_registry.h"
#include "tests/support/fake_services.h"
#include "tests/support/tool_run.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <type_traits>

namespace torvane::test {

// How long a test waits for a job step before it fails (the job itself is fast).
constexpr int kJobStepTimeoutMs = 20000;

inline void UseBuiltInterpreter() {
    CConsole::setInterpreterPath(QStringLiteral(TORVANE_APP_DIR "/torvane-cmd"));
}

// A temporary application folder with an empty tool folder.
class FakeAppFolder {
public:
    FakeAppFolder() { QDir(dir_.path()).mkpath(QStringLiteral("VCDImager")); }
    QString path() const { return dir_.path(); }
    QString toolFolder() const { return dir_.path() + QStringLiteral("/VCDImager/"); }

    // A tool that runs `body` under /bin/sh: it sees its arguments as "$@".
    void addTool(const QString& name, const QByteArray& body) const {
        QVERIFY(WriteScript(toolFolder() + name, body));
    }
    // Links to the application's own tools: jobs' scripts and lists then go in this folder.
    void linkAppTools(std::initializer_list<const char*> names) const {
        for (const char* name : names)
            QVERIFY(
                QFile::link(TORVANE_APP_DIR "/VCDImager/" + QString(name), toolFolder() + name));
    }

private:
    QTemporaryDir dir_;
};

inline bool WaitForPause(JobFrame& frame) {
    return QTest::qWaitFor(
        [&frame] {
            return frame.console && frame.console->screen().screenText().contains("Press any key");
        },
        kJobStepTimeoutMs);
}

// The console window on the screen, if there is one.
inline ConsoleWindow* ShownConsoleWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<ConsoleWindow*>(widget); window && window->isVisible())
            return window;
    return nullptr;
}

// A key typed in the console window, as the user ends a job at "pause".
inline void PressKeyInConsole() {
    QTest::keyClick(ShownConsoleWindow(), Qt::Key_Space);
}

inline bool WaitForIdle(JobFrame& frame) {
    return QTest::qWaitFor([&frame] { return frame.job_running == 0; }, kJobStepTimeoutMs);
}

// A table of Go refusals: the names picked for input and output (a relative name lies in
// the test's folder) and the start of the one box Go shows.
inline void AddRefusalColumns() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
}

inline void RefusalRow(const char* name, const char* input, const char* output,
                       const char* message) {
    QTest::newRow(name) << QString(input) << QString(output) << QString(message);
}

// A tool dialog made from a context over fake services and shown, as the menu does. With
// `appDir`, the application's own tool folder; otherwise one whose tools a test adds. A
// dialog still open as the test ends is closed, a job still running answered Yes.
template <class Dialog>
struct DialogFixture {
    explicit DialogFixture(const char* tool, const QString& appDir = {})
        : context{fakes.services, appDir.isEmpty() ? app.path() : appDir, [] {}, nullptr},
          dialog(make(tool)) {
        UseBuiltInterpreter();
    }
    // A form's own type is made directly; a plain QWidget through the table of tools.
    Dialog& make([[maybe_unused]] const char* tool) {
        Dialog* made;
        if constexpr (std::is_constructible_v<Dialog, const ToolContext&>)
            made = new Dialog(context);
        else
            made = qobject_cast<Dialog*>(FindTool(QLatin1String(tool))->open(context));
        made->show();
        return *made;
    }
    ~DialogFixture() {
        fakes.boxes.answers.push_back(vbYes);
        if (open)
            open->close();
    }

    // `tool`, if named, records its arguments (one a line), prints `log` and runs `then`. The named
    // controls are clicked before the two names are picked, as the image type decides the
    // output's type.
    void prepare(const char* tool, const QString& clicks, const QString& input,
                 const QString& output, const QByteArray& log = {}, const QByteArray& then = {}) {
        if (tool)
            app.addTool(QLatin1String(tool),
                        "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" +
                            QFile::encodeName(work.filePath("args.txt")) + "'\nprintf '" +
                            QByteArray(log).replace("\r\n", "\\r\\n") + "'\n" + then);
        for (const QString& name : clicks.split(' ', Qt::SkipEmptyParts))
            dialog.template findChild<QAbstractButton*>(name)->click();
        fakes.files.names = {output};
        if (!input.isNull()) {  // a null input: the dialog has no input box to browse for
            fakes.files.names.push_front(input);
            dialog.cmd_input->click();
        }
        dialog.cmd_output->click();
    }

    // Go, the key at "pause" and `answer` to the report's box; true once idle again.
    bool go(int answer) {
        dialog.cmd_rip->click();
        // Go and the other controls stay off while the job runs.
        if (!WaitForPause(dialog.frame) || dialog.cmd_rip->isEnabled() ||
            dialog.cmd_cancel->isEnabled())
            return false;
        fakes.boxes.answers = {answer};
        PressKeyInConsole();
        return WaitForIdle(dialog.frame);
    }

    QStringList arguments() const {
        const QString text = QString::fromUtf8(ReadBytes(work.filePath("args.txt")));
        return text.isEmpty() ? QStringList() : text.chopped(1).split(QLatin1Char('\n'));
    }

    // Picks the refusal row's names, then expects Go to be refused by one information box:
    // no job, no file written in the test's folder, Go still usable.
    void expectRefusal() {
        QFETCH(QString, input);
        QFETCH(QString, output);
        QFETCH(QString, message);
        const auto inFolder = [this](const QString& name) {
            return name.isEmpty() || QDir::isAbsolutePath(name) ? name : work.filePath(name);
        };
        prepare(nullptr, {}, inFolder(input), inFolder(output));
        fakes.boxes.shown.clear();
        dialog.cmd_rip->click();
        QCOMPARE(fakes.boxes.shown.size(), 1u);
        const MessageBoxRequest& box = fakes.boxes.shown[0];
        QVERIFY2(box.title == "Information" && box.text.startsWith(message), qPrintable(box.text));
        QVERIFY(!dialog.frame.running() && !dialog.frame.Timer1.Enabled());
        QCOMPARE(QDir(work.path()).entryList(QDir::Files), QStringList());
        QVERIFY(dialog.cmd_rip->isEnabled());
    }

    FakeServices fakes;
    FakeAppFolder app;
    QTemporaryDir work;
    ToolContext context;
    Dialog& dialog;
    QPointer<Dialog> open{&dialog};  // closing deletes the dialog
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
