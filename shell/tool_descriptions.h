#pragma once
// The main menu's short guide to the suite: what each tab, About and Quit are for (each tool's
// own text is in its row of the table of tools).

#include <QString>

namespace torvane {

// The text for a tab of the menu (0, 1, 2); null for any other.
QString TabDescription(int tab);
// The texts for the About and Quit buttons.
QString AboutDescription(const QString& versionText);
QString QuitDescription();

}  // namespace torvane
