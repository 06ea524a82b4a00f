#pragma once
// The regenerator's status window: one row a stage, its title and picture enabled when the
// stage starts, its result label "Working...", then "Success!" or "Failed!". The
// regenerator's timers write to it; it has no code of its own but its placement.

#include <QWidget>

class QLabel;

namespace torvane {

class frm_regen_status : public QWidget {
    Q_OBJECT
public:
    frm_regen_status();

    // A stage's row: 1 VCDDEBUG, 2 VCDXRIP, 3 VCDXBUILD.
    struct StageRow {
        QLabel* title;
        QLabel* image;
        QLabel* result;
    };
    StageRow row(int stage) const;

    QLabel* lbl_1;
    QLabel* img_vcddebug;
    QLabel* lbl_vcddebug;
    QLabel* lbl_2;
    QLabel* img_vcdxrip;
    QLabel* lbl_vcdxrip;
    QLabel* lbl_3;
    QLabel* img_vcdxbuild;
    QLabel* lbl_vcdxbuild;

private:
    void Form_Load();
};

}  // namespace torvane
