#pragma once
// The start-up form: one button per tool on three tabs, and the application path.

#include "core/services.h"

#include <QString>
#include <QWidget>
#include <map>

class QGroupBox;
class QLabel;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

namespace torvane {

struct ToolRow;

class frm_mainmenu : public QWidget {
    Q_OBJECT
public:
    // `appPath`: the current directory at start-up, as the system gives it.
    frm_mainmenu(Services& services, const QString& appPath);

    // The application path (the form's Tag).
    QString Tag;
    QString crlf;
    QString version_text;

    // What a click on a tool button does: the menu steps aside and the tool's dialog
    // shows. Returns the dialog, or null for a key without one in this build.
    QWidget* openTool(const QString& key);

protected:
    // GotFocus and MouseMove of the buttons and the tab control fill the description.
    bool eventFilter(QObject* watched, QEvent* event) override;

public:
    QTabWidget* SSTab1 = nullptr;
    QPushButton* cmd_about = nullptr;
    QPushButton* cmd_quit = nullptr;
    QGroupBox* Frame4 = nullptr;
    QLabel* lbl_des = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    std::map<QString, QPushButton*> toolButtons;  // by key: "vcdimager", "vcdxgen", ...

private:
    void Form_Load(const QString& appPath);
    struct FrameNames {
        const char* firstName;
        const char* firstCaption;
        const char* secondName;
        const char* secondCaption;
    };
    QWidget* buildTab(const FrameNames& frames, int tab);
    void addToolButton(const ToolRow& entry, QVBoxLayout& frameLayout);
    QPushButton* makeButton(const QString& name, const QString& caption, const QString& tip);
    void applyTabOrder();
    void cmd_about_Click();
    void cmd_quit_Click();

    Services& services_;
};

}  // namespace torvane
