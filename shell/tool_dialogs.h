#pragma once
// The tool dialogs the main menu can open, by the key of their button.

#include <QString>
#include <functional>
#include <map>

class QWidget;

namespace torvane {

class frm_mainmenu;
struct Services;

using ToolDialogFactory = std::function<QWidget*(frm_mainmenu&, Services&)>;

// Keys are the button names without "cmd_": "vcdxminfo", "vcdxbuild", ...
const std::map<QString, ToolDialogFactory>& ToolDialogFactories();

}  // namespace torvane

class QCloseEvent;

namespace torvane {

class JobFrame;

// Form_Unload of a tool dialog that runs a job: the frame's guard (a running job asks
// first; No keeps the dialog), then back to the main menu.
void UnloadToolDialog(QCloseEvent& event, JobFrame& frame, frm_mainmenu& menu);

}  // namespace torvane
