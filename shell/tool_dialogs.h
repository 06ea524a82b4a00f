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
