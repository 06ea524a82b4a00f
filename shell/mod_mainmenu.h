#pragma once
// How the main menu steps aside while a tool dialog is open, and comes back.

#include <QString>

namespace torvane {

class frm_mainmenu;

// Minimise the menu, disable it, caption `title` + " - Torvane".
void EnterToolDialog(frm_mainmenu& menu, const QString& title);
// Caption "Torvane", window restored, menu enabled.
void ReturnToMainMenu(frm_mainmenu& menu);

}  // namespace torvane
