#include "core/whole_file_write.h"

#include "platform/replace_file.h"

#include <QFile>
#include <cstring>

namespace torvane {

QString WriteWholeFile(const QString& path, const QByteArray& bytes) {
    if (path.isEmpty())
        return QString::fromLocal8Bit(std::strerror(ENOENT));
    const int error = ReplaceFileContents(QFile::encodeName(path).toStdString(),
                                          std::string_view(bytes.constData(), bytes.size()));
    return error ? QString::fromLocal8Bit(std::strerror(error)) : QString();
}

QString FileNotWrittenMessage(const QString& path, const QString& reason) {
    return QStringLiteral("The file could not be written:\r\r") + path + QStringLiteral("\r\r") +
           reason + QStringLiteral("\r\rAny file of that name is as it was before.");
}

}  // namespace torvane
