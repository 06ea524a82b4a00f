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

namespace torvane {

// Sets the description label to the text of a tool button's key; other keys change nothing.
void ShowToolDescription(frm_mainmenu& menu, const QString& key);
// Sets the tool buttons' tab stops for the selected tab, then that tab's description.
void ShowTabDescription(frm_mainmenu& menu);

}  // namespace torvane
