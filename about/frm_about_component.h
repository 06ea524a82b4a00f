#pragma once
// The About box of a console tool: the tool's version and usage text, and Okay. Its Tag
// holds the key of the tool whose dialog it enables again when it closes.

#include <QString>
#include <QWidget>

class QPlainTextEdit;
class QPushButton;

namespace torvane {

class frm_about_component : public QWidget {
    Q_OBJECT
public:
    frm_about_component();

    QPlainTextEdit* Text1;
    QPushButton* cmd_okay;
    QString Tag;

protected:
    // Form_Unload: however the box closes, the tool dialog of Tag comes back to life.
    void closeEvent(QCloseEvent* event) override;
    // Enter and Escape press Okay.
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace torvane
