#pragma once
// Small pieces every form uses alike: the browse handlers and the cancel button.

#include <QString>

class QLineEdit;
class QPushButton;
class QWidget;

namespace torvane {

class FileDialogs;

enum class BrowseKind { Open, Save };

// The browse handler: a file dialog with `filter` on its second entry; the chosen name
// goes unchanged into `target`; Cancel changes nothing.
void Browse(FileDialogs& files, BrowseKind kind, const QString& filter, QLineEdit& target);

// Makes Escape press `cancel` (while it is enabled), as a form's cancel button.
void MakeCancelButton(QWidget& form, QPushButton& cancel);

}  // namespace torvane
