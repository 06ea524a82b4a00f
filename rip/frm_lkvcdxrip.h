#pragma once
// The lkVCDxRIP dialog: VCDXRIP's job done by the fork's lkvcdxrip.exe, from a disc image
// or straight from a disc in a CD drive. At every opening it scans for the machine's
// drives (Timer2); until the scan ends the dialog lies minimised behind a wait box.

#include "forms/tool_dialog.h"
#include "job/job_runner.h"
#include "job/job_timer.h"

#include <QString>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

class frm_wait;
struct LkvcdxripInputs;

class frm_lkvcdxrip : public ToolDialog {
    Q_OBJECT
public:
    explicit frm_lkvcdxrip(const ToolContext& context);

    void cmd_rip_Click() override;
    // The drive-option interlock: drive mode enables the two lists, image mode the image.
    void ApplyRipSource();

    QRadioButton* opt_image;
    QLineEdit* txt_input;
    QPushButton* cmd_input;
    QRadioButton* opt_cddrive;
    QComboBox* list_cd;
    QPushButton* cmd_help;
    QLabel* Label2;
    QComboBox* list_driver;
    QLabel* lbl_output;
    QLineEdit* txt_output;
    QPushButton* cmd_output;
    QCheckBox* chk_s2336;
    QCheckBox* chk_noextpsd;
    QCheckBox* chk_norip;
    frm_wait* wait;

    QString output_dir;
    int16_t scan_failed = 0;
    QString message_path;
    QString scanbus_path;
    JobTimer Timer2;
    JobRunner scan;  // hidden, on Timer2; ends with the dialog

private:
    void buildControls();
    void connectControls();
    void Form_Load();
    void startScan();
    void scanEnded();
    LkvcdxripInputs inputs() const;
    void setControlsEnabled(bool enabled) override;
    void enableAfterJob();
    void report() override;
};

}  // namespace torvane
