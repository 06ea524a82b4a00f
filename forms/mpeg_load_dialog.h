#pragma once
// The modal list dialog of VCDXGEN (frm_vcdxgen_load), VCDIMAGER (frm_vcdimager_load) and
// the MPEG maker (frm_mpegmaker_load): the user builds up the list of files one file at a
// time, on a copy. The list comes
// in and goes back through the partner's Tag as an exchange text (mpeg_list.h); the
// partner's list changes only on Okay, as a cancelled dialog leaves Tag empty.

#include "core/mpeg_list.h"

#include <QDialog>
#include <QString>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace torvane {

struct Services;

inline const QString kMpegListFilter =
    QStringLiteral("All Files (*.*)|*.*|MPEG Files (*.mpg, *.mpeg)|*.mpg;*.mpeg");

class MpegLoadDialog : public QDialog {
    Q_OBJECT
public:
    // `formName` is the form's name ("frm_vcdxgen_load"); `partnerTag` the partner's Tag.
    // A list of other files than MPEG ones gives its own title and file filter.
    MpegLoadDialog(QWidget& partner, QString& partnerTag, Services& services, const char* formName,
                   const QString& title = QStringLiteral("Load MPEG files..."),
                   const QString& filter = kMpegListFilter);

    QLabel* Label1;
    QLineEdit* txt_inputnumber;
    QLabel* label2;
    QPlainTextEdit* txt_inputlist;
    QPushButton* cmd_load;
    QPushButton* cmd_okay;
    QPushButton* cmd_cancel;
    QPushButton* cmd_delete;
    QPushButton* cmd_clear;

    QString crlf;
    QString file_list;  // serves Form_Load only

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildControls();
    void Form_Load();
    void cmd_load_Click();
    void cmd_delete_Click();
    void cmd_clear_Click();
    void cmd_okay_Click();
    void cmd_cancel_Click();
    void show(const MpegList& list);

    QString filter_;
    MpegList list_;  // what the two boxes show, kept whole rather than read back from them
    QString& partnerTag_;
    Services& services_;
};

}  // namespace torvane
