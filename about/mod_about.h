#pragma once
// The About box of a console tool, opened by the About button of the tool's dialog. The
// box is not modal: while it is open, the dialog that opened it is disabled, and closing
// the box enables it again.

#include "core/component_texts.h"

#include <QString>

class QWidget;

namespace torvane {

// Shows `about`, the About box of the tool `key` ("vcdxrip", ...), for its open `dialog`,
// without owner and not modal.
void ShowComponentAbout(QWidget& dialog, const QString& key, const ComponentAbout& about);

}  // namespace torvane
