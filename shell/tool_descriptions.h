#pragma once
// The main menu's short guide to the suite: what each tool button and each tab is for.

#include <QString>

namespace torvane {

// The text for a tool button's key ("vcdimager", "vcdxgen", ...); null for any other key.
QString ToolDescription(const QString& key);
// The text for a tab of the menu (0, 1, 2); null for any other.
QString TabDescription(int tab);
// The texts for the About and Quit buttons.
QString AboutDescription(const QString& versionText);
QString QuitDescription();

}  // namespace torvane
