#include "author/cue_rewrite.h"

#include "shell/mod_general.h"
#include "shell/whole_file_write.h"

namespace torvane {

QString RewriteCueWithoutSubindices(const QString& cuePath) {
    const std::optional<QByteArray> sheet = ReadWholeFile(cuePath);
    if (!sheet)
        return {};
    return WriteWholeFile(cuePath, RemoveSubindices(*sheet));
}

}  // namespace torvane
