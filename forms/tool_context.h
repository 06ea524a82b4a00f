#pragma once
// What a tool dialog is made from: the desktop's services, the application folder its tool
// folders lie in, and who is told when it has closed. The start of the program gives it;
// the dialog knows nothing above it.

#include "core/services.h"

#include <QString>
#include <functional>

class QCloseEvent;
class QWidget;

namespace torvane {

class JobFrame;

struct ToolContext {
    Services& services;
    QString appPath;                     // the current directory at start-up
    std::function<void()> returnToMenu;  // the dialog has closed
    // The About box of the dialog's tool, opened over `dialog`.
    std::function<void(QWidget& dialog)> showAbout;
};

// Form_Unload of a tool dialog that runs a job: the frame's guard (a running job asks
// first; No keeps the dialog), then back to the menu.
void UnloadToolDialog(QCloseEvent& event, JobFrame& frame, const ToolContext& context);

}  // namespace torvane
