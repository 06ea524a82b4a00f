// The program's About dialog: its texts from the application folder and its links.

#include "about/frmAbout.h"
#include "tests/support/fake_services.h"

#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;

class AboutTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void opensOnTheDescriptionFollowedByTheBuildDate();
    void eachButtonShowsItsFile_data();
    void eachButtonShowsItsFile();
    void aMissingFileLeavesJustTheDate();
    void linksOpenTheirAddressesAndKeepTheDialog();

private:
    void write(const QString& name, const QByteArray& text);
    test::FakeServices fakes_;
    std::unique_ptr<QTemporaryDir> app_;
};

void AboutTest::write(const QString& name, const QByteArray& text) {
    QFile file(app_->path() + QLatin1Char('/') + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

void AboutTest::init() {
    app_ = std::make_unique<QTemporaryDir>();
    for (const char* name :
         {"description", "requirements", "changelog", "vcdimager", "license", "author"})
        write(QLatin1String(name) + QStringLiteral(".txt"), QByteArray(name) + " text\r\n");
    fakes_.desktop.urls.clear();
}

void AboutTest::opensOnTheDescriptionFollowedByTheBuildDate() {
    frmAbout about(fakes_.services, app_->path());
    QCOMPARE(about.windowTitle(), QStringLiteral("About Torvane"));
    QCOMPARE(about.Text1->toPlainText(),
             QStringLiteral("description text\nSaturday, 1 February 2003"));
    QVERIFY(about.Text1->isReadOnly());
    QVERIFY(about.lblVersion->text().startsWith(QStringLiteral("Version 1.1.207\n")));
}

void AboutTest::eachButtonShowsItsFile_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("file");
    QTest::newRow("description") << "cmd_description"
                                 << "description";
    QTest::newRow("author") << "cmd_author"
                            << "author";
}

void AboutTest::eachButtonShowsItsFile() {
    QFETCH(QString, button);
    QFETCH(QString, file);
    frmAbout about(fakes_.services, app_->path());
    // The texts are read once, when the dialog opens.
    write(file + QStringLiteral(".txt"), "changed later");
    for (int press = 0; press < 2; ++press) {
        about.findChild<QPushButton*>(button)->click();
        QCOMPARE(about.Text1->toPlainText(),
                 file + QStringLiteral(" text\nSaturday, 1 February 2003"));
    }
}

void AboutTest::aMissingFileLeavesJustTheDate() {
    QFile::remove(app_->path() + QStringLiteral("/license.txt"));
    frmAbout about(fakes_.services, app_->path());
    about.cmd_license->click();
    QCOMPARE(about.Text1->toPlainText(), QStringLiteral("Saturday, 1 February 2003"));
}

void AboutTest::linksOpenTheirAddressesAndKeepTheDialog() {
    frmAbout about(fakes_.services, app_->path());
    about.show();
    about.cmd_website->click();
    about.cmd_donate->click();
    about.Command1->click();
    about.cmd_website->click();
    QCOMPARE(fakes_.desktop.urls.size(), 4);
    QVERIFY(fakes_.desktop.urls[0].endsWith(QStringLiteral("/torvane.html")));
    QVERIFY(fakes_.desktop.urls[1].endsWith(QStringLiteral("/donators.html")));
    QVERIFY(fakes_.desktop.urls[2].startsWith(QStringLiteral("mailto:")));
    QCOMPARE(fakes_.desktop.urls[3], fakes_.desktop.urls[0]);
    QVERIFY(about.isVisible());
}

QTEST_MAIN(AboutTest)
#include "about_test.moc"
