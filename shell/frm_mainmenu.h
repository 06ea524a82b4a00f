#pragma once
// The start-up form: one button per tool on three tabs, and the application path.

#include "job/services.h"

#include <QString>
#include <QWidget>
#include <functional>
#include <map>

class QLabel;
class QPushButton;
class QTabWidget;
class QGroupBox;

namespace torvane {

class frm_mainmenu : public QWidget {
    Q_OBJECT
public:
    // `appPath`: the current directory at start-up, as the system gives it.
    frm_mainmenu(Services& services, const QString& appPath);

    // The application path (the form's Tag).
    QString Tag;
    QString crlf;
    QString version_text;

    // Opens the tool dialog of a button, as its click does. Returns the dialog, or null
    // for a button whose dialog does not exist in this build.
    QWidget* openTool(const QString& key);

    QTabWidget* SSTab1;
    QPushButton* cmd_about;
    QPushButton* cmd_quit;
    QGroupBox* Frame4;
    QLabel* lbl_des;
    QLabel* Label1;
    QLabel* Label2;
    std::map<QString, QPushButton*> toolButtons;  // by key: "vcdimager", "vcdxgen", ...

private:
    struct ToolEntry;
    void buildTabs();
    void buildToolButton(const ToolEntry& entry, class QVBoxLayout& frameLayout);
    void setTabOrder();
    void cmd_quit_Click();
    void cmd_about_Click();

    Services& services_;
    std::map<QString, std::function<QWidget*()>> dialogFactories_;
};

}  // namespace torvane
