#pragma once
// The program's two links out: a web page in the browser, a new mail in the mail program.
// Both return at once; what the desktop does with them is its own affair.

#include <QString>

namespace torvane {

class Desktop;

void FindURL(Desktop& desktop, const QString& url);
void SendMail(Desktop& desktop, const QString& address);

// The program's own addresses.
QString WebsiteUrl();    // .../torvane.html
QString DonationUrl();   // .../donators.html
QString AspiLayerUrl();  // .../aspilayer.html
QString AuthorMail();

}  // namespace torvane
