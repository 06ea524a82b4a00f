#include "job/job_paths.h"

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

QString RuleLine(const QString& bannerLine) {
    const QString echo = QStringLiteral("echo ");
    const int width = bannerLine.startsWith(echo) ? bannerLine.size() - echo.size() : 0;
    return echo + QString(width, QLatin1Char('='));
}

}  // namespace torvane

namespace torvane {

bool AnyHoldsDoubleQuote(const QStringList& paths) {
    for (const QString& path : paths) {
        if (path.contains(QLatin1Char('"')))
            return true;
    }
    return false;
}

QString QuotedPathMessage() {
    return QStringLiteral("A file name that holds a double quote cannot be passed to the tool.") +
           QLatin1Char('\r') + QStringLiteral("Please rename the file or choose another one.");
}

}  // namespace torvane

namespace torvane {

QStringList ScriptOpening(const QString& banner) {
    const QString bannerLine = QStringLiteral("echo ") + banner;
    return {QStringLiteral("echo off"), QStringLiteral("cls"), bannerLine, RuleLine(bannerLine)};
}

QStringList ScriptClosing() {
    return {QStringLiteral("echo."), QStringLiteral("echo Finished!"), QStringLiteral("pause"),
            QStringLiteral("cls"), QStringLiteral("echo ***end***")};
}

}  // namespace torvane
