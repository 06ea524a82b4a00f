#include "forms/desktop_services.h"

#include "core/file_filter.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>

namespace torvane {

namespace {

// The name as the user typed it: Qt's dialog reads a typed name holding double quotes as a
// list of quoted names and would hand back another path. Typed with quotes, the name is
// taken as it stands, and Go refuses it in words.
QString TypedName(const QFileDialog& dialog) {
    const QString chosen = dialog.selectedFiles().value(0);
    const auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!edit || !edit->text().contains(QLatin1Char('"')))
        return chosen;
    return QDir(dialog.directory()).filePath(edit->text());
}

std::optional<QString> RunFileDialog(QFileDialog::AcceptMode mode, const QString& filter,
                                     int filterIndex, const QString& folder) {
    QFileDialog dialog(QApplication::activeWindow(), QString(), folder);
    // Qt's own dialog, whatever the desktop: the typed name must be readable.
    dialog.setOption(QFileDialog::DontUseNativeDialog, true);
    dialog.setAcceptMode(mode);
    // A typed name is taken as it stands: no existence test, no overwrite prompt.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
    const QStringList filters = QtNameFilters(filter);
    dialog.setNameFilters(filters);
    if (filterIndex >= 1 && filterIndex <= filters.size())
        dialog.selectNameFilter(filters[filterIndex - 1]);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return TypedName(dialog);
}

// The first line a quick xdg-mime query prints, or empty when it fails or takes too long.
QString AskXdgMime(const QStringList& query) {
    constexpr int kQueryTimeoutMs = 3000;
    QProcess process;
    process.start(QStringLiteral("xdg-mime"), QStringList{QStringLiteral("query")} + query);
    if (!process.waitForFinished(kQueryTimeoutMs) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return QString();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).section('\n', 0, 0).trimmed();
}

// xdg-open goes on in the background and reports nothing, so whether some program opens
// the file is asked of the desktop's own table first.
bool HasDesktopHandler(const QString& path) {
    const QString type = AskXdgMime({QStringLiteral("filetype"), path});
    return !type.isEmpty() && !AskXdgMime({QStringLiteral("default"), type}).isEmpty();
}

// Hands `url` to xdg-open. The opener may wait for the program it starts (a viewer open for
// an hour), so only a failure within its first moments is seen: no opener, or an opener
// that ends in failure (a handler that cannot start, no browser at all). Past that moment
// it runs on unwatched and goes when it ends.
bool RunOpener(const QString& url) {
    constexpr int kEarlyFailureMs = 1500;
    auto* opener = new QProcess(qApp);
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->start(QStringLiteral("xdg-open"), {url});
    if (!opener->waitForFinished(kEarlyFailureMs) && opener->state() != QProcess::NotRunning) {
        QObject::connect(opener, &QProcess::finished, opener, &QObject::deleteLater);
        return true;
    }
    const bool opened = opener->exitStatus() == QProcess::NormalExit &&
                        opener->error() == QProcess::UnknownError && opener->exitCode() == 0;
    opener->deleteLater();
    return opened;
}

}  // namespace

QString DisplayText(const QString& text) {
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return shown;
}

int QtMessageBoxes::show(const MessageBoxRequest& request) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(request.title.isEmpty() ? QStringLiteral("Torvane") : request.title);
    box.setText(DisplayText(request.text));
    switch (request.icon) {
        case MessageBoxRequest::Icon::None:
            box.setIcon(QMessageBox::NoIcon);
            break;
        case MessageBoxRequest::Icon::Information:
            box.setIcon(QMessageBox::Information);
            break;
        case MessageBoxRequest::Icon::Question:
            box.setIcon(QMessageBox::Question);
            break;
    }
    if (request.buttons == MessageBoxRequest::Buttons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return vbOK;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(request.defaultAnswer == vbYes ? QMessageBox::Yes : QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? vbYes : vbNo;
}

std::optional<QString> QtFileDialogs::openFileName(const QString& filter, int filterIndex,
                                                   const QString& folder) {
    return RunFileDialog(QFileDialog::AcceptOpen, filter, filterIndex, folder);
}

std::optional<QString> QtFileDialogs::saveFileName(const QString& filter, int filterIndex,
                                                   const QString& folder) {
    return RunFileDialog(QFileDialog::AcceptSave, filter, filterIndex, folder);
}

std::optional<QString> QtFileDialogs::existingFolder(const QString& folder) {
    const QString picked =
        QFileDialog::getExistingDirectory(QApplication::activeWindow(), QString(), folder);
    if (picked.isEmpty())
        return std::nullopt;
    return picked;
}

bool QtDesktop::openInViewer(const QString& path) {
    return HasDesktopHandler(path) && RunOpener(QUrl::fromLocalFile(path).toString());
}

bool QtDesktop::openUrl(const QString& url) {
    return RunOpener(url);
}

}  // namespace torvane
