#pragma once
// A place to run torvane-cmd: a working folder (the job directory) and a folder of
// programs that is put first in PATH, with tiny shell-script programs in both.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace torvane::test {

// How long a test waits for torvane-cmd before it fails: a guard against a hang only.
constexpr int kHangGuardMs = 20000;

class ScriptFixture {
public:
    ScriptFixture() {
        QDir root(dir_.path());
        root.mkpath(QStringLiteral("work"));
        root.mkpath(QStringLiteral("bin"));
        work_ = QDir(root.filePath(QStringLiteral("work"))).canonicalPath();
        bin_ = QDir(root.filePath(QStringLiteral("bin"))).canonicalPath();
    }

    // The job directory, as the interpreter's prompt shows it.
    QString work() const { return work_; }
    QString bin() const { return bin_; }
    QByteArray searchPath() const { return QFile::encodeName(bin_) + ":/usr/bin:/bin"; }

    // An executable shell script at `path` (a folder on its way is made).
    static bool addProgram(const QString& path, const QByteArray& body) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return false;
        file.write("#!/bin/sh\n" + body + "\n");
        file.close();
        return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    // Writes the script as raw bytes into the job directory; returns its name there.
    QString writeScript(const QByteArray& text) const {
        QFile file(work_ + QStringLiteral("/run.bat"));
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(text);
        return QStringLiteral("run.bat");
    }

private:
    QTemporaryDir dir_;
    QString work_;
    QString bin_;
};

}  // namespace torvane::test
