#pragma once
// What Torvane does with its command line. `--help` and `--version` print and end. Started
// with file names, as a desktop's "Open with" does, it opens the tool that takes the first
// file, with the file already chosen in the tool's input box, as if picked through that
// box's file dialog (so the dialog does whatever it does after a pick). Any other start
// opens the menu alone.

#include "core/services.h"

#include <QString>

class QWidget;

namespace torvane {

class frm_mainmenu;

// What `--help` or `--version` prints; empty for any other argument.
QString OptionText(const QString& argument);

// The key of the tool that takes the file, by its name's extension in any case, else by its
// type (the types the desktop entry names): a cue sheet "subindex", an XML description
// "vcdxbuild", a BIN or NRG image "vcdxrip", an MPEG file "vcdxminfo". Empty when no tool
// does.
QString ToolForFile(const QString& path);

// File dialogs whose next Open dialog is answered with a name given beforehand, without
// showing anything; every other dialog is `shown`'s.
class ChosenFileDialogs : public FileDialogs {
public:
    explicit ChosenFileDialogs(FileDialogs& shown) : shown_(shown) {}
    std::optional<QString> openFileName(const QString& filter, int filterIndex,
                                        const QString& folder) override;
    std::optional<QString> saveFileName(const QString& filter, int filterIndex,
                                        const QString& folder) override;
    std::optional<QString> existingFolder(const QString& folder) override;
    std::optional<QString> chosen;

private:
    FileDialogs& shown_;
};

// Opens the tool for `path` from the menu and presses its input box's Browse button, which
// `files` (the menu's file dialogs) answers with `path`. Returns the tool's dialog, or null
// when no tool takes the file.
QWidget* OpenToolWithFile(frm_mainmenu& menu, ChosenFileDialogs& files, const QString& path);

}  // namespace torvane
