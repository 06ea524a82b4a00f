#include "core/job_paths.h"

#include "core/job_plan.h"

#include <unistd.h>
#include <QFile>
#include <QFileInfo>

namespace torvane {

OutputSplit SplitOutputPath(const QString& path, QChar sep) {
    OutputSplit split;
    const int index = path.lastIndexOf(sep);
    if (index < 0) {
        split.fileName = path;
        return split;
    }
    split.output_dir = path.left(index + 1);
    split.output_name_pos = index + 1;
    split.fileName = path.mid(index + 1);
    return split;
}

QString ToolFolder(const QString& appPath, const QString& folderWord, QChar sep) {
    QString folder = appPath;
    if (!folder.endsWith(sep))
        folder += sep;
    return folder + folderWord + sep;
}

QString JoinScriptLines(const QStringList& lines) {
    return lines.join(QStringLiteral("\r\n"));
}

QString Quoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString WithoutExtension(const QString& name, const QString& extension) {
    return name.endsWith(extension) ? name.chopped(extension.size()) : name;
}

QString RuleLine(const QString& bannerLine) {
    const QString echo = QStringLiteral("echo ");
    const int width = bannerLine.startsWith(echo) ? bannerLine.size() - echo.size() : 0;
    return echo + QString(width, QLatin1Char('='));
}

}  // namespace torvane

namespace torvane {

QString UnsafePathReason(const QString& path) {
    if (path.contains(QLatin1Char('"')))
        return QStringLiteral("It holds a double quote.");
    for (QChar c : path) {
        if (c.category() == QChar::Other_Control)
            return QStringLiteral(
                "It holds a control character (a line break, a tab or an "
                "escape character).");
    }
    if (path.endsWith(QLatin1Char('\\')))
        return QStringLiteral("It ends in a backslash.");
    // Job lines quote parts of a path on their own too: a folder without its separator, a
    // name without its extension. A backslash that ends such a part ends it just the same.
    const int nameStart = path.lastIndexOf(QLatin1Char(kPathSeparator)) + 1;
    const int extension = path.lastIndexOf(QLatin1Char('.'));
    if (path.contains(QStringLiteral("\\") + QLatin1Char(kPathSeparator)) ||
        (extension > nameStart && path.at(extension - 1) == QLatin1Char('\\')))
        return QStringLiteral(
            "A folder's name or the name before its extension ends in a backslash.");
    return {};
}

QString UnsafePathMessage(const QStringList& paths) {
    for (const QString& path : paths) {
        const QString reason = UnsafePathReason(path);
        if (!reason.isEmpty())
            return QStringLiteral("This file name cannot be passed to the tool:\r\r") +
                   ShownPath(path) + QStringLiteral("\r\r") + reason +
                   QStringLiteral("\rPlease rename the file or choose another one.");
    }
    return {};
}

QString UnusableFolderMessage(const QString& folder) {
    const QString where = folder.isEmpty() ? QStringLiteral(".") : folder;
    if (!QFileInfo(where).isDir())
        return QStringLiteral("The folder does not exist:\r\r") + ShownPath(folder) +
               QStringLiteral("\r\rPlease choose a folder that exists.");
    // Asked of the system for this process, as the job's own writes will be.
    if (::access(QFile::encodeName(where).constData(), W_OK | X_OK) != 0)
        return QStringLiteral("The folder cannot be written to:\r\r") + ShownPath(folder) +
               QStringLiteral("\r\rPlease choose a folder that you may write to.");
    return {};
}

QString ShownPath(const QString& path) {
    QString shown = path;
    for (QChar& c : shown) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char('?');
    }
    return shown;
}

}  // namespace torvane

namespace torvane {

QStringList ScriptOpening(const QString& banner) {
    const QString bannerLine = QStringLiteral("echo ") + banner;
    return {QStringLiteral("echo off"), QStringLiteral("cls"), bannerLine, RuleLine(bannerLine)};
}

void PlaceJob(JobPlan& plan, const QString& folder, const QString& banner) {
    plan.jobDir = folder;
    plan.scriptPath = folder + QStringLiteral("run.bat");
    plan.scriptLines = ScriptOpening(banner);
}

QStringList PleaseWaitLines() {
    return {QStringLiteral("echo Please wait for this process to complete. It may take"),
            QStringLiteral("echo a few minutes.")};
}

QStringList ScriptClosing() {
    return {QStringLiteral("echo."), QStringLiteral("echo Finished!"), QStringLiteral("pause"),
            QStringLiteral("cls"), QStringLiteral("echo ") + QLatin1String(kEndMarker)};
}

}  // namespace torvane
