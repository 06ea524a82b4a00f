#pragma once
// The three modal things a dialog asks of the desktop: message boxes, file dialogs and
// the viewer. Dialogs reach them only through these interfaces, so that a test can answer
// a box or a file dialog and read what was shown.

#include <QString>
#include <optional>

namespace torvane {

// Answers of a message box, as the forms compare them.
constexpr int vbOK = 1;
constexpr int vbYes = 6;
constexpr int vbNo = 7;

struct MessageBoxRequest {
    enum class Buttons { Ok, YesNo };
    enum class Icon { None, Information, Question };

    QString title;  // empty: the program's name
    QString text;   // line breaks as given: lone CRs, sometimes CR LF
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    int defaultAnswer = vbOK;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    // Shows the box modally and returns vbOK, vbYes or vbNo.
    virtual int show(const MessageBoxRequest& request) = 0;
};

// The title of the information boxes of the forms and of the job.
inline const QString kInformation = QStringLiteral("Information");

// OK button, information icon.
int InformationBox(MessageBoxes& boxes, const QString& title, const QString& text);
// Yes and No, information icon, No as the default.
int ConfirmationBox(MessageBoxes& boxes, const QString& title, const QString& text);
// Yes and No, information icon, Yes as the default.
int QuestionBox(MessageBoxes& boxes, const QString& title, const QString& text);
// OK button, no icon, no title of its own.
int PlainBox(MessageBoxes& boxes, const QString& text);

class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    // `filter` is in the "Desc|pat;pat|Desc|pat" form; `filterIndex` is 1-based; the dialog
    // opens in `folder`. No overwrite prompt, no existence test. nullopt when the user
    // cancels.
    virtual std::optional<QString> openFileName(const QString& filter, int filterIndex,
                                                const QString& folder) = 0;
    virtual std::optional<QString> saveFileName(const QString& filter, int filterIndex,
                                                const QString& folder) = 0;
    // A folder that exists, picked from `folder` on; nullopt when the user cancels.
    virtual std::optional<QString> existingFolder(const QString& folder) = 0;
};

class Desktop {
public:
    virtual ~Desktop() = default;
    // Shows a text file in the desktop's viewer and returns at once; false when the desktop
    // has no program for it, or the program it names fails to start.
    virtual bool openInViewer(const QString& path) = 0;
    // Opens a web address or a mailto: address and returns at once; false as above.
    virtual bool openUrl(const QString& url) = 0;
};

struct Services {
    MessageBoxes& boxes;
    FileDialogs& files;
    Desktop& desktop;
};

}  // namespace torvane
