#include "job/job_start.h"

#include "core/job_paths.h"
#include "core/services.h"
#include "job/console_window.h"
#include "platform/replace_file.h"

#include <unistd.h>
#include <QFile>
#include <QProcess>
#include <csignal>
#include <cstring>

namespace torvane {

QString WriteJobScript(const JobPlan& plan) {
    QFile::remove(plan.scriptPath);
    // Raw bytes, nothing added: no byte-order mark, no end-of-file mark.
    const QByteArray script = JoinScriptLines(plan.scriptLines).toLocal8Bit();
    const int error = ReplaceFileContents(QFile::encodeName(plan.scriptPath).toStdString(),
                                          std::string_view(script.constData(), script.size()));
    if (!error)
        return {};
    return QStringLiteral("The job script could not be written:\r\r") + ShownPath(plan.scriptPath) +
           QStringLiteral("\r\r") + QString::fromLocal8Bit(std::strerror(error));
}

std::unique_ptr<CConsole> StartJobConsole(MessageBoxes& boxes, const QString& title,
                                          const QString& scriptPath) {
    auto console = std::make_unique<CConsole>(&boxes);
    console->setTitle(title);
    console->setForeColor(2);
    console->setForeIntense(true);
    AttachConsoleWindow(*console);
    console->StartApp(scriptPath);
    return console;
}

bool ConfirmQuitWhileRunning(MessageBoxes& boxes) {
    return ConfirmationBox(boxes, kInformation,
                           QStringLiteral("The command is still running!  Are you") +
                               QLatin1Char('\r') + QStringLiteral("sure that you want to quit?")) !=
           vbNo;
}

HiddenScript::HiddenScript() = default;

HiddenScript::~HiddenScript() {
    if (!process_ || process_->state() == QProcess::NotRunning)
        return;
    // The whole group: the interpreter and the program it waits for.
    kill(-static_cast<pid_t>(process_->processId()), SIGKILL);
    process_->waitForFinished();
}

bool HiddenScript::Start(const QString& scriptPath, const QString& workDir) {
    process_ = std::make_unique<QProcess>();
    process_->setProgram(CConsole::interpreterPath());
    process_->setArguments({scriptPath});
    process_->setWorkingDirectory(workDir);
    process_->setStandardInputFile(QProcess::nullDevice());
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardErrorFile(QProcess::nullDevice());
    process_->setChildProcessModifier([] { setpgid(0, 0); });
    process_->start();
    return process_->waitForStarted();
}

}  // namespace torvane
