#include "shell/mod_mainmenu.h"

#include "shell/frm_mainmenu.h"

namespace torvane {

void EnterToolDialog(frm_mainmenu& menu, const QString& title) {
    menu.showMinimized();
    menu.setEnabled(false);
    menu.setWindowTitle(title + QStringLiteral(" - Torvane"));
}

void ReturnToMainMenu(frm_mainmenu& menu) {
    menu.setWindowTitle(QStringLiteral("Torvane"));
    menu.showNormal();
    menu.setEnabled(true);
}

}  // namespace torvane
