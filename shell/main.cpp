// Torvane starts at its main menu; the application path is the current directory.

#include "job/desktop_services.h"
#include "job/window_rules.h"
#include "shell/frm_mainmenu.h"

#include <QApplication>
#include <QDir>
#include <cstdio>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Torvane"));
    app.installEventFilter(new torvane::WindowRules(&app));

    torvane::QtMessageBoxes boxes;
    torvane::QtFileDialogs files;
    torvane::QtDesktop desktop;
    torvane::Services services{boxes, files, desktop};

    torvane::frm_mainmenu menu(services, QDir::currentPath());
    menu.show();
    // A scripted start, for the test of an installed program: where it runs, then the end.
    if (qEnvironmentVariableIsSet("TORVANE_EXIT_AT_START")) {
        std::printf("application folder: %s\n", qPrintable(QDir::currentPath()));
        return 0;
    }
    return app.exec();
}
