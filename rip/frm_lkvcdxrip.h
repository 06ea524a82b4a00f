#pragma once
// The lkVCDxRIP dialog: VCDXRIP's job done by the fork's lkvcdxrip.exe, from a disc image
// or straight from a disc in a CD drive. At every opening it scans for the machine's
// drives (Timer2); until the scan ends the dialog lies minimised behind a wait box.

#include "forms/tool_context.h"
#include "job/job_frame.h"
#include "job/job_start.h"

#include <QString>
#include <QTimer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace torvane {

class frm_wait;
struct LkvcdxripInputs;

class frm_lkvcdxrip : public QWidget {
    Q_OBJECT
public:
    frm_lkvcdxrip(const ToolContext& context);

    void cmd_rip_Click();
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
    QPushButton* cmd_rip;
    QPushButton* cmd_cancel;
    QPushButton* cmd_about;
    QGroupBox* Frame1;
    QLabel* Label1;
    frm_wait* wait;

    QString crlf;
    QString tool_folder;
    QString output_dir;
    int16_t scan_failed = 0;
    QString message_path;
    QString scanbus_path;
    JobFrame frame;  // console, script_path, log_path, job_running, Timer1
    QTimer Timer2;
    HiddenScript scan;  // ends with the dialog

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void connectControls();
    void Form_Load();
    void startScan();
    void Timer2_Timer();
    LkvcdxripInputs inputs() const;
    void setControlsEnabled(bool enabled);
    void enableAfterJob();
    void report();

    ToolContext context_;
    Services& services_;
};

}  // namespace torvane
