#include "shell/frm_mainmenu.h"

#include "about/frmAbout.h"
#include "about/mod_about.h"
#include "forms/desktop_services.h"
#include "shell/mod_mainmenu.h"
#include "shell/tool_descriptions.h"
#include "shell/tool_registry.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');
const QChar Quote = QLatin1Char('"');

QString Label1Text() {
    return QStringLiteral("lkVCDImager started out as a ") + Quote + QStringLiteral("lkVCDxBUILD") +
           Quote + QStringLiteral(" only and was a fork of VCDXBUILD ") +
           QStringLiteral("from VCDImager 0.7.10.  Of note, it allowed ISO Level 2 filenames ") +
           QStringLiteral("(long filenames) on the VCD filesystem.  Each of these tools ") +
           QStringLiteral("contain enhancements and are highly recommended over the ") + Quote +
           QStringLiteral("vanilla") + Quote + QStringLiteral(" VCDImager versions.") + CR + CR +
           QStringLiteral("lkVCDImager was created by:") + CR +
           QStringLiteral("the authors of the lkVCDImager fork,") + CR +
           QStringLiteral("building on GNU VCDImager 0.7.10") + CR +
           QStringLiteral("by the GNU VCDImager authors.");
}

QString Label2Text() {
    return QStringLiteral("These additional tools are not part of VCDImager itself ") +
           QStringLiteral("but are useful additional functions.") +
           QStringLiteral(" They were written by the makers of Torvane ") +
           QStringLiteral("and are exclusive to this program.");
}

}  // namespace

frm_mainmenu::frm_mainmenu(Services& services, const QString& appPath)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowCloseButtonHint),
      services_(services) {
    setObjectName(QStringLiteral("frm_mainmenu"));
    setWindowTitle(QStringLiteral("Torvane"));

    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->addTab(buildTab({"Frame1", "Main Authoring Tools", "Frame2", "Information Tools"}, 0),
                   QStringLiteral("GNU VCDImager 0.7.12"));
    SSTab1->addTab(buildTab({"Frame3", "lkVCDImager 5.0.7.10 Tools", "Frame6",
                             "About lkVCDImager 5.0.7.10 Tools"},
                            1),
                   QStringLiteral("lkVCDImager 5.0.7.10"));
    SSTab1->addTab(
        buildTab({"Frame5", "Special Additional Tools", "Frame7", "About the Additional Tools"}, 2),
        QStringLiteral("Special Additional"));

    Frame4 = new QGroupBox(QStringLiteral("Description"), this);
    Frame4->setObjectName(QStringLiteral("Frame4"));
    lbl_des = new QLabel(Frame4);
    lbl_des->setObjectName(QStringLiteral("lbl_des"));
    lbl_des->setWordWrap(true);
    lbl_des->setMinimumHeight(120);
    (new QVBoxLayout(Frame4))->addWidget(lbl_des);

    cmd_about = makeButton(QStringLiteral("cmd_about"), QStringLiteral("&About"),
                           QStringLiteral("About this program."));
    cmd_about->setIcon(style()->standardIcon(QStyle::SP_MessageBoxInformation));
    cmd_quit = makeButton(QStringLiteral("cmd_quit"), QStringLiteral("&Quit"),
                          QStringLiteral("Click here to exit."));
    cmd_quit->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
    connect(cmd_quit, &QPushButton::clicked, this, &frm_mainmenu::cmd_quit_Click);
    connect(cmd_about, &QPushButton::clicked, this, &frm_mainmenu::cmd_about_Click);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, cmd_quit, &QPushButton::click);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmd_about);
    buttons->addStretch();
    buttons->addWidget(cmd_quit);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(SSTab1);
    layout->addWidget(Frame4);
    layout->addLayout(buttons);

    applyTabOrder();
    for (QWidget* watched : {static_cast<QWidget*>(SSTab1), static_cast<QWidget*>(SSTab1->tabBar()),
                             static_cast<QWidget*>(cmd_about), static_cast<QWidget*>(cmd_quit)})
        watched->installEventFilter(this);
    for (const auto& entry : toolButtons)
        entry.second->installEventFilter(this);
    connect(SSTab1, &QTabWidget::currentChanged, this, [this] { ShowTabDescription(*this); });
    Form_Load(appPath);
    SSTab1->setFocus();
    ShowTabDescription(*this);
    setFixedSize(sizeHint());
}

void frm_mainmenu::Form_Load(const QString& appPath) {
    Tag = appPath;
    crlf = QStringLiteral("\r\n");
    version_text = QStringLiteral("Version %1.%2.%3")
                       .arg(TORVANE_VERSION_MAJOR)
                       .arg(TORVANE_VERSION_MINOR)
                       .arg(TORVANE_VERSION_REVISION);
    Label1->setText(DisplayText(Label1Text()));
    Label2->setText(DisplayText(Label2Text()));
}

