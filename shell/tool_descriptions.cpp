#include "shell/tool_descriptions.h"

namespace torvane {

namespace {

const QChar CR = QLatin1Char('\r');

}  // namespace

QString TabDescription(int tab) {
    switch (tab) {
        case 0:
            return QStringLiteral(
                       "GNU VCDImager 0.7.12 is a suite of open source (S)VCD authoring programs. "
                       "These programs, though command console applications, provide the most "
                       "power and flexible (S)VCD authoring solution in existence. ") +
                   CR + CR +
                   QStringLiteral(
                       "Torvane allows you use these programs without having to open up the "
                       "command console yourself.");
        case 1:
            return QStringLiteral(
                       "lkVCDImager 5.0.7.12 consists of a series of applications that have been "
                       "forked from VCDImager.  At present, the command console version of these "
                       "applications are used but in future versions of this program, the "
                       "lkVCDImager DLL will be used.") +
                   CR + CR +
                   QStringLiteral(
                       "Each of the tools in lkVCDImager replaces one from the vanilla version of "
                       "GNU VCDImager and is highly recommended.");
        case 2:
            return QStringLiteral(
                "The Special Additional functions are not part of VCDImager itself but are a "
                "number of useful tools that supplement the VCDImager authoring system.  These "
                "tools are exclusive to Torvane.");
        default:
            return QString();
    }
}

QString AboutDescription(const QString& versionText) {
    const QString crlf = QStringLiteral("\r\n");
    return QStringLiteral("About this program.") + crlf + crlf + QStringLiteral("Torvane") + crlf +
           crlf + versionText + crlf + crlf +
           QStringLiteral(
               "Copyright (C) 2003 the makers of Torvane. Free software under the GNU "
               "General Public License.");
}

QString QuitDescription() {
    return QStringLiteral("Quit this program");
}

}  // namespace torvane
