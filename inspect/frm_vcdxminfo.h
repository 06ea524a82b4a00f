#pragma once
// The VCDXMINFO dialog: one MPEG file analysed for (S)VCD compliance, the report written
// as an XML file by the tool.

#include "core/output_watch.h"
#include "forms/tool_context.h"
#include "job/job_frame.h"

#include <QString>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QGroupBox;

namespace torvane {

class frm_vcdxminfo : public QWidget {
    Q_OBJECT
public:
    frm_vcdxminfo(const ToolContext& context);

    void cmd_rip_Click();

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QCheckBox* chk_generic;
    QCheckBox* chk_aps;
    QCheckBox* chk_apsrelaxed;
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
    void chk_aps_Click();
    void setControlsEnabled(bool enabled);
    void report();

    // The report is offered only when this job wrote it: a failed tool may leave an older one.
    OutputWatch output_;

    ToolContext context_;
    Services& services_;
};

}  // namespace torvane
