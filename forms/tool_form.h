#pragma once
// Builds the controls of a tool dialog in the one layout they all share: path rows on
// top, option rows, the "What does ... do?" frame, then Go, Cancel and About. Every
// control gets its name as objectName, so tests and the tab order can find it.

#include <QString>
#include <QStyle>
#include <initializer_list>

class QBoxLayout;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class QWidget;

namespace torvane {

class ToolForm {
public:
    explicit ToolForm(QWidget& form);

    QLabel* label(const char* name, const char* caption, const char* tip);
    // Read-only and out of the tab order: only the browse handlers fill it.
    QLineEdit* pathBox(const char* name, const char* tip);
    // Editable, holding `text`, at most `maxLength` characters (0: no limit).
    QLineEdit* textBox(const char* name, const char* tip, const char* text, int maxLength);
    QPushButton* button(const char* name, const char* caption, const char* tip);
    QCheckBox* checkBox(const char* name, const char* caption, const char* tip);
    QRadioButton* optionButton(const char* name, const char* caption, const char* tip);
    // One group of option buttons, exclusive within itself whatever else the form holds: Tab
    // enters it at the selected one, the arrows move within.
    void optionGroup(std::initializer_list<QRadioButton*> options);
    // Widens `box` to show `characters` of the widest capitals whole.
    static void fitCharacters(QLineEdit& box, int characters);

    void addPathRow(QLabel* label, QLineEdit* box, QPushButton* browse);
    // A row of controls among the path rows, in the order of the calls.
    void addControlRow(std::initializer_list<QWidget*> controls);
    void addOptionRow(std::initializer_list<QWidget*> options);
    // A frame with the tool's picture ("Image1") and its description ("Label1").
    QGroupBox* descriptionFrame(const char* title, const char* text,
                                QStyle::StandardPixmap picture);
    void addCommandRow(QPushButton* go, QPushButton* cancel, QPushButton* about,
                       QStyle::StandardPixmap aboutPicture);
    // Sets the tab order, gives the first tab stop the focus and fixes the size.
    void finish(std::initializer_list<QWidget*> tabOrder);

private:
    QWidget& form_;
    QVBoxLayout* layout_;
    QGridLayout* paths_;
};

}  // namespace torvane
