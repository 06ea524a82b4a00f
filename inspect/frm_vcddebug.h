#pragma once
// The VCDDEBUG dialog: a disc image's structure analysed, the report saved as a text file
// by the tool's redirected output.

#include "forms/tool_context.h"
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

class frm_vcddebug : public QWidget {
    Q_OBJECT
public:
    frm_vcddebug(const ToolContext& context);

    void cmd_rip_Click();

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QCheckBox* chk_s2336;
    QRadioButton* opt_verbose;
    QRadioButton* opt_quiet;
    QPushButton* cmd_rip;
    QPushButton* cmd_cancel;
    QPushButton* cmd_about;
    QGroupBox* Frame1;
    QLabel* Label1;

    QString crlf;
    QString tool_folder;
    JobFrame frame;  // console, script_path, job_running, Timer1

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void Form_Load();
    void setControlsEnabled(bool enabled);

    ToolContext context_;
    Services& services_;
};

}  // namespace torvane
