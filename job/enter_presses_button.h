#pragma once
// Enter on a focused command button presses that button, in every window of the program,
// as on the desktop the program's dialogs were first made for; Qt's plain windows leave
// that to the space bar. Installed once on the application.

#include <QObject>

namespace torvane {

class EnterPressesFocusedButton : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace torvane
