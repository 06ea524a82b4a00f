#pragma once
// The subindices remover: one cue sheet read, its copy-permit flags and subindex lines
// dropped, and the result saved, all within one click. No console job, no timer.

#include "core/services.h"
#include "forms/tool_context.h"

#include <QWidget>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class frm_subindex : public QWidget {
    Q_OBJECT
public:
    frm_subindex(const ToolContext& context);

    void cmd_rip_Click();

    QLabel* lbl_input;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QPushButton* cmd_rip;
    QPushButton* cmd_cancel;
    QGroupBox* Frame1;
    QLabel* Label1;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    bool overwriteConfirmed(const QString& name);
    void reportCreated(const QString& output);

    ToolContext context_;
    Services& services_;
};

}  // namespace torvane
