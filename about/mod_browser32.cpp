#include "about/mod_browser32.h"

#include "core/services.h"
#include "forms/form_support.h"

namespace torvane {

namespace {
const QString kServer = QStringLiteral("https://torvane.example.org");

// A link the desktop could not open is said so, with the address to copy by hand.
void OpenLink(Services& services, const QString& url) {
    if (!services.desktop.openUrl(url))
        InformationBox(
            services.boxes, kInformation,
            QStringLiteral("No program on this desktop could open the address:\r\r") + url);
}
}  // namespace

void FindURL(Services& services, const QString& url) {
    OpenLink(services, url);
}

void SendMail(Services& services, const QString& address) {
    OpenLink(services, QStringLiteral("mailto:") + address);
}

QString WebsiteUrl() {
    return kServer + QStringLiteral("/torvane.html");
}

QString DonationUrl() {
    return kServer + QStringLiteral("/donators.html");
}

QString AspiLayerUrl() {
    return kServer + QStringLiteral("/aspilayer.html");
}

QString AuthorMail() {
    return QStringLiteral("torvane@example.org");
}

}  // namespace torvane
