#include "shell/mod_mainmenu.h"

#include "forms/desktop_services.h"
#include "shell/frm_mainmenu.h"
#include "shell/tool_descriptions.h"
#include "shell/tool_registry.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

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

void ShowToolDescription(frm_mainmenu& menu, const QString& key) {
    if (const ToolRow* tool = FindTool(key))
        menu.lbl_des->setText(DisplayText(tool->description()));
}

void ShowTabDescription(frm_mainmenu& menu) {
    const int tab = menu.SSTab1->currentIndex();
    for (const ToolRow& tool : ToolRows()) {
        if (tool.tabStopTab >= 0)
            menu.toolButtons.at(QLatin1String(tool.key))
                ->setFocusPolicy(tool.tabStopTab == tab ? Qt::StrongFocus : Qt::ClickFocus);
    }
    menu.lbl_des->setText(DisplayText(TabDescription(tab)));
}

}  // namespace torvane
