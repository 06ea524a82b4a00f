#pragma once
// Whether a job wrote its output file: what stood at the path when the job started
// against what stands there when it ended. A job whose tool failed may leave an older
// file of the same name, and that is never reported as the job's own.

#include <QDateTime>
#include <QString>

namespace torvane {

class OutputWatch {
public:
    // Notes what stands at `path` now; called at Go.
    void Start(const QString& path);
    // True when a file that is not empty stands at the path, and is not the one noted.
    bool Written() const;
    // True when the file noted at Start stands at the path still, unchanged.
    bool Kept() const;

private:
    QString path_;
    bool existed_ = false;
    qint64 size_ = 0;
    QDateTime modified_;
};

// The end-of-job words about a `what` ("converted file") that the job did not write at
// `path`: an older file there is named as it was, and no file is never called one.
QString NothingWrittenText(const QString& what, const QString& path, bool olderKept);

}  // namespace torvane
