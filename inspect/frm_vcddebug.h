#pragma once
// The VCDDEBUG dialog: a disc image's structure analysed, the report saved as a text file
// by the tool's redirected output.

#include "forms/tool_dialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

class frm_vcddebug : public ToolDialog {
    Q_OBJECT
public:
    explicit frm_vcddebug(const ToolContext& context);

    void cmd_rip_Click() override;

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QCheckBox* chk_s2336;
    QRadioButton* opt_verbose;
    QRadioButton* opt_quiet;

private:
    void buildControls();
    void report() override;
};

}  // namespace torvane
