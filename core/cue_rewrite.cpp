#include "core/cue_rewrite.h"

#include "core/mod_general.h"
#include "core/whole_file_write.h"

namespace torvane {

QString RewriteCueWithoutSubindices(const QString& cuePath) {
    const std::optional<QByteArray> sheet = ReadWholeFile(cuePath);
    if (!sheet)
        return {};
    return WriteWholeFile(cuePath, RemoveSubindices(*sheet));
}

}  // namespace torvane
