#pragma once
// Rules every window of the program keeps, as on the desktop the program's dialogs were
// first made for; Qt's plain windows differ in each. Installed once on the application.
//  - Enter on a focused command button presses that button (Qt leaves that to the space
//    bar), ahead of any form-wide Enter shortcut.
//  - While a drop-down list or another popup is open, Enter and Escape are the popup's:
//    no form-wide shortcut presses or closes anything behind it.
//  - A disabled window ignores a request to close it (close box, Alt+F4): the program
//    enables a window before it closes it.

#include <QObject>

namespace torvane {

class WindowRules : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace torvane
