#include "core/output_watch.h"

#include <QFileInfo>

namespace torvane {

void OutputWatch::Start(const QString& path) {
    const QFileInfo file(path);
    path_ = path;
    existed_ = file.exists();
    size_ = file.size();
    modified_ = file.lastModified();
}

bool OutputWatch::Written() const {
    const QFileInfo file(path_);
    if (!file.isFile() || file.size() == 0)
        return false;
    return !existed_ || file.size() != size_ || file.lastModified() != modified_;
}

bool OutputWatch::Kept() const {
    const QFileInfo file(path_);
    return existed_ && file.isFile() && file.size() == size_ && file.lastModified() == modified_;
}

QString NothingWrittenText(const QString& what, const QString& path, bool olderKept) {
    return QStringLiteral("No %1 was written; ").arg(what) +
           (olderKept ? QStringLiteral("this file is as it was:\r")
                      : QStringLiteral("there is none at:\r")) +
           path;
}

}  // namespace torvane
