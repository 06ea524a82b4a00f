#pragma once
// Running the tool folder's adapters as a job does, on the media that the `media` fixture
// makes once per test run (tests/fixtures/make-media-set.sh), and the files they leave.

#include <QByteArray>
#include <QMap>
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

// A file of the media set, by name ("clip-vcd.mpg", "vcd-2336.bin", "ref-vcd", ...).
QString Media(const QString& name);

// An executable of the application's tool folder.
QString AppTool(const QString& name);

// Runs `program` with `args` in `workDir`. With `stdoutFile`, standard output goes there,
// as the job script's redirection does. With `tmpDir`, that is the program's TMPDIR.
ToolRun RunProgram(const QString& program, const QStringList& args, const QString& workDir,
                   const QString& stdoutFile = {}, const QString& tmpDir = {});

// Writes `workDir`/run.bat holding "echo off" and `line`, and runs it with torvane-cmd in
// `workDir`; the line's own redirection makes the log.
ToolRun RunScriptLine(const QByteArray& line, const QString& workDir);

// `text` in double quotes, as the dialogs put paths on a command line.
QByteArray Quoted(const QString& text);

// A new empty folder `name` (blanks, shell characters, non-ASCII letters allowed) under
// `parent`, emptied first if it was there; its path.
QString FreshFolder(const QString& parent, const QString& name);

QByteArray ReadBytes(const QString& path);
bool WriteBytes(const QString& path, const QByteArray& bytes);
// A shell script at `path` that runs `body`.
bool WriteScript(const QString& path, const QByteArray& body);

// Every entry of `folder`, hidden ones too; its plain files, name -> contents.
QStringList EntriesOf(const QString& folder);
QMap<QString, QByteArray> FilesIn(const QString& folder);

// Gone, or a zombie that nobody is left to reap: it runs no more.
bool ProcessGone(qint64 pid);

}  // namespace torvane::test
