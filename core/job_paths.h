#pragma once
// The path work every Go handler shares. The separator is the platform's: '\\' on
// Windows, '/' here; it is a parameter so that both can be tested.

#include <QChar>
#include <QString>
#include <QStringList>

namespace torvane {

#ifdef Q_OS_WIN
constexpr char kPathSeparator = '\\';
#else
constexpr char kPathSeparator = '/';
#endif

// The split of an output path at its last separator.
struct OutputSplit {
    QString output_dir;       // up to and including the last separator; empty if none
    int output_name_pos = 0;  // 1-based position of that separator; 0 if none
    QString fileName;         // what follows it
};
OutputSplit SplitOutputPath(const QString& path, QChar sep);

// The application path, a separator if it lacks one, then the folder word and a
// separator: ToolFolder("/opt/app", "VCDImager", '/') == "/opt/app/VCDImager/".
QString ToolFolder(const QString& appPath, const QString& folderWord, QChar sep);

// `text` between double quotes, as the command lines carry paths.
QString Quoted(const QString& text);

// What a job script prints last, after clearing the screen: row 0, column 0 then holds it.
inline const char* const kEndMarker = "***end***";

// `name` less a final `extension`, compared exactly: ".BIN" is no ".bin".
QString WithoutExtension(const QString& name, const QString& extension);

// Lines joined by CR LF, with no line end after the last.
QString JoinScriptLines(const QStringList& lines);

// "echo " and as many '=' as `bannerLine` has characters after "echo ".
QString RuleLine(const QString& bannerLine);

}  // namespace torvane

namespace torvane {

// Why `path` cannot be carried safely through a job script, or empty when it can: a double
// quote cannot stand between the script's quotes, a control character would split the
// script's lines or draw on the console's screen (the end marker included), and a backslash
// that ends the path, a folder's name or the name before its extension would turn the
// closing quote of the whole or of that part into a literal one.
QString UnsafePathReason(const QString& path);

// The refusal of the first path of `paths` that cannot be carried, or empty.
QString UnsafePathMessage(const QStringList& paths);

// The refusal of a folder that a job or a tool writes into when it does not exist or
// cannot be written, or empty when it can be used.
QString UnusableFolderMessage(const QString& folder);

// The path as a message box can show it: control characters become '?'.
QString ShownPath(const QString& path);

}  // namespace torvane

namespace torvane {

// The first lines of every job script: "echo off", "cls", "echo " + banner, and a rule of
// as many '=' as the banner has characters.
QStringList ScriptOpening(const QString& banner);

// Places a tool's job in `folder`: it runs there, from its script run.bat, whose first
// lines are ScriptOpening(banner).
struct JobPlan;
void PlaceJob(JobPlan& plan, const QString& folder, const QString& banner);

// The two lines that ask for patience before a long tool runs.
QStringList PleaseWaitLines();

// The last lines of a job script that waits for a key: "echo.", "echo Finished!", "pause",
// "cls", "echo ***end***". The end marker lands at row 0, column 0 after the clear.
QStringList ScriptClosing();

}  // namespace torvane
