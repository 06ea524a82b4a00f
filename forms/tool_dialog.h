#pragma once
// What every console tool's dialog repeats, written once: its window, the tool folder, the
// description frame, Go, Cancel and About, the controls a job disables, the checks at Go,
// the job itself and the guard on closing. A dialog adds its own controls, its Go handler
// (inputs to its builder, its own checks) and its report.

#include "core/job_plan.h"
#include "forms/form_support.h"
#include "forms/tool_context.h"
#include "job/job_frame.h"

#include <QString>
#include <QStyle>
#include <QWidget>
#include <initializer_list>
#include <tuple>
#include <vector>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace torvane {

class ToolForm;

// The texts of a path row: its label, the box beneath it, the browse button beside the box.
struct PathRowText {
    const char* caption;
    const char* labelTip;
    const char* boxTip;
    const char* browseTip;
};

// The names a dialog's window goes by.
struct ToolDialogNames {
    const char* formName = nullptr;      // "frm_vcddebug"
    const char* caption = nullptr;       // "VCDDEBUG - Torvane"
    const char* consoleTitle = nullptr;  // "Torvane -- VCDDEBUG Tool"
    const char* toolFolder = "VCDImager";
    Qt::WindowFlags flags = Qt::Window;
};

class ToolDialog : public QWidget {
    Q_OBJECT
public:
    // Go: the dialog's inputs checked and, when they pass, its job started.
    virtual void cmd_rip_Click() = 0;

    QPushButton* cmd_rip = nullptr;
    QPushButton* cmd_cancel = nullptr;
    QPushButton* cmd_about = nullptr;
    QGroupBox* Frame1 = nullptr;
    QLabel* Label1 = nullptr;

    QString crlf = QStringLiteral("\r\n");
    QString tool_folder;  // with its trailing separator
    JobFrame frame;       // console, script_path, log_path, job_running, Timer1

protected:
    ToolDialog(const ToolContext& context, const ToolDialogNames& names);

    // "lbl_" "txt_" and "cmd_" + `name`: a label over a read-only box that only its browse
    // button fills, through the file dialog of `kind` with `filter`.
    std::tuple<QLabel*, QLineEdit*, QPushButton*> addPathRow(ToolForm& form, const char* name,
                                                             const PathRowText& text,
                                                             BrowseKind kind,
                                                             const QString& filter);
    // Frame1 with the tool's picture and its description in Label1.
    void addDescription(ToolForm& form, const char* title, const char* text,
                        QStyle::StandardPixmap picture);
    // Go runs cmd_rip_Click, Cancel (and Escape) closes the dialog, About shows the tool's box.
    void addCommands(ToolForm& form, const char* aboutCaption, const char* aboutTip,
                     QStyle::StandardPixmap aboutPicture);
    // The controls a job disables and its end enables again, in this order.
    void setJobControls(std::initializer_list<QWidget*> controls);

    // The shared checks at the end of Go (see GoMayProceed); false when Go must stop.
    bool goMayProceed(const QString& validation, const CarriedPaths& paths,
                      const WrittenFolders& folders);
    // The controls off and the job on its way; `extraFiles` go with the script at its end.
    void startJob(const JobPlan& plan, const QStringList& extraFiles = {});

    // The job's controls on or off; coming back on, the dialog's interlocks are applied.
    virtual void setControlsEnabled(bool enabled);
    virtual void applyInterlocks() {}
    // The end of a job, after the console has gone.
    virtual void report() = 0;

    void closeEvent(QCloseEvent* event) override;

    ToolContext context_;
    Services& services_;

private:
    std::vector<QWidget*> jobControls_;
};

}  // namespace torvane
