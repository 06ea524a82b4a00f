#include "additional/frm_regen_status.h"

#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QStyle>

namespace torvane {

namespace {

constexpr int kPictureSize = 32;

QLabel* Named(QLabel* label, const char* name) {
    label->setObjectName(QLatin1String(name));
    label->setEnabled(false);
    return label;
}

}  // namespace

frm_regen_status::frm_regen_status()
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setObjectName(QStringLiteral("frm_regen_status"));
    setWindowTitle(QStringLiteral("CUE/BIN Regenerator Status"));
    auto* grid = new QGridLayout(this);
    const char* const titles[] = {"Stage One VCDDEBUG", "Stage Two VCDXRIP",
                                  "Stage Three VCDXBUILD"};
    const QStyle::StandardPixmap pictures[] = {QStyle::SP_FileDialogContentsView,
                                               QStyle::SP_DriveCDIcon, QStyle::SP_DialogSaveButton};
    QLabel** const rows[][3] = {{&lbl_1, &img_vcddebug, &lbl_vcddebug},
                                {&lbl_2, &img_vcdxrip, &lbl_vcdxrip},
                                {&lbl_3, &img_vcdxbuild, &lbl_vcdxbuild}};
    const char* const names[][3] = {{"lbl_1", "img_vcddebug", "lbl_vcddebug"},
                                    {"lbl_2", "img_vcdxrip", "lbl_vcdxrip"},
                                    {"lbl_3", "img_vcdxbuild", "lbl_vcdxbuild"}};
    for (int stage = 0; stage < 3; ++stage) {
        *rows[stage][0] = Named(new QLabel(QLatin1String(titles[stage]), this), names[stage][0]);
        *rows[stage][1] = Named(new QLabel(this), names[stage][1]);
        (*rows[stage][1])->setPixmap(style()->standardIcon(pictures[stage]).pixmap(kPictureSize));
        *rows[stage][2] = Named(new QLabel(this), names[stage][2]);
        // Room for the longest result, so that the window keeps its size.
        (*rows[stage][2])->setMinimumWidth(fontMetrics().horizontalAdvance("Working...") * 3 / 2);
        (*rows[stage][2])->setEnabled(true);
        grid->addWidget(*rows[stage][1], stage, 0);
        grid->addWidget(*rows[stage][0], stage, 1);
        grid->addWidget(*rows[stage][2], stage, 2);
    }
    setFixedSize(sizeHint());
    Form_Load();
}

frm_regen_status::StageRow frm_regen_status::row(int stage) const {
    if (stage == 1)
        return {lbl_1, img_vcddebug, lbl_vcddebug};
    if (stage == 2)
        return {lbl_2, img_vcdxrip, lbl_vcdxrip};
    return {lbl_3, img_vcdxbuild, lbl_vcdxbuild};
}

// In the top right corner of the screen, out of the way of the console.
void frm_regen_status::Form_Load() {
    const QRect screen = this->screen()->availableGeometry();
    move(screen.right() + 1 - frameGeometry().width(), screen.top());
}

}  // namespace torvane
