#include "rip/scan_forms.h"

#include "about/mod_browser32.h"
#include "core/services.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace torvane {

// No border, centred on the screen; its owner only ties its life to the dialog's.
frm_wait::frm_wait(QWidget* owner) : QWidget(owner, Qt::Window | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frm_wait"));
    setWindowTitle(QStringLiteral("waiting"));
    Label1 = new QLabel(QStringLiteral("Detecting CD drives, please wait..."), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setMargin(24);
    (new QVBoxLayout(this))->addWidget(Label1);
    adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->geometry().center() - rect().center());
}

frm_scanfail::frm_scanfail(QWidget& parent, Services& services)
    : QDialog(&parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint) {
    setObjectName(QStringLiteral("frm_scanfail"));
    setWindowTitle(QStringLiteral("CD drive detection failed"));
    Label1 = new QLabel(
        QStringLiteral(
            "lkVCDxBUILD and lkVCDdebug differ from the \"vanilla\" VCDImager counterparts in that "
            "they can both access the CD drive and directly work on a physical (S)VCD disc.  "
            "However, for these two programs to function in this manner, a working ASPI layer "
            "must be installed on your computer.  You can download and install either the "
            "latest version of the Adaptec ASPI layer or use \"ForceASPI\"."),
        this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    Label1->setMinimumWidth(420);
    cmd_cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmd_cancel->setObjectName(QStringLiteral("cmd_cancel"));
    cmd_cancel->setDefault(true);
    cmd_download = new QPushButton(QStringLiteral("Download"), this);
    cmd_download->setObjectName(QStringLiteral("cmd_download"));
    cmd_download->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmd_cancel);
    buttons->addWidget(cmd_download);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addLayout(buttons);
    setTabOrder(cmd_cancel, cmd_download);
    setFixedSize(sizeHint());
    connect(cmd_cancel, &QPushButton::clicked, this, &QDialog::reject);
    // The box stays open: each press opens the page once.
    connect(cmd_download, &QPushButton::clicked, this,
            [&services] { FindURL(services, AspiLayerUrl()); });
}

}  // namespace torvane