QWidget* frm_mainmenu::buildTab(const FrameNames& frames, int tab) {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    QVBoxLayout* frameLayouts[2];
    const char* names[2] = {frames.firstName, frames.secondName};
    const char* captions[2] = {frames.firstCaption, frames.secondCaption};
    for (int frame = 0; frame < 2; ++frame) {
        auto* box = new QGroupBox(QLatin1String(captions[frame]), page);
        box->setObjectName(QLatin1String(names[frame]));
        frameLayouts[frame] = new QVBoxLayout(box);
        row->addWidget(box);
    }
    for (const ToolRow& entry : ToolRows()) {
        if (entry.tab == tab)
            addToolButton(entry, *frameLayouts[entry.frame]);
    }
    if (tab == 1 || tab == 2) {
        QLabel*& label = tab == 1 ? Label1 : Label2;
        label = new QLabel(page);
        label->setObjectName(tab == 1 ? QStringLiteral("Label1") : QStringLiteral("Label2"));
        label->setWordWrap(true);
        label->setMinimumWidth(300);
        frameLayouts[1]->addWidget(label);
    }
    for (QVBoxLayout* layout : frameLayouts)
        layout->addStretch();
    return page;
}

QPushButton* frm_mainmenu::makeButton(const QString& name, const QString& caption,
                                      const QString& tip) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

void frm_mainmenu::addToolButton(const ToolRow& entry, QVBoxLayout& frameLayout) {
    const QString key = QLatin1String(entry.key);
    QPushButton* button = makeButton(QStringLiteral("cmd_") + key, QLatin1String(entry.caption),
                                     QLatin1String(entry.tip));
    button->setIcon(style()->standardIcon(entry.picture));
    button->setIconSize(QSize(32, 32));
    button->setMinimumHeight(44);
    frameLayout.addWidget(button);
    toolButtons[key] = button;

    connect(button, &QPushButton::clicked, this, [this, key] { openTool(key); });
}

QWidget* frm_mainmenu::openTool(const QString& key) {
    const ToolRow* tool = FindTool(key);
    if (!tool)
        return nullptr;
    EnterToolDialog(*this, QLatin1String(tool->title));
    ToolContext context{services_, Tag, [this] { ReturnToMainMenu(*this); }, nullptr};
    if (tool->about.caption)
        context.showAbout = [key, about = ComposeComponentAbout(tool->about)](QWidget& opener) {
            ShowComponentAbout(opener, key, about);
        };
    QWidget* dialog = tool->open(context);
    dialog->show();
    return dialog;
}

void frm_mainmenu::applyTabOrder() {
    QWidget* previous = SSTab1;
    for (const ToolRow& entry : ToolRows()) {
        if (entry.tabStopTab < 0)
            continue;
        QWidget* button = toolButtons[QLatin1String(entry.key)];
        setTabOrder(previous, button);
        previous = button;
    }
    setTabOrder(previous, cmd_about);
    setTabOrder(cmd_about, cmd_quit);
    // The buttons that are a tab stop on any tab come after Quit.
    previous = cmd_quit;
    for (const ToolRow& entry : ToolRows()) {
        if (entry.tabStopTab >= 0)
            continue;
        QWidget* button = toolButtons[QLatin1String(entry.key)];
        setTabOrder(previous, button);
        previous = button;
    }
}

namespace {
bool IsWindowSwitch(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}
}  // namespace

bool frm_mainmenu::eventFilter(QObject* watched, QEvent* event) {
    // A menu greyed while a tool dialog is open describes nothing: it waits, unusable.
    if (!isEnabled())
        return QWidget::eventFilter(watched, event);
    const QEvent::Type type = event->type();
    // Switching to another window and back moves no focus within the menu.
    if ((type == QEvent::FocusIn || type == QEvent::FocusOut) &&
        IsWindowSwitch(static_cast<QFocusEvent*>(event)->reason()))
        return QWidget::eventFilter(watched, event);
    const bool pointedAt = type == QEvent::FocusIn || type == QEvent::Enter ||
                           type == QEvent::MouseMove || type == QEvent::HoverMove;
    if (watched == SSTab1 || watched == SSTab1->tabBar()) {
        if (type == QEvent::FocusIn || type == QEvent::FocusOut)
            ShowTabDescription(*this);
    } else if (watched == cmd_about && pointedAt) {
        lbl_des->setText(DisplayText(AboutDescription(version_text)));
    } else if (watched == cmd_quit && pointedAt) {
        lbl_des->setText(QuitDescription());
    } else if (pointedAt) {
        ShowToolDescription(*this, watched->objectName().mid(4));
    }
    return QWidget::eventFilter(watched, event);
}

void frm_mainmenu::cmd_about_Click() {
    // Modal: the menu stays open and is held by the box.
    frmAbout about(services_, Tag, this);
    about.exec();
}

void frm_mainmenu::cmd_quit_Click() {
    // At once: no question, no unload events.
    QCoreApplication::exit(0);
}

}  // namespace torvane
