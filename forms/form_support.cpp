#include "forms/form_support.h"

#include "core/job_paths.h"
#include "core/services.h"

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

std::optional<QString> PickFile(FileDialogs& files, BrowseKind kind, const QString& filter,
                                const QString& shownPath) {
    const QString folder = BrowseStartFolder(shownPath);
    const std::optional<QString> name = kind == BrowseKind::Open
                                            ? files.openFileName(filter, kToolFilterIndex, folder)
                                            : files.saveFileName(filter, kToolFilterIndex, folder);
    if (name)
        LastPickedFolder() = QFileInfo(*name).absolutePath();
    return name;
}

void Browse(FileDialogs& files, BrowseKind kind, const QString& filter, QLineEdit& target) {
    if (const std::optional<QString> name = PickFile(files, kind, filter, target.text()))
        target.setText(*name);
}

namespace {

void MakeKeyPress(QWidget& form, QKeySequence key, QPushButton& button) {
    auto* shortcut = new QShortcut(key, &form);
    QObject::connect(shortcut, &QShortcut::activated, &button, [&button] {
        if (button.isEnabled())
            button.click();
    });
}

}  // namespace

void MakeCancelButton(QWidget& form, QPushButton& cancel) {
    MakeKeyPress(form, QKeySequence(Qt::Key_Escape), cancel);
}

// A focused button takes Enter itself (window_rules.h) before the shortcut sees it.
void MakeDefaultButton(QWidget& form, QPushButton& button) {
    MakeKeyPress(form, QKeySequence(Qt::Key_Return), button);
    MakeKeyPress(form, QKeySequence(Qt::Key_Enter), button);
}

}  // namespace torvane

namespace torvane {

bool GoMayProceed(MessageBoxes& boxes, const QString& validationMessage, const CarriedPaths& paths,
                  const WrittenFolders& folders) {
    QString message = validationMessage;
    if (message.isEmpty())
        message = UnsafePathMessage(paths.list);
    for (const QString& folder : folders.list) {
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
