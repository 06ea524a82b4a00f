#pragma once
// The About box of a console tool: the tool's version and usage text, and Okay. Its Tag
// holds the key of the tool; its owner is the dialog it enables again when it closes.

#include <QPointer>
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
    QPointer<QWidget> owner;  // the tool dialog, disabled while the box is open

protected:
    // Form_Unload: however the box closes, its tool dialog comes back to life.
    void closeEvent(QCloseEvent* event) override;
    // Enter and Escape press Okay.
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace torvane
