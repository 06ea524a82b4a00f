#include "about/mod_browser32.h"

#include "job/services.h"

namespace torvane {

namespace {
const QString kServer = QStringLiteral("https://torvane.example.org");
}  // namespace

void FindURL(Desktop& desktop, const QString& url) {
    desktop.openUrl(url);
}

void SendMail(Desktop& desktop, const QString& address) {
    desktop.openUrl(QStringLiteral("mailto:") + address);
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
