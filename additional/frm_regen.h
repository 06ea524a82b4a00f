#pragma once
// The CUE/BIN Regenerator: a lone BIN file becomes a new CUE/BIN pair through three
// console jobs that follow one another without the user, each a stage of the job runner on
// a timer of its own. Stage 1 (Timer1) reads the disc type and the sector size with
// vcddebug.exe, in two attempts; stage 2 (Timer2) takes the image apart with vcdxrip.exe
// into a work folder beside the new image; stage 3 (Timer3) authors the new pair with
// vcdxbuild.exe; Timer4 closes the run. Only one timer runs at a time: the end of a stage
// starts the next.

#include "additional/frm_regen_status.h"
#include "core/regen_builder.h"
#include "core/services.h"
#include "forms/tool_context.h"
#include "job/job_runner.h"
#include "job/job_timer.h"

#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class frm_regen : public QWidget {
    Q_OBJECT
public:
    frm_regen(const ToolContext& context);
    ~frm_regen() override;

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
    JobTimer Timer1;
    JobTimer Timer2;
    JobTimer Timer3;
    JobTimer Timer4;
    JobRunner runner;  // the stages, on Timer1 to Timer3

    QString tool_folder;
    QString crlf;
    QString script_path;
    QString log_path;
    QString output_path;
    QString input_path;
    QString output_dir;
    int16_t sector_2336 = 0;
    QString disc_type;
    bool job_running = false;
    // Loaded from Go to the closing step.
    std::unique_ptr<frm_regen_status> status;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void Form_Load();
    RegenInputs inputs() const;
    void setControlsEnabled(bool enabled);

    void startStage(JobTimer& timer, int stage, bool firstStart, const JobPlan& plan,
                    std::function<void()> ended);
    void detectionEnded(int attempt);
    void finishDetection(const QByteArray& log);
    void ripEnded();
    void buildEnded();
    void endRun(int stage, const QString& result, const QString& box);
    void Timer4_Timer();
    void deleteJobFiles();
    void recordWorkFolder();
    void removeWorkFolder();
    void setHeldFilesAside();
    void putHeldFilesBack();

    ToolContext context_;
    Services& services_;
    // What the work folder held before the run: the clean-up removes only what the run made.
    bool workRecorded_ = false;
    bool workExisted_ = false;
    QStringList workHeld_;
    QString keptFolder_;     // where the held files wait during the run
    QStringList keptAside_;  // the held files that wait there
};

}  // namespace torvane
