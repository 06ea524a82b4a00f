// The About dialog's texts, buttons and keys; a tool's About box and its dialog kept disabled.

#include "about/frmAbout.h"
#include "about/mod_about.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/tool_run.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;

class AboutTest : public QObject {
    Q_OBJECT
private slots:

    void keys_data() {
        QTest::addColumn<QString>("focus");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("outcome");  // closed, the pane's text, or the link opened
        const QString mail("mailto:torvane@example.org"), date("\nSaturday, 1 February 2003");
        QTest::newRow("Enter on OK") << "cmdOK" << int(Qt::Key_Return) << "closed";
        QTest::newRow("Enter on Author") << "cmd_author" << int(Qt::Key_Enter) << "author" + date;
        QTest::newRow("a missing file") << "cmd_license" << int(Qt::Key_Space) << date.mid(1);
        QTest::newRow("Enter in the pane") << "Text1" << int(Qt::Key_Return) << mail;
        QTest::newRow("Escape on Author") << "cmd_author" << int(Qt::Key_Escape) << mail;
        QTest::newRow("Website") << "cmd_website" << int(Qt::Key_Space)
                                 << "https://torvane.example.org/torvane.html";
        QTest::newRow("Website, no browser") << "cmd_website" << int(Qt::Key_Space)
                                             << "https://torvane.example.org/torvane.html|No "
                                                "program on this desktop could open the address:"
                                                "\r\rhttps://torvane.example.org/torvane.html";
    }

    void keys() {
        QFETCH(QString, focus);
        QFETCH(int, key);
        QTemporaryDir app;
        QVERIFY(test::WriteBytes(app.filePath("author.txt"), "author\r\n"));
        test::FakeServices fakes;
        fakes.desktop.viewerFound = !QByteArray(QTest::currentDataTag()).contains("no browser");
        frmAbout about(fakes.services, app.path());
        QVERIFY(QFile::remove(app.filePath("author.txt")));  // the texts are read as it opens
        about.show();
        QVERIFY(QTest::qWaitForWindowActive(&about));
        QVERIFY(about.lblVersion->text().startsWith("Version " TORVANE_VERSION "\n"));
        QCOMPARE(QApplication::focusWidget(), about.cmdOK);
        about.findChild<QWidget*>(focus)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        const QString shown = about.isVisible() ? about.Text1->toPlainText() : "closed";
        QStringList links = fakes.desktop.urls;
        for (const MessageBoxRequest& box : fakes.boxes.shown)
            links << box.text;
        QTEST(links.isEmpty() ? shown : links.join('|'), "outcome");
    }

    void toolBox_data() {
        QTest::addColumn<QString>("shown");  // the caption and the text's first line
        QTest::addColumn<int>("closeBy");    // a key in the box; 0: its title bar
        const auto row = [](const char* key, const char* shown, int closeBy) {
            QTest::newRow(key) << QString(shown) << closeBy;
        };
        row("cdxa2mpeg", "About CDXA2MPEG|usage: cdxa2mpg infile [outfile]", 0);
        row("vcdxbuild", "About VCDXBUILD|vcdxbuild (GNU VCDImager) 0.7.12", Qt::Key_Escape);
        row("vcdxrip", "About VCDXRIP|vcdxrip (GNU VCDImager) 0.7.12", Qt::Key_Return);
    }

    void toolBox() {
        const QString key = QTest::currentDataTag();
        QFETCH(int, closeBy);
        test::FakeServices fakes;
        frm_mainmenu menu(fakes.services, TORVANE_APP_DIR);
        QPointer<QWidget> dialog = menu.openTool(key);
        dialog->findChild<QPushButton*>("cmd_about")->click();
        QPointer<QWidget> box = test::ComponentDialog("about_component");
        QVERIFY(box && box->isVisible() && !box->parentWidget() && !box->isModal());
        auto* text = box->findChild<QPlainTextEdit*>("Text1");
        QTEST(box->windowTitle() + '|' + text->toPlainText().section('\n', 0, 0), "shown");
        QVERIFY(text->isReadOnly() && (!dialog || (!dialog->isEnabled() && dialog->isVisible())));
        closeBy ? QTest::keyClick(text, Qt::Key(closeBy)) : void(box->close());  // 0: the title bar
        QTRY_VERIFY(!box);
        QVERIFY(!dialog || dialog->isEnabled());
        delete dialog;
    }
};

QTEST_MAIN(AboutTest)
#include "about_test.moc"
