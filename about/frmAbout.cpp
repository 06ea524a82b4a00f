#include "about/frmAbout.h"

#include "about/mod_browser32.h"
#include "about/text_pane.h"
#include "core/mod_general.h"
#include "core/services.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace torvane {

namespace {

// The texts are written to lines of at most 74 characters, and the pane shows that many.
constexpr int kPaneColumns = 74;
constexpr int kPaneLines = 16;

const char* const kFiles[] = {"description.txt", "requirements.txt", "changelog.txt",
                              "vcdimager.txt",   "license.txt",      "author.txt"};

QPushButton* Button(QWidget* parent, const char* name, const char* caption, const char* tip) {
    auto* button = new QPushButton(QString::fromUtf8(caption), parent);
    button->setObjectName(QLatin1String(name));
    if (tip)
        button->setToolTip(QString::fromUtf8(tip));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

frmAbout::frmAbout(Services& services, const QString& appPath, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      services_(services) {
    setObjectName(QStringLiteral("frmAbout"));
    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("picIcon"));
    icon->setPixmap(style()->standardIcon(QStyle::SP_DriveCDIcon).pixmap(48, 48));
    title = new QLabel(QStringLiteral("Torvane"), this);
    title->setObjectName(QStringLiteral("title"));
    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));

    cmdOK = Button(this, "cmdOK", "OK", nullptr);
    cmd_description =
        textButton("cmd_description", "Description", "What this program does", "description.txt");
    cmd_requirements = textButton("cmd_requirements", "Requirement",
                                  "What you need to run this program", "requirements.txt");
    cmd_changelog = textButton("cmd_changelog", "Change Log", "About the author", "changelog.txt");
    cmd_license = textButton("cmd_license", "License", "License information", "license.txt");
    cmd_vcdimager = textButton("cmd_vcdimager", "VCDImager", "About VCDImager", "vcdimager.txt");
    cmd_author = textButton("cmd_author", "Author", "About the author", "author.txt");
    cmd_donate = Button(this, "cmd_donate", "Donate!", "Support this program by donating!");
    cmd_website = Button(this, "cmd_website", "Website",
                         "Update to the newest version and read the latest news");
    Command1 = Button(this, "Command1", "E-mail", "Click here to e-mail the author");

    Text1 = NewTextPane(this, "Text1", kPaneColumns, kPaneLines);
    // A sunken rule between the pane and the links: a grey line over a white one.
    auto* line = new QFrame(this);
    line->setObjectName(QStringLiteral("Line1"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);

    // Enter with no button focused and Escape press the mail button (keyPressEvent).
    Command1->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmd_donate, &QPushButton::clicked, this, [this] { FindURL(services_, DonationUrl()); });
    connect(cmd_website, &QPushButton::clicked, this, [this] { FindURL(services_, WebsiteUrl()); });
    connect(Command1, &QPushButton::clicked, this, [this] { SendMail(services_, AuthorMail()); });

    auto* head = new QHBoxLayout;
    head->addWidget(icon);
    auto* names = new QVBoxLayout;
    names->addWidget(title);
    names->addWidget(lblVersion);
    head->addLayout(names, 1);
    head->addWidget(cmdOK, 0, Qt::AlignTop);
    auto* textButtons = new QHBoxLayout;
    for (QPushButton* b :
         {cmd_description, cmd_requirements, cmd_changelog, cmd_license, cmd_vcdimager, cmd_author})
        textButtons->addWidget(b);
    auto* links = new QHBoxLayout;
    links->addStretch();
    for (QPushButton* b : {cmd_donate, cmd_website, Command1})
        links->addWidget(b);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addLayout(textButtons);
    layout->addWidget(Text1);
    layout->addWidget(line);
    layout->addLayout(links);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    QWidget* order[] = {cmdOK,       cmd_description, cmd_requirements, cmd_changelog,
                        cmd_license, cmd_vcdimager,   cmd_author,       cmd_donate,
                        cmd_website, Command1};
    for (size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    cmdOK->setFocus();
    Form_Load(appPath);
}

QPushButton* frmAbout::textButton(const char* name, const char* caption, const char* tip,
                                  const char* file) {
    QPushButton* button = Button(this, name, caption, tip);
    const QString fileName = QLatin1String(file);
    connect(button, &QPushButton::clicked, this, [this, fileName] { showText(fileName); });
    return button;
}

void frmAbout::Form_Load(const QString& appPath) {
    QString folder = appPath;
    if (!folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    const QString version = QStringLiteral("%1.%2.%3")
                                .arg(TORVANE_VERSION_MAJOR)
                                .arg(TORVANE_VERSION_MINOR)
                                .arg(TORVANE_VERSION_REVISION);
    setWindowTitle(QStringLiteral("About ") + QStringLiteral("Torvane"));
    lblVersion->setText(QStringLiteral("Version ") + version + QStringLiteral("\n") +
                        QStringLiteral("Copyright (C) 2003 the makers of Torvane"));
    build_date = QStringLiteral("Saturday, 1 February 2003");
    // A missing text shows as empty; the others still work.
    for (const char* file : kFiles)
        texts_[QLatin1String(file)] =
            ReadWholeFile(folder + QLatin1String(file)).value_or(QByteArray());
    showText(QStringLiteral("description.txt"));
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int key = event->key();
    if (!plain || (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape)) {
        QDialog::keyPressEvent(event);
        return;
    }
    auto* focused = qobject_cast<QPushButton*>(focusWidget());
    if (key != Qt::Key_Escape && focused && focused->isEnabled())
        focused->click();
    else
        Command1->click();
}

void frmAbout::showText(const QString& file) {
    Text1->setPlainText(QString::fromLocal8Bit(texts_[file]) + build_date);
}

}  // namespace torvane
