#pragma once
// What a tool's pure builder hands to the job frame: the command line, where the job
// runs and its script. Built without widgets, tested line by line.

#include <QString>
#include <QStringList>

namespace torvane {

struct JobPlan {
    QString commandLine;
    QString jobDir;      // the directory the job runs in, with its trailing separator
    QString scriptPath;  // jobDir + "run.bat"
    QString logPath;     // empty for tools that keep no log
    QStringList scriptLines;
};

}  // namespace torvane
