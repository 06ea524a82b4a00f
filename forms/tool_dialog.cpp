#include "forms/tool_dialog.h"

#include "core/job_paths.h"
#include "forms/tool_form.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace torvane {

ToolDialog::ToolDialog(const ToolContext& context, const ToolDialogNames& names)
    : QWidget(nullptr, names.flags),
      frame(*this, context.services, QString::fromUtf8(names.consoleTitle),
            {[this] { report(); }, [this] { setControlsEnabled(true); }}),
      context_(context),
      services_(context.services) {
    setObjectName(QLatin1String(names.formName));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QString::fromUtf8(names.caption));
    tool_folder =
        ToolFolder(context_.appPath, QString::fromUtf8(names.toolFolder), QChar(kPathSeparator));
}

std::tuple<QLabel*, QLineEdit*, QPushButton*> ToolDialog::addPathRow(ToolForm& form,
                                                                     const char* name,
                                                                     const PathRowText& text,
                                                                     BrowseKind kind,
                                                                     const QString& filter) {
    const QByteArray suffix(name);
    QLabel* label = form.label(("lbl_" + suffix).constData(), text.caption, text.labelTip);
    QLineEdit* box = form.pathBox(("txt_" + suffix).constData(), text.boxTip);
    QPushButton* browse = form.button(("cmd_" + suffix).constData(), "Browse...", text.browseTip);
    form.addPathRow(label, box, browse);
    connect(browse, &QPushButton::clicked, this,
            [this, kind, filter, box] { Browse(services_.files, kind, filter, *box); });
    return {label, box, browse};
}

void ToolDialog::addDescription(ToolForm& form, const char* title, const char* text,
                                QStyle::StandardPixmap picture) {
    Frame1 = form.descriptionFrame(title, text, picture);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));
}

void ToolDialog::addCommands(ToolForm& form, const char* aboutCaption, const char* aboutTip,
                             QStyle::StandardPixmap aboutPicture) {
    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    cmd_about = form.button("cmd_about", aboutCaption, aboutTip);
    form.addCommandRow(cmd_rip, cmd_cancel, cmd_about, aboutPicture);
    connect(cmd_rip, &QPushButton::clicked, this, [this] { cmd_rip_Click(); });
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(cmd_about, &QPushButton::clicked, this, [this] {
        if (context_.showAbout)
            context_.showAbout(*this);
    });
    MakeCancelButton(*this, *cmd_cancel);
}

void ToolDialog::setJobControls(std::initializer_list<QWidget*> controls) {
    jobControls_.clear();
    for (QWidget* control : controls)
        if (control)  // a control this dialog's variant has not
            jobControls_.push_back(control);
}

bool ToolDialog::goMayProceed(const QString& validation, const CarriedPaths& paths,
                              const WrittenFolders& folders) {
    return GoMayProceed(services_.boxes, validation, paths, folders);
}

void ToolDialog::startJob(const JobPlan& plan, const QStringList& extraFiles) {
    setControlsEnabled(false);
    frame.Start(plan, extraFiles);
}

// Option buttons keep their selection while disabled, so the user's choices stand as they
// were when the controls come back.
void ToolDialog::setControlsEnabled(bool enabled) {
    for (QWidget* control : jobControls_)
        control->setEnabled(enabled);
    if (enabled)
        applyInterlocks();
}

void ToolDialog::closeEvent(QCloseEvent* event) {
    UnloadToolDialog(*event, frame, context_);
}

}  // namespace torvane
