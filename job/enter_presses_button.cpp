#include "job/enter_presses_button.h"

#include <QKeyEvent>
#include <QPushButton>

namespace torvane {

bool EnterPressesFocusedButton::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const Qt::KeyboardModifiers others = key->modifiers() & ~Qt::KeypadModifier;
    auto* button = qobject_cast<QPushButton*>(watched);
    if (!enter || others != Qt::NoModifier || !button || !button->hasFocus() ||
        !button->isEnabled())
        return false;
    button->click();
    return true;
}

}  // namespace torvane
