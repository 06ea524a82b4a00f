#pragma once
// For tests that drive a real job: fake tools, and the steps of a user at the console.

#include "job/job_frame.h"
#include "tests/support/fake_services.h"
#include "tests/support/tool_run.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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

    // A tool that writes its arguments, one per line, to `argsFile` and prints `output`.
    void addRecordingTool(const QString& name, const QString& argsFile,
                          const QByteArray& output = {}) const {
        addTool(name, "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" +
                          QFile::encodeName(argsFile) + "'\nprintf '" + output + "'");
    }

private:
    QTemporaryDir dir_;
};

inline bool WaitForPause(JobFrame& frame) {
    return QTest::qWaitFor(
        [&frame] { return frame.console && frame.console->screenText().contains("Press any key"); },
        kJobStepTimeoutMs);
}

// A key typed in the console window, as the user ends a job at "pause".
inline void PressKeyInConsole(JobFrame& frame) {
    QTest::keyClick(frame.console->window(), Qt::Key_Space);
}

inline bool WaitForIdle(JobFrame& frame) {
    return QTest::qWaitFor([&frame] { return frame.job_running == 0; }, kJobStepTimeoutMs);
}

inline QStringList EnabledControls(const QWidget& form, const QStringList& names) {
    QStringList enabled;
    for (const QString& name : names)
        if (const auto* control = form.findChild<QWidget*>(name); control && control->isEnabled())
            enabled << name;
    return enabled;
}

inline QStringList RecordedArguments(const QString& argsFile) {
    const QString text = QString::fromUtf8(ReadBytes(argsFile));  // one line per argument
    return text.isEmpty() ? QStringList() : text.chopped(1).split(QLatin1Char('\n'));
}

// Go, the key at "pause" and `answer` to the report's box; true once the job is idle again.
inline bool RunJobToIdle(QAbstractButton& go, JobFrame& frame, FakeMessageBoxes& boxes,
                         int answer) {
    go.click();
    if (!WaitForPause(frame))
        return false;
    boxes.answers = {answer};
    PressKeyInConsole(frame);
    return WaitForIdle(frame);
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

// Picks the row's names through the dialog's two browse buttons, then expects Go to be
// refused by one information box: no job, no file written in `folder`, Go still usable.
inline void PickAndExpectRefusal(FakeServices& fakes, QWidget& dialog, JobFrame& frame,
                                 const QString& folder) {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(QString, message);
    const auto inFolder = [&folder](const QString& name) {
        return name.isEmpty() || QDir::isAbsolutePath(name) ? name : folder + '/' + name;
    };
    fakes.files.names = {inFolder(input), inFolder(output)};
    dialog.findChild<QAbstractButton*>(QStringLiteral("cmd_input"))->click();
    dialog.findChild<QAbstractButton*>(QStringLiteral("cmd_output"))->click();
    auto& go = *dialog.findChild<QAbstractButton*>(QStringLiteral("cmd_rip"));
    fakes.boxes.shown.clear();
    go.click();
    QCOMPARE(fakes.boxes.shown.size(), 1u);
    const MessageBoxRequest& box = fakes.boxes.shown[0];
    QVERIFY2(box.title == "Information" && box.text.startsWith(message), qPrintable(box.text));
    QVERIFY(!frame.running() && !frame.Timer1.Enabled());
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList());
    QVERIFY(go.isEnabled());
}

// Closes a tool dialog as a test ends, answering Yes should a job still run.
inline void CloseDialog(QWidget* dialog, FakeMessageBoxes& boxes) {
    if (!dialog)
        return;
    boxes.answers.push_back(vbYes);
    dialog->close();
}

}  // namespace torvane::test
