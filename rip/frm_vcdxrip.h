#pragma once
// The VCDXRIP dialog: a disc image, CUE/BIN or NRG, taken apart into its media files and
// an XML descriptor, all in the folder of the descriptor.

#include "core/vcdxrip_builder.h"
#include "forms/tool_dialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class frm_vcdxrip : public ToolDialog {
    Q_OBJECT
public:
    explicit frm_vcdxrip(const ToolContext& context);

    void cmd_rip_Click() override;

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

private:
    void buildControls();
    void buildOptions(ToolForm& form);
    void applyInterlocks() override;
    VcdxripInputs inputs() const;
    void report() override;
};

}  // namespace torvane
