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

private:
    QString path_;
    bool existed_ = false;
    qint64 size_ = 0;
    QDateTime modified_;
};

}  // namespace torvane
