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

// What the list holds, in the dialog's words: its title, its file filter and the word
// before "files" in its labels and boxes.
struct FileListWords {
    QString title;
    QString filter;
    QString kind;
};

inline const FileListWords kMpegListWords{
    QStringLiteral("Load MPEG files..."),
    QStringLiteral("All Files (*.*)|*.*|MPEG Files (*.mpg, *.mpeg)|*.mpg;*.mpeg"),
    QStringLiteral("MPEG")};

class MpegLoadDialog : public QDialog {
    Q_OBJECT
public:
    // `formName` is the form's name ("frm_vcdxgen_load"); `partnerTag` the partner's Tag.
    // A list of other files than MPEG ones gives its own words.
    MpegLoadDialog(QWidget& partner, QString& partnerTag, Services& services, const char* formName,
                   const FileListWords& words = kMpegListWords);

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

    FileListWords words_;
    MpegList list_;  // what the two boxes show, kept whole rather than read back from them
    QString& partnerTag_;
    Services& services_;
};

}  // namespace torvane
