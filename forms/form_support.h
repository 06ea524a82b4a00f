#pragma once
// Small pieces every form uses alike: the browse handlers and the cancel button.

#include <QString>
#include <QStringList>
#include <Qt>
#include <optional>

class QLineEdit;
class QPushButton;
class QWidget;

namespace torvane {

class FileDialogs;

enum class BrowseKind { Open, Save };

// The file filters more than one form shows.
inline const QString kXmlFilter = QStringLiteral("All Files (*.*)|*.*|XML Files (*.xml)|*.xml");
inline const QString kBinFilter = QStringLiteral("All Files (*.*)|*.*|BIN Files (*.bin)|*.bin");
inline const QString kImageFilter =
    QStringLiteral("All Files (*.*)|*.*|BIN Files (*.bin)|*.bin|NRG Files (*.nrg)|*.nrg");

// A fixed single border, without minimise and maximise buttons.
constexpr Qt::WindowFlags kFixedDialogFlags =
    Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

// The browse handler: a file dialog with `filter` on its second entry, opened in
// BrowseStartFolder; the chosen name goes unchanged into `target`; Cancel changes nothing.
// Where a file dialog opens: the folder of the path already in its box, else the folder
// of the last name picked in this run, else the home folder. The application folder, where
// a dialog with no folder would open, holds nothing of the user's.
QString BrowseStartFolder(const QString& boxText);

void Browse(FileDialogs& files, BrowseKind kind, const QString& filter, QLineEdit& target);
// The same dialog for a name that goes elsewhere; nullopt when the user cancels.
std::optional<QString> PickFile(FileDialogs& files, BrowseKind kind, const QString& filter,
                                const QString& shownPath);

// Makes Escape press `cancel` (while it is enabled), as a form's cancel button.
void MakeCancelButton(QWidget& form, QPushButton& cancel);
// Makes Enter press `button` (while it is enabled) wherever no other button has the focus,
// as a form's default button.
void MakeDefaultButton(QWidget& form, QPushButton& button);

}  // namespace torvane

namespace torvane {

class MessageBoxes;

// The paths a job script carries, and the folders a job writes into: named at every call,
// so that the two lists cannot change places unseen.
struct CarriedPaths {
    explicit CarriedPaths(QStringList paths) : list(std::move(paths)) {}
    QStringList list;
};
struct WrittenFolders {
    explicit WrittenFolders(QStringList folders) : list(std::move(folders)) {}
    QStringList list;
};

// The end of every Go handler's checks: the tool's own first failing check (empty when all
// passed), then the refusal of a path that cannot be carried through a job script, then
// that of a folder the job writes into that does not exist or cannot be written. Shows the
// information box and returns false when Go must stop; nothing else is changed.
bool GoMayProceed(MessageBoxes& boxes, const QString& validationMessage, const CarriedPaths& paths,
                  const WrittenFolders& folders);

}  // namespace torvane

namespace torvane {

struct Services;

// Shows a file the user asked to open in the desktop's viewer; when the desktop has no
// program for it, an information box says so and names the file.
void OpenInViewer(Services& services, const QString& path);

}  // namespace torvane
