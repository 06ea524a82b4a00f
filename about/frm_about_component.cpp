#include "about/frm_about_component.h"

#include "about/text_pane.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace torvane {

namespace {
// As wide as the rights lines of the texts; the two long lines of the fork's texts wrap.
constexpr int kColumns = 82;
constexpr int kLines = 12;
}  // namespace

frm_about_component::frm_about_component()
    : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowCloseButtonHint) {
    setObjectName(QStringLiteral("frm_about_component"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(style()->standardIcon(QStyle::SP_FileDialogInfoView));
    Text1 = NewTextPane(this, "Text1", kColumns, kLines);
    cmd_okay = new QPushButton(QStringLiteral("Okay"), this);
    cmd_okay->setObjectName(QStringLiteral("cmd_okay"));
    connect(cmd_okay, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Text1);
    layout->addWidget(cmd_okay, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(Text1, cmd_okay);
    Text1->setFocus();
}

void frm_about_component::closeEvent(QCloseEvent* event) {
    if (owner)
        owner->setEnabled(true);
    event->accept();
}

void frm_about_component::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            if (plain) {
                cmd_okay->click();
                return;
            }
            break;
        default:
            break;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace torvane
