#pragma once
// The program's own About dialog: six texts from the application folder, each followed by
// the build date, and the links to the website, the donations page and the author's mail.

#include <QByteArray>
#include <QDialog>
#include <QString>
#include <map>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace torvane {

struct Services;

class frmAbout : public QDialog {
    Q_OBJECT
public:
    frmAbout(Services& services, const QString& appPath, QWidget* parent = nullptr);

    QLabel* title;
    QLabel* lblVersion;
    QPushButton* cmd_description;
    QPushButton* cmd_requirements;
    QPushButton* cmd_changelog;
    QPushButton* cmd_license;
    QPushButton* cmd_vcdimager;
    QPushButton* cmd_author;
    QPlainTextEdit* Text1;
    QPushButton* cmd_donate;
    QPushButton* cmd_website;
    QPushButton* Command1;
    QPushButton* cmdOK;

    QString build_date;

protected:
    // Enter presses the focused button; Escape, and Enter while no button has the focus,
    // press the mail button. Only OK and the title bar close.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Form_Load(const QString& appPath);
    QPushButton* textButton(const char* name, const char* caption, const char* tip,
                            const char* file);
    void showText(const QString& file);

    Services& services_;
    std::map<QString, QByteArray> texts_;  // by file name
};

}  // namespace torvane
