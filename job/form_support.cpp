#include "job/form_support.h"

#include "job/job_paths.h"
#include "job/services.h"

#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace torvane {

// The file type of the tool's own is the second filter entry, so dialogs open on it.
constexpr int kToolFilterIndex = 2;

namespace {

// The folder of the last name picked in any file dialog of this run.
QString& LastPickedFolder() {
    static QString folder;
    return folder;
}

}  // namespace

QString BrowseStartFolder(const QString& boxText) {
    const QFileInfo shown(boxText);
    if (!boxText.isEmpty() && shown.absoluteDir().exists())
        return shown.absolutePath();
    if (!LastPickedFolder().isEmpty() && QFileInfo(LastPickedFolder()).isDir())
        return LastPickedFolder();
    return QDir::homePath();
}

void Browse(FileDialogs& files, BrowseKind kind, const QString& filter, QLineEdit& target) {
    const QString folder = BrowseStartFolder(target.text());
    const std::optional<QString> name = kind == BrowseKind::Open
                                            ? files.openFileName(filter, kToolFilterIndex, folder)
                                            : files.saveFileName(filter, kToolFilterIndex, folder);
    if (!name)
        return;
    target.setText(*name);
    LastPickedFolder() = QFileInfo(*name).absolutePath();
}

void MakeCancelButton(QWidget& form, QPushButton& cancel) {
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), &form);
    QObject::connect(escape, &QShortcut::activated, &cancel, [&cancel] {
        if (cancel.isEnabled())
            cancel.click();
    });
}

}  // namespace torvane

namespace torvane {

bool GoMayProceed(MessageBoxes& boxes, const QString& validationMessage,
                  std::initializer_list<QString> paths, std::initializer_list<QString> folders) {
    QString message = validationMessage;
    if (message.isEmpty())
        message = UnsafePathMessage(paths);
    for (const QString& folder : folders) {
        if (message.isEmpty())
            message = UnusableFolderMessage(folder);
    }
    if (message.isEmpty())
        return true;
    InformationBox(boxes, kInformation, message);
    return false;
}

}  // namespace torvane

namespace torvane {

void OpenInViewer(Services& services, const QString& path) {
    if (services.desktop.openInViewer(path))
        return;
    InformationBox(
        services.boxes, kInformation,
        QStringLiteral("No program on this desktop opens the file:\r\r") + ShownPath(path));
}

}  // namespace torvane
