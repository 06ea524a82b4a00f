#include "job/form_support.h"

#include "job/job_paths.h"
#include "job/services.h"

#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace torvane {

// The file type of the tool's own is the second filter entry, so dialogs open on it.
constexpr int kToolFilterIndex = 2;

void Browse(FileDialogs& files, BrowseKind kind, const QString& filter, QLineEdit& target) {
    const std::optional<QString> name = kind == BrowseKind::Open
                                            ? files.openFileName(filter, kToolFilterIndex)
                                            : files.saveFileName(filter, kToolFilterIndex);
    if (name)
        target.setText(*name);
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
    InformationBox(boxes, QStringLiteral("Information"), message);
    return false;
}

}  // namespace torvane

namespace torvane {

void OpenInViewer(Services& services, const QString& path) {
    if (services.desktop.openInViewer(path))
        return;
    InformationBox(
        services.boxes, QStringLiteral("Information"),
        QStringLiteral("No program on this desktop opens the file:\r\r") + ShownPath(path));
}

}  // namespace torvane
