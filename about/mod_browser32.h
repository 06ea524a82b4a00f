#pragma once
// The program's two links out: a web page in the browser, a new mail in the mail program.
// Both return at once; a link that no program of the desktop could open is said so in a box.

#include <QString>

namespace torvane {

struct Services;

void FindURL(Services& services, const QString& url);
void SendMail(Services& services, const QString& address);

// The program's own addresses.
QString WebsiteUrl();    // .../torvane.html
QString DonationUrl();   // .../donators.html
QString AspiLayerUrl();  // .../aspilayer.html
QString AuthorMail();

}  // namespace torvane
