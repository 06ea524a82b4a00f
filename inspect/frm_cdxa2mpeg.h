#pragma once
// The CDXA2MPEG dialog: a media file copied off a disc, with the RIFF header that the copy
// gained, turned back into a plain MPEG stream.

#include "core/output_watch.h"
#include "forms/tool_dialog.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class frm_cdxa2mpeg : public ToolDialog {
    Q_OBJECT
public:
    explicit frm_cdxa2mpeg(const ToolContext& context);

    void cmd_rip_Click() override;

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;

private:
    void buildControls();
    void report() override;

    OutputWatch output_;
};

}  // namespace torvane
