#include "about/mod_about.h"

#include "about/frm_about_component.h"

#include <QPlainTextEdit>

namespace torvane {

void ShowComponentAbout(QWidget& dialog, const QString& key, const ComponentAbout& about) {
    auto* box = new frm_about_component;
    box->setWindowTitle(about.caption);
    box->Text1->setPlainText(about.text);
    dialog.setEnabled(false);
    box->Tag = key;
    box->owner = &dialog;
    box->show();
}

}  // namespace torvane
