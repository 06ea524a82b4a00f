#include "shell/start_file.h"

#include "shell/frm_mainmenu.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QPushButton>

namespace torvane {

QString OptionText(const QString& argument) {
    if (argument == QLatin1String("--version"))
        return QStringLiteral("Torvane " TORVANE_VERSION "\n");
    if (argument != QLatin1String("--help"))
        return QString();
    return QStringLiteral(
        "Usage: torvane [FILE...]\n"
        "       torvane --help | --version\n"
        "\n"
        "Dialogs for the GNU VCDImager tools. Started with files, Torvane opens the tool\n"
        "that takes the first one, with the file already chosen: a cue sheet (.cue) the\n"
        "subindices remover, an XML description (.xml) vcdxbuild, a BIN or NRG image\n"
        "vcdxrip, an MPEG file (.mpg, .mpeg, ...) vcdxminfo.\n"
        "\n"
        "  --help     print this help and end\n"
        "  --version  print the version and end\n"
        "\n"
        "The manual page torvane(1) tells where Torvane keeps its files.\n");
}

namespace {

// The tools that take a file: the file's type, as the desktop entry names it, and the
// extensions of its names, blank-separated.
struct FileTaker {
    const char* tool;
    const char* type;
    const char* extensions;
};
const FileTaker kFileTakers[] = {
    {"subindex", "application/x-cue", "cue"},
    {"vcdxbuild", "application/x-videocd+xml", "xml"},
    {"vcdxrip", "application/x-raw-cd-image", "bin"},
    {"vcdxrip", "application/x-nrg", "nrg"},
    {"vcdxminfo", "video/mpeg", "mpg mpeg mpe mpv m1v m2v mp2"},
};

}  // namespace

QString ToolForFile(const QString& path) {
    const QString extension = QFileInfo(path).suffix().toLower();
    for (const FileTaker& taker : kFileTakers) {
        if (QString::fromLatin1(taker.extensions).split(QLatin1Char(' ')).contains(extension))
            return QLatin1String(taker.tool);
    }
    // Else by its type, as a desktop knows it when it offers Torvane for the file: an MPEG
    // stream or a raw CD image under another name.
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    for (const FileTaker& taker : kFileTakers) {
        if (type.inherits(QLatin1String(taker.type)))
            return QLatin1String(taker.tool);
    }
    return QString();
}

std::optional<QString> ChosenFileDialogs::openFileName(const QString& filter, int filterIndex,
                                                       const QString& folder) {
    if (chosen)
        return chosen;
    return shown_.openFileName(filter, filterIndex, folder);
}

std::optional<QString> ChosenFileDialogs::saveFileName(const QString& filter, int filterIndex,
                                                       const QString& folder) {
    return shown_.saveFileName(filter, filterIndex, folder);
}

std::optional<QString> ChosenFileDialogs::existingFolder(const QString& folder) {
    return shown_.existingFolder(folder);
}

QWidget* OpenToolWithFile(frm_mainmenu& menu, ChosenFileDialogs& files, const QString& path) {
    const QString key = ToolForFile(path);
    QWidget* dialog = key.isEmpty() ? nullptr : menu.openTool(key);
    if (!dialog)
        return nullptr;
    // Every tool that takes a file names its input box's Browse button so.
    files.chosen = path;
    if (auto* browse = dialog->findChild<QPushButton*>(QStringLiteral("cmd_input")))
        browse->click();
    files.chosen.reset();
    return dialog;
}

}  // namespace torvane
