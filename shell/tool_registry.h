#pragma once
// The table of tools: one row a tool, from which the menu's buttons, their tab order, the
// descriptions and the dialogs are made. Adding a tool is a folder of its own and one row.

#include "core/component_texts.h"
#include "forms/tool_context.h"

#include <QString>
#include <QStyle>
#include <vector>

class QWidget;

namespace torvane {

struct ToolRow {
    const char* key;  // the button is "cmd_" and the key, the dialog "frm_" and the key
    int tab;          // the menu's tab the button lies on: 0, 1, 2
    int frame;        // 0: the tab's first frame, 1: its second
    int tabStopTab;   // the tab on which the button is a tab stop; -1: on any
    const char* caption;
    const char* tip;
    const char* title;  // the menu's caption while the dialog is open, before " - Torvane"
    QStyle::StandardPixmap picture;
    QString (*description)();                      // the menu's description box
    ComponentAboutText about;                      // the box of the dialog's About button
    QWidget* (*open)(const ToolContext& context);  // makes the dialog, not yet shown
};

// In the menu's tab order, but for lkvcdxrip, which comes last of all.
const std::vector<ToolRow>& ToolRows();
// The row of `key` ("vcdimager", ...), or null.
const ToolRow* FindTool(const QString& key);

}  // namespace torvane
