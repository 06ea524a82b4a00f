#pragma once
// The two small windows of the drive scan: the wait box shown while it runs, and the help
// box behind the lkVCDxRIP dialog's Help button after it failed.

#include <QDialog>
#include <QWidget>

class QLabel;
class QPushButton;

namespace torvane {

struct Services;

class frm_wait : public QWidget {
    Q_OBJECT
public:
    explicit frm_wait(QWidget* owner);
    QLabel* Label1;
};

class frm_scanfail : public QDialog {
    Q_OBJECT
public:
    frm_scanfail(QWidget& parent, Services& services);
    QLabel* Label1;
    QPushButton* cmd_cancel;
    QPushButton* cmd_download;
};

}  // namespace torvane
