#include "about/mod_about.h"

#include "about/frm_about_component.h"
#include "core/component_texts.h"

#include <QPlainTextEdit>

namespace torvane {

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
