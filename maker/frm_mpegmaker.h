#pragma once
// The MPEG maker's dialog: video files picked in the list dialog, an output folder, the
// target disc and TV standard, and one job that converts the files one after the other.

#include "core/mpeg_list.h"
#include "core/mpegmaker_builder.h"
#include "core/output_watch.h"
#include "forms/tool_dialog.h"

#include <QString>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

class frm_mpegmaker : public ToolDialog {
    Q_OBJECT
public:
    explicit frm_mpegmaker(const ToolContext& context);

    void cmd_input_Click();
    void cmd_rip_Click() override;

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

    MpegList files;
    QString Tag;  // the channel to the list dialog, empty outside that exchange

private:
    void buildControls();
    void cmd_output_Click();
    void chooseStandard(const QString& firstFile);
    MakerInputs inputs() const;
    bool mayOverwrite(const MakerInputs& in);
    void report() override;

    MakerInputs running_;  // what the job runs on, for its report
    std::vector<OutputWatch> outputs_;
};

}  // namespace torvane
