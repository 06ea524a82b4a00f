#include "job/output_watch.h"

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

}  // namespace torvane
