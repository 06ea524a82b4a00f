#pragma once
// Running the authoring adapters as a job does: directly, or through a job script that
// torvane-cmd runs, with standard output redirected into the job's log.

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace torvane::test {

// What a run leaves: its exit, its standard output (or the script's own), its errors.
struct ToolRun {
    bool finished = false;  // false: it could not start or did not end in time
    bool crashed = false;   // ended by a signal
    int exitCode = -1;
    QByteArray out;
    QByteArray errors;
};

// An executable of the application's tool folder.
QString AppTool(const QString& name);

// Runs `program` with `args` in `workDir`. With `stdoutFile`, standard output goes there,
// as the job script's redirection does; otherwise it is captured in `out`.
ToolRun RunProgram(const QString& program, const QStringList& args, const QString& workDir,
                   const QString& stdoutFile = QString());

// Writes `workDir`/run.bat holding "echo off" and `line`, and runs it with torvane-cmd in
// `workDir`; the line's own redirection makes the log.
ToolRun RunScriptLine(const QByteArray& line, const QString& workDir);

// `text` in double quotes, as the dialogs put paths on a command line.
QByteArray Quoted(const QString& text);

// Makes an MPEG clip of `seconds` of the given kind ("ntsc-vcd", "pal-svcd", ...).
bool MakeClip(const QString& kind, int seconds, const QString& path);

// A new folder `name` (blanks, shell characters, non-ASCII letters allowed) under
// `parent`; its path, or an empty string when it cannot be made.
QString MakeFolder(const QString& parent, const QString& name);

QByteArray ReadBytes(const QString& path);
bool WriteBytes(const QString& path, const QByteArray& bytes);

// The last non-empty line of a job log, as the dialogs take it.
QByteArray LastLogLine(const QByteArray& log);

}  // namespace torvane::test
