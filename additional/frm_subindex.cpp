#include "additional/frm_subindex.h"

#include "core/job_paths.h"
#include "core/mod_general.h"
#include "core/whole_file_write.h"
#include "forms/form_support.h"
#include "forms/tool_form.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace torvane {

namespace {

const QString kCueFilter = QStringLiteral("All Files (*.*)|*.*|CUE Files (*.cue)|*.cue");

}  // namespace

frm_subindex::frm_subindex(const ToolContext& context)
    : QWidget(nullptr, Qt::Window), context_(context), services_(context.services) {
    setObjectName(QStringLiteral("frm_subindex"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Subindicies Remover - Torvane"));
    buildControls();
}

void frm_subindex::buildControls() {
    ToolForm form(*this);
    lbl_input = form.label("lbl_input", "Load CUE file:", "Specify the cuesheet to be edited");
    txt_input = form.pathBox("txt_input", "Specify the name and path of the cuesheet");
    cmd_input = form.button("cmd_input", "Browse...", "Browse for the CUE file");
    form.addPathRow(lbl_input, txt_input, cmd_input);
    lbl_output =
        form.label("lbl_output", "Save the new CUE file:", "Specify the output CUE filename");
    txt_output = form.pathBox("txt_output", "Specify the output CUE filename");
    cmd_output = form.button("cmd_output", "Browse...", "Browse for the output CUE filename");
    form.addPathRow(lbl_output, txt_output, cmd_output);

    Frame1 = form.descriptionFrame(
        "What does Subindicies Remover do?",
        "Subindicies Remover will load an existing CUE file, edit it, and save it to a new CUE "
        "file after removing the \"subindices\". You may wish to do so if your player does not "
        "correctly play (S)VCD with multiple subindicies or if you are using a recording "
        "program that does not support it (e.g., Fireburner).",
        QStyle::SP_FileDialogContentsView);
    Label1 = Frame1->findChild<QLabel*>(QStringLiteral("Label1"));

    cmd_rip = form.button("cmd_rip", "Go!", "Click to GO!");
    cmd_cancel = form.button("cmd_cancel", "Cancel", "Quit");
    form.addCommandRow(cmd_rip, cmd_cancel, nullptr, QStyle::SP_FileDialogInfoView);
    form.finish({cmd_input, cmd_output, cmd_rip, cmd_cancel});

    connect(cmd_input, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Open, kCueFilter, *txt_input); });
    connect(cmd_output, &QPushButton::clicked, this,
            [this] { Browse(services_.files, BrowseKind::Save, kCueFilter, *txt_output); });
    connect(cmd_rip, &QPushButton::clicked, this, &frm_subindex::cmd_rip_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &QWidget::close);
    MakeCancelButton(*this, *cmd_cancel);
}

void frm_subindex::cmd_rip_Click() {
    const QString input = txt_input->text();
    const QString output = txt_output->text();
    if (input.isEmpty()) {
        InformationBox(services_.boxes, kInformation,
                       QStringLiteral("You have not selected a CUE file to open!"));
        return;
    }
    if (output.isEmpty()) {
        InformationBox(services_.boxes, kInformation,
                       QStringLiteral("You have not set a destination CUE file to save!"));
        return;
    }
    const QString folderMessage =
        UnusableFolderMessage(SplitOutputPath(output, QChar(kPathSeparator)).output_dir);
    if (!folderMessage.isEmpty()) {
        InformationBox(services_.boxes, kInformation, folderMessage);
        return;
    }
    if (input == output && !overwriteConfirmed(output))
        return;
    // The whole sheet is in hand before its file can go, should input and output be one.
    const std::optional<QByteArray> sheet = ReadWholeFile(input);
    if (!sheet) {
        InformationBox(services_.boxes, kInformation,
                       QStringLiteral("The CUE file could not be read:\r\r") + input);
        return;
    }
    // The old sheet is replaced only once the new one is whole on disk.
    const QString reason = WriteWholeFile(output, RemoveSubindices(*sheet));
    if (!reason.isEmpty()) {
        InformationBox(services_.boxes, kInformation, FileNotWrittenMessage(output, reason));
        return;
    }
    reportCreated(output);
}

bool frm_subindex::overwriteConfirmed(const QString& name) {
    MessageBoxRequest request;
    request.title = QStringLiteral("Overwrite?");
    request.text = QStringLiteral("Are you sure that you want to overwrite:\r\r") + name;
    request.buttons = MessageBoxRequest::Buttons::YesNo;
    request.icon = MessageBoxRequest::Icon::Question;
    request.defaultAnswer = vbNo;
    return services_.boxes.show(request) == vbYes;
}

void frm_subindex::reportCreated(const QString& output) {
    if (ConfirmationBox(services_.boxes, QStringLiteral("Question"),
                        QStringLiteral("The new cuesheet has been created!\r\rDo you want to "
                                       "open up the CUE file?")) == vbYes)
        OpenInViewer(services_, output);
}

void frm_subindex::closeEvent(QCloseEvent* event) {
    context_.returnToMenu();
    event->accept();
}

}  // namespace torvane
