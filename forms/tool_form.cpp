#include "forms/tool_form.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace torvane {

namespace {

template <typename Control>
Control* Named(Control* control, const char* name, const char* tip) {
    control->setObjectName(QLatin1String(name));
    if (tip)
        control->setToolTip(QString::fromUtf8(tip));
    return control;
}

constexpr int kPathBoxMinimumWidth = 360;
constexpr int kPictureSize = 48;

}  // namespace

ToolForm::ToolForm(QWidget& form)
    : form_(form), layout_(new QVBoxLayout(&form)), paths_(new QGridLayout) {
    layout_->addLayout(paths_);
}

QLabel* ToolForm::label(const char* name, const char* caption, const char* tip) {
    return Named(new QLabel(QString::fromUtf8(caption), &form_), name, tip);
}

QLineEdit* ToolForm::pathBox(const char* name, const char* tip) {
    auto* box = Named(new QLineEdit(&form_), name, tip);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setMinimumWidth(kPathBoxMinimumWidth);
    return box;
}

QLineEdit* ToolForm::textBox(const char* name, const char* tip, const char* text, int maxLength) {
    auto* box = Named(new QLineEdit(QString::fromUtf8(text), &form_), name, tip);
    if (maxLength > 0)
        box->setMaxLength(maxLength);
    return box;
}

QPushButton* ToolForm::button(const char* name, const char* caption, const char* tip) {
    auto* button = Named(new QPushButton(QString::fromUtf8(caption), &form_), name, tip);
    button->setAutoDefault(false);
    return button;
}

QCheckBox* ToolForm::checkBox(const char* name, const char* caption, const char* tip) {
    return Named(new QCheckBox(QString::fromUtf8(caption), &form_), name, tip);
}

QRadioButton* ToolForm::optionButton(const char* name, const char* caption, const char* tip) {
    return Named(new QRadioButton(QString::fromUtf8(caption), &form_), name, tip);
}

void ToolForm::optionGroup(std::initializer_list<QRadioButton*> options) {
    auto* group = new QButtonGroup(&form_);
    for (QRadioButton* option : options)
        group->addButton(option);
    // Only the selected button is a tab stop; the arrow keys reach the others all the same.
    const auto follow = [group = QList<QRadioButton*>(options)] {
        for (QRadioButton* option : group)
            option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    };
    for (QRadioButton* option : options)
        QObject::connect(option, &QRadioButton::toggled, option, follow);
    follow();
}

void ToolForm::fitCharacters(QLineEdit& box, int characters) {
    // The box's own hint holds 17 narrow characters besides its frame and margins.
    const QFontMetrics metrics = box.fontMetrics();
    const int frame = box.sizeHint().width() - 17 * metrics.horizontalAdvance(QLatin1Char('x'));
    box.setMinimumWidth(frame + metrics.horizontalAdvance(QString(characters, QLatin1Char('W'))));
}

void ToolForm::addPathRow(QLabel* label, QLineEdit* box, QPushButton* browse) {
    const int row = paths_->rowCount();
    paths_->addWidget(label, row, 0, 1, 2);
    paths_->addWidget(box, row + 1, 0);
    paths_->addWidget(browse, row + 1, 1);
}

void ToolForm::addControlRow(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls)
        row->addWidget(control);
    row->addStretch();
    paths_->addLayout(row, paths_->rowCount(), 0, 1, 2);
}

void ToolForm::addOptionRow(std::initializer_list<QWidget*> options) {
    auto* row = new QHBoxLayout;
    for (QWidget* option : options)
        row->addWidget(option);
    row->addStretch();
    layout_->addLayout(row);
}

QGroupBox* ToolForm::descriptionFrame(const char* title, const char* text,
                                      QStyle::StandardPixmap picture) {
    auto* frame = Named(new QGroupBox(QString::fromUtf8(title), &form_), "Frame1", nullptr);
    auto* image = Named(new QLabel(frame), "Image1", nullptr);
    image->setPixmap(form_.style()->standardIcon(picture).pixmap(kPictureSize, kPictureSize));
    image->setAlignment(Qt::AlignTop);
    auto* description = Named(new QLabel(QString::fromUtf8(text), frame), "Label1", nullptr);
    description->setWordWrap(true);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(image);
    row->addWidget(description, 1);
    layout_->addWidget(frame);
    return frame;
}

void ToolForm::addCommandRow(QPushButton* go, QPushButton* cancel, QPushButton* about,
                             QStyle::StandardPixmap aboutPicture) {
    if (about)
        about->setIcon(form_.style()->standardIcon(aboutPicture));
    auto* row = new QHBoxLayout;
    if (about)
        row->addWidget(about);
    row->addStretch();
    row->addWidget(go);
    row->addWidget(cancel);
    layout_->addLayout(row);
}

void ToolForm::finish(std::initializer_list<QWidget*> tabOrder) {
    QWidget* previous = nullptr;
    for (QWidget* control : tabOrder) {
        if (previous)
            QWidget::setTabOrder(previous, control);
        previous = control;
    }
    // The form opens with the focus on its first tab stop, not on the first control made.
    if (tabOrder.size() != 0)
        (*tabOrder.begin())->setFocus();
    form_.setFixedSize(form_.sizeHint());
}

}  // namespace torvane
