#include "shell/mod_mainmenu.h"

#include "job/desktop_services.h"
#include "shell/frm_mainmenu.h"
#include "shell/tool_descriptions.h"

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

namespace {

// Which tab each tool button counts under for its tab stop. lkvcdxrip is left alone: its
// tab stop stays on whatever the tab.
int TabStopTab(const QString& key) {
    if (key == QLatin1String("lkvcdxbuild"))
        return 1;
    if (key == QLatin1String("subindex") || key == QLatin1String("regen"))
        return 2;
    return 0;
}

}  // namespace

void ShowToolDescription(frm_mainmenu& menu, const QString& key) {
    const QString text = ToolDescription(key);
    if (!text.isNull())
        menu.lbl_des->setText(DisplayText(text));
}

void ShowTabDescription(frm_mainmenu& menu) {
    const int tab = menu.SSTab1->currentIndex();
    for (const auto& [key, button] : menu.toolButtons) {
        if (key == QLatin1String("lkvcdxrip"))
            continue;
        button->setFocusPolicy(TabStopTab(key) == tab ? Qt::StrongFocus : Qt::ClickFocus);
    }
    menu.lbl_des->setText(DisplayText(TabDescription(tab)));
}

}  // namespace torvane
