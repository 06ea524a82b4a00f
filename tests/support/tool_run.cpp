#include "tool_run.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <csignal>

namespace torvane::test {

// Long enough for any build of the test media on a busy machine; a run that takes longer
// has hung.
constexpr int kRunTimeoutMs = 180000;

QString Media(const QString& name) {
    return QStringLiteral(TORVANE_MEDIA_DIR "/") + name;
}

QString AppTool(const QString& name) {
    return QStringLiteral(TORVANE_APP_DIR "/VCDImager/") + name;
}

ToolRun RunProgram(const QString& program, const QStringList& args, const QString& workDir,
                   const QString& stdoutFile, const QString& tmpDir) {
    QProcess process;
    process.setWorkingDirectory(workDir);
    if (!stdoutFile.isEmpty())
        process.setStandardOutputFile(stdoutFile);
    if (!tmpDir.isEmpty()) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("TMPDIR"), tmpDir);
        process.setProcessEnvironment(env);
    }
    process.start(program, args);
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

ToolRun RunScriptLine(const QByteArray& line, const QString& workDir) {
    const QString script = workDir + QStringLiteral("/run.bat");
    if (!WriteBytes(script, "echo off\r\n" + line))
        return {};
    const ToolRun run =
        RunProgram(QStringLiteral(TORVANE_APP_DIR "/torvane-cmd"), {script}, workDir);
    QFile::remove(script);
    return run;
}

QByteArray Quoted(const QString& text) {
    return '"' + QFile::encodeName(text) + '"';
}

QString FreshFolder(const QString& parent, const QString& name) {
    const QString folder = parent + QLatin1Char('/') + name;
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    return folder;
}

QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool WriteBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool WriteScript(const QString& path, const QByteArray& body) {
    QFile::remove(path);
    return WriteBytes(path, "#!/bin/sh\n" + body + "\n") &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QStringList EntriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden |
                                  QDir::System);
}

QMap<QString, QByteArray> FilesIn(const QString& folder) {
    QMap<QString, QByteArray> files;
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden | QDir::System))
        files.insert(name, ReadBytes(dir.filePath(name)));
    return files;
}

bool ProcessGone(qint64 pid) {
    if (pid <= 0 || ::kill(pid_t(pid), 0) != 0)
        return pid > 0;
    const QByteArray stat = ReadBytes("/proc/" + QString::number(pid) + "/stat");
    return stat.mid(stat.lastIndexOf(')') + 2, 1) == "Z";
}

}  // namespace torvane::test
