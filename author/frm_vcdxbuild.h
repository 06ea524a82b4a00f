#pragma once
// The VCDXBUILD dialog: an XML descriptor made into a disc image, CUE/BIN or CDRDAO/TOC,
// with the image size reported from the job log and, on request, a cue sheet without
// subindices.

#include "author/vcdxbuild_builder.h"
#include "job/job_frame.h"

#include <QString>
#include <QWidget>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

class frm_mainmenu;

class frm_vcdxbuild : public QWidget {
    Q_OBJECT
public:
    frm_vcdxbuild(frm_mainmenu& menu, Services& services);

    void cmd_rip_Click();

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QRadioButton* opt_cuebin;
    QRadioButton* opt_toc;
    QCheckBox* chk_s2336;
    QCheckBox* chk_subindex;
    QPushButton* cmd_rip;
    QPushButton* cmd_cancel;
    QPushButton* cmd_about;
    QGroupBox* Frame1;
    QLabel* Label1;

    QString crlf;
    QString tool_folder;
    QString cue_path;  // the cue sheet of the job; set only with CUE/BIN
    JobFrame frame;    // console, script_path, log_path, job_running, Timer1

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void connectControls();
    void Form_Load();
    void cmd_output_Click();
    void opt_cuebin_Click();
    void opt_toc_Click();
    VcdxbuildInputs inputs() const;
    void setControlsEnabled(bool enabled);
    void report();

    frm_mainmenu& menu_;
    Services& services_;
};

}  // namespace torvane
