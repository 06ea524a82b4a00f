#pragma once
// The About box of a console tool, opened by the About button of the tool's dialog. The
// box is not modal: while it is open, the dialog that opened it is disabled, and closing
// the box enables it again. The dialog is found by its object name, "frm_" and the key.

#include <QString>

class QWidget;

namespace torvane {

// Shows the About box of the tool `key` ("vcdxrip", ...), without owner and not modal.
void ShowComponentAbout(const QString& key);

// The open tool dialog of `key`, or null.
QWidget* ComponentDialog(const QString& key);

}  // namespace torvane
