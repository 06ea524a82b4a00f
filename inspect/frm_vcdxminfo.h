#pragma once
// The VCDXMINFO dialog: one MPEG file analysed for (S)VCD compliance, the report written
// as an XML file by the tool.

#include "core/output_watch.h"
#include "forms/tool_dialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class frm_vcdxminfo : public ToolDialog {
    Q_OBJECT
public:
    explicit frm_vcdxminfo(const ToolContext& context);

    void cmd_rip_Click() override;

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QCheckBox* chk_generic;
    QCheckBox* chk_aps;
    QCheckBox* chk_apsrelaxed;

private:
    void buildControls();
    void applyInterlocks() override;
    void report() override;

    // The report is offered only when this job wrote it: a failed tool may leave an older one.
    OutputWatch output_;
};

}  // namespace torvane
