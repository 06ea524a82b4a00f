#include "forms/mpeg_load_dialog.h"

#include "core/job_paths.h"
#include "core/services.h"
#include "forms/form_support.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace torvane {

namespace {

const QString kQuestion = QStringLiteral("Question");

template <typename Control>
Control* Named(Control* control, const char* name, const QString& tip = QString()) {
    control->setObjectName(QLatin1String(name));
    if (!tip.isEmpty())
        control->setToolTip(tip);
    return control;
}

}  // namespace

MpegLoadDialog::MpegLoadDialog(QWidget& partner, QString& partnerTag, Services& services,
                               const char* formName, const FileListWords& words)
    : QDialog(&partner, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint |
                            Qt::WindowCloseButtonHint),
      words_(words),
      partnerTag_(partnerTag),
      services_(services) {
    setObjectName(QLatin1String(formName));
    setWindowTitle(words_.title);
    setModal(true);
    buildControls();
    Form_Load();
}

void MpegLoadDialog::buildControls() {
    const QString countTip =
        QStringLiteral("Number of %1 files loaded (maximum of 98)").arg(words_.kind);
    Label1 = Named(new QLabel(QStringLiteral("Number of %1 files loaded:").arg(words_.kind), this),
                   "Label1", countTip);
    txt_inputnumber = Named(new QLineEdit(QStringLiteral("0"), this), "txt_inputnumber", countTip);
    label2 = Named(new QLabel(QStringLiteral("Files:"), this), "label2");
    txt_inputlist = Named(new QPlainTextEdit(this), "txt_inputlist");
    for (QWidget* box : std::initializer_list<QWidget*>{txt_inputnumber, txt_inputlist})
        box->setFocusPolicy(Qt::NoFocus);
    txt_inputnumber->setReadOnly(true);
    txt_inputlist->setReadOnly(true);
    txt_inputlist->setLineWrapMode(QPlainTextEdit::NoWrap);
    txt_inputlist->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    txt_inputlist->setMinimumSize(480, 220);

    const auto button = [this](const char* name, const char* caption, const QString& tip) {
        auto* control = Named(new QPushButton(QString::fromUtf8(caption), this), name, tip);
        control->setAutoDefault(false);
        return control;
    };
    cmd_load = button("cmd_load", "&Load", QStringLiteral("Load another %1 file").arg(words_.kind));
    cmd_okay = button("cmd_okay", "&Okay",
                      QStringLiteral("Accept the current list of %1 files").arg(words_.kind));
    cmd_cancel = button("cmd_cancel", "&Cancel", "Cancel any changes");
    cmd_delete = button("cmd_delete", "&Delete Last", "Remove the last added entry");
    cmd_clear = button("cmd_clear", "Clear List", "Remove all the files on the list");
    cmd_load->setDefault(true);

    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(txt_inputnumber, 0, 1);
    grid->addWidget(label2, 1, 0, 1, 2);
    grid->addWidget(txt_inputlist, 2, 0, 1, 2);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* control : {cmd_load, cmd_okay, cmd_cancel, cmd_delete, cmd_clear})
        buttons->addWidget(control);
    buttons->addStretch();
    grid->addLayout(buttons, 0, 2, 3, 1);
    setTabOrder(cmd_load, cmd_okay);
    setTabOrder(cmd_okay, cmd_cancel);
    setTabOrder(cmd_cancel, cmd_delete);
    setTabOrder(cmd_delete, cmd_clear);
    setFixedSize(sizeHint());

    connect(cmd_load, &QPushButton::clicked, this, &MpegLoadDialog::cmd_load_Click);
    connect(cmd_okay, &QPushButton::clicked, this, &MpegLoadDialog::cmd_okay_Click);
    connect(cmd_cancel, &QPushButton::clicked, this, &MpegLoadDialog::cmd_cancel_Click);
    connect(cmd_delete, &QPushButton::clicked, this, &MpegLoadDialog::cmd_delete_Click);
    connect(cmd_clear, &QPushButton::clicked, this, &MpegLoadDialog::cmd_clear_Click);
}

// From here on the exchange text lives only in this dialog.
void MpegLoadDialog::Form_Load() {
    crlf = QStringLiteral("\r\n");
    const QString exchange = partnerTag_;
    partnerTag_.clear();
    if (const std::optional<MpegList> list = ReadExchangeText(exchange)) {
        file_list = list->text;
        show(*list);
    }
    cmd_load->setFocus();
}

// The box shows one entry a line.
void MpegLoadDialog::show(const MpegList& list) {
    list_ = list;
    txt_inputnumber->setText(QString::number(list.count));
    txt_inputlist->setPlainText(QString(list.text).replace(crlf, QStringLiteral("\n")));
}

void MpegLoadDialog::cmd_load_Click() {
    if (list_.count == kMaxMpegFiles) {
        InformationBox(services_.boxes, kInformation,
                       QStringLiteral("You have already selected 98 %1 files.\r\rS/VCDs support "
                                      "a maximum of 98 MPEG video tracks.\rIf you want to add "
                                      "more files, you will first have to\rdelete some from the "
                                      "list first.")
                           .arg(words_.kind));
        return;
    }
    const std::optional<QString> name =
        PickFile(services_.files, BrowseKind::Open, words_.filter, QString());
    if (!name)
        return;
    // Each name is looked at as it was picked: once in the list text, a name holding quotes
    // and a line end could no longer be told from two entries.
    const QString refusal = UnsafePathMessage({*name});
    if (!refusal.isEmpty())
        InformationBox(services_.boxes, kInformation, refusal);
    else
        show(WithFileAdded(list_, *name));
}

void MpegLoadDialog::cmd_delete_Click() {
    show(WithoutLastEntry(list_));
}

void MpegLoadDialog::cmd_clear_Click() {
    if (ConfirmationBox(services_.boxes, kQuestion,
                        QStringLiteral("Are you sure that you want to clear the files loaded?")) ==
        vbYes)
        show({});
}

void MpegLoadDialog::cmd_okay_Click() {
    partnerTag_ = ExchangeText(list_);
    accept();
}

void MpegLoadDialog::cmd_cancel_Click() {
    if (ConfirmationBox(services_.boxes, kQuestion,
                        QStringLiteral("Are you sure that you want to cancel?")) == vbYes)
        reject();
}

// Escape asks as Cancel does; the close box closes without a question (QDialog's own).
void MpegLoadDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        cmd_cancel->click();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace torvane
