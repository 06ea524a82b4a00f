#include "build_fixture.h"

#include "shell/mod_general.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace torvane::test {

namespace {

// Long enough for any build of the test clips on a busy machine; a run that takes longer
// has hung.
constexpr int kRunTimeoutMs = 180000;

ToolRun Finish(QProcess& process) {
    ToolRun run;
    run.finished = process.waitForStarted() && process.waitForFinished(kRunTimeoutMs);
    if (!run.finished) {
        process.kill();
        process.waitForFinished();
    }
    run.crashed = process.exitStatus() == QProcess::CrashExit;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.errors = process.readAllStandardError();
    return run;
}

}  // namespace

QString AppTool(const QString& name) {
    return QStringLiteral(TORVANE_APP_DIR "/VCDImager/") + name;
}

ToolRun RunProgram(const QString& program, const QStringList& args, const QString& workDir,
                   const QString& stdoutFile) {
    QProcess process;
    process.setWorkingDirectory(workDir);
    if (!stdoutFile.isEmpty())
        process.setStandardOutputFile(stdoutFile);
    process.start(program, args);
    return Finish(process);
}

ToolRun RunScriptLine(const QByteArray& line, const QString& workDir) {
    const QString script = workDir + QStringLiteral("/run.bat");
    if (!WriteBytes(script, "echo off\r\n" + line))
        return {};
    QProcess process;
    process.setWorkingDirectory(workDir);
    process.start(QStringLiteral(TORVANE_APP_DIR "/torvane-cmd"), {script});
    const ToolRun run = Finish(process);
    QFile::remove(script);
    return run;
}

QByteArray Quoted(const QString& text) {
    return '"' + text.toLocal8Bit() + '"';
}

bool MakeClip(const QString& kind, int seconds, const QString& path) {
    return RunProgram(QStringLiteral(TORVANE_FIXTURES "/make-media"),
                      {kind, QString::number(seconds), path}, QDir::currentPath())
                   .exitCode == 0 &&
           QFile::exists(path);
}

QString MakeFolder(const QString& parent, const QString& name) {
    const QString path = parent + QLatin1Char('/') + name;
    return QDir().mkpath(path) ? path : QString();
}

QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool WriteBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray LastLogLine(const QByteArray& log) {
    return LastLine(log);
}

}  // namespace torvane::test
