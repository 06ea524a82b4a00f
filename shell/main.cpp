// Torvane starts at its main menu; the application path is the current directory. The
// command line: start_file.h.

#include "forms/desktop_services.h"
#include "forms/window_rules.h"
#include "shell/frm_mainmenu.h"
#include "shell/start_file.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <cstdio>

namespace {

// The installed icon: the desktop's icon theme may draw its own; else the PNG files installed
// beside the program (PREFIX/share/icons for PREFIX/lib/torvane/torvane) or built beside it
// (BUILD/share/icons for BUILD/app/torvane), read directly: without the hicolor theme's
// index, which not every system has, Qt finds no icon there.
QIcon InstalledIcon() {
    const QString folder = QCoreApplication::applicationDirPath();
    QIcon files;
    for (const QString& share :
         {folder + QStringLiteral("/../../share"), folder + QStringLiteral("/../share")}) {
        const QDir hicolor(share + QStringLiteral("/icons/hicolor"));
        for (const QString& size : hicolor.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString png = hicolor.filePath(size + QStringLiteral("/apps/torvane.png"));
            if (QFileInfo::exists(png))
                files.addFile(png);
        }
    }
    return QIcon::fromTheme(QStringLiteral("torvane"), files);
}

}  // namespace

int main(int argc, char* argv[]) {
    // Before any window system is asked for: these print and end.
    if (argc > 1) {
        const QString text = torvane::OptionText(QString::fromLocal8Bit(argv[1]));
        if (!text.isEmpty()) {
            std::fputs(qPrintable(text), stdout);
            return 0;
        }
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Torvane"));
    QApplication::setWindowIcon(InstalledIcon());
    // The launcher's word that the program cannot start: shown, and the start ends there.
    const QString failure = qEnvironmentVariable("TORVANE_START_FAILURE");
    if (!failure.isEmpty()) {
        QMessageBox::critical(nullptr, QStringLiteral("Torvane"), failure);
        return 1;
    }
    app.installEventFilter(new torvane::WindowRules(&app));

    torvane::QtMessageBoxes boxes;
    torvane::QtFileDialogs shownFiles;
    torvane::ChosenFileDialogs files(shownFiles);
    torvane::QtDesktop desktop;
    torvane::Services services{boxes, files, desktop};

    torvane::frm_mainmenu menu(services, QDir::currentPath());
    menu.show();
    // A scripted start, for the test of an installed program: where it runs, then the end.
    if (qEnvironmentVariableIsSet("TORVANE_EXIT_AT_START")) {
        std::printf("application folder: %s\n", qPrintable(QDir::currentPath()));
        return 0;
    }
    const QStringList named = QApplication::arguments().mid(1);
    if (!named.isEmpty())
        torvane::OpenToolWithFile(menu, files, named.first());
    return app.exec();
}
