#pragma once
// The VCDXRIP dialog: a disc image, CUE/BIN or NRG, taken apart into its media files and
// an XML descriptor, all in the folder of the descriptor.

#include "core/vcdxrip_builder.h"
#include "forms/tool_context.h"
#include "job/job_frame.h"

#include <QString>
#include <QWidget>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class ToolForm;

class frm_vcdxrip : public QWidget {
    Q_OBJECT
public:
    frm_vcdxrip(const ToolContext& context);

    void cmd_rip_Click();

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QCheckBox* chk_s2336;
    QCheckBox* chk_noextpsd;
    QCheckBox* chk_norip;
    QCheckBox* chk_nofiles;
    QCheckBox* chk_nosequences;
    QCheckBox* chk_nosegments;
    QPushButton* cmd_rip;
    QPushButton* cmd_cancel;
    QPushButton* cmd_about;
    QGroupBox* Frame1;
    QLabel* Label1;

    QString crlf;
    QString tool_folder;
    JobFrame frame;  // console, script_path, log_path, job_running, Timer1

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void buildOptions(ToolForm& form);
    void connectControls();
    void Form_Load();
    void chk_norip_Click();
    VcdxripInputs inputs() const;
    void setControlsEnabled(bool enabled);
    void report();

    ToolContext context_;
    Services& services_;
};

}  // namespace torvane
