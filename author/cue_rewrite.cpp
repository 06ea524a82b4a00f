#include "author/cue_rewrite.h"

#include "shell/mod_general.h"

#include <QFile>

namespace torvane {

void RewriteCueWithoutSubindices(const QString& cuePath) {
    const std::optional<QByteArray> sheet = ReadWholeFile(cuePath);
    if (!sheet)
        return;
    QFile::remove(cuePath);
    QFile file(cuePath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(RemoveSubindices(*sheet));
}

}  // namespace torvane
