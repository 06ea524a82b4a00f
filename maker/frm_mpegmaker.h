#pragma once
// The MPEG maker's dialog: video files picked in the list dialog, an output folder, the
// target disc and TV standard, and one job that converts the files one after the other.

#include "core/mpeg_list.h"
#include "core/mpegmaker_builder.h"
#include "core/output_watch.h"
#include "forms/tool_context.h"
#include "job/job_frame.h"

#include <QString>
#include <QWidget>
#include <vector>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

class frm_mpegmaker : public QWidget {
    Q_OBJECT
public:
    frm_mpegmaker(const ToolContext& context);

    void cmd_input_Click();
    void cmd_rip_Click();

    QLabel* lbl_input;
    QLabel* Label2;
    QLineEdit* txt_inputnumber;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QLabel* Label3;
    QRadioButton* opt_vcd;
    QRadioButton* opt_svcd;
    QLabel* Label4;
    QRadioButton* opt_pal;
    QRadioButton* opt_ntsc;
    QLabel* lbl_standard;  // why the standard was chosen
    QPushButton* cmd_rip;
    QPushButton* cmd_cancel;
    QPushButton* cmd_about;
    QGroupBox* Frame1;
    QLabel* Label1;

    QString tool_folder;
    MpegList files;
    QString Tag;     // the channel to the list dialog, empty outside that exchange
    JobFrame frame;  // console, script_path, job_running, Timer1

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void cmd_output_Click();
    void chooseStandard(const QString& firstFile);
    MakerInputs inputs() const;
    bool mayOverwrite(const MakerInputs& in);
    void setControlsEnabled(bool enabled);
    void report();

    ToolContext context_;
    Services& services_;
    MakerInputs running_;  // what the job runs on, for its report
    std::vector<OutputWatch> outputs_;
};

}  // namespace torvane
