#pragma once
// The CDXA2MPEG dialog: a media file copied off a disc, with the RIFF header that the copy
// gained, turned back into a plain MPEG stream.

#include "core/output_watch.h"
#include "forms/tool_context.h"
#include "job/job_frame.h"

#include <QString>
#include <QWidget>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class frm_cdxa2mpeg : public QWidget {
    Q_OBJECT
public:
    frm_cdxa2mpeg(const ToolContext& context);

    void cmd_rip_Click();

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
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
    void report();

    ToolContext context_;
    Services& services_;
    OutputWatch output_;
};

}  // namespace torvane
