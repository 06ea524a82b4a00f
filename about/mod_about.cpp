#include "about/mod_about.h"

#include "about/frm_about_component.h"
#include "core/component_texts.h"

#include <QApplication>
#include <QPlainTextEdit>

namespace torvane {

QWidget* ComponentDialog(const QString& key) {
    const QString name = QStringLiteral("frm_") + key;
    // A dialog that has just closed may linger until it is deleted; it is not shown.
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name && widget->isVisible())
            return widget;
    }
    return nullptr;
}

void ShowComponentAbout(QWidget& dialog, const QString& key) {
    auto* box = new frm_about_component;
    if (const std::optional<ComponentAbout> about = ComponentAboutFor(key)) {
        box->setWindowTitle(about->caption);
        box->Text1->setPlainText(about->text);
        dialog.setEnabled(false);
        box->Tag = key;
        box->owner = &dialog;
    }
    box->show();
}

}  // namespace torvane
