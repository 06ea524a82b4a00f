#include "forms/window_rules.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace torvane {

namespace {

bool IsEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool IsPlain(const QKeyEvent& key) {
    return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

QPushButton* FocusedButton(QObject* watched) {
    auto* button = qobject_cast<QPushButton*>(watched);
    return button && button->hasFocus() && button->isEnabled() ? button : nullptr;
}

// Whether the key is for the focused control rather than for a shortcut of its window.
bool KeyBelongsToFocus(QObject* watched, const QKeyEvent& key) {
    if (!IsPlain(key))
        return false;
    if (QApplication::activePopupWidget())
        return IsEnter(key) || key.key() == Qt::Key_Escape;
    return IsEnter(key) && FocusedButton(watched);
}

bool IsDisabledWindow(QObject* watched) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    return widget && widget->isWindow() && !widget->isEnabled();
}

}  // namespace

bool WindowRules::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Accepting the override keeps the key from the shortcuts: it arrives as a key press.
            if (!KeyBelongsToFocus(watched, *static_cast<QKeyEvent*>(event)))
                return false;
            event->accept();
            return true;
        case QEvent::KeyPress: {
            const auto& key = *static_cast<QKeyEvent*>(event);
            QPushButton* button = FocusedButton(watched);
            if (!button || !IsEnter(key) || !IsPlain(key))
                return false;
            button->click();
            return true;
        }
        case QEvent::Close:
            if (!IsDisabledWindow(watched))
                return false;
            event->ignore();
            return true;
        default:
            return false;
    }
}

}  // namespace torvane
