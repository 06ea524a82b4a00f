// The program's About dialog: OK focused first, Enter on a button presses it, Escape or
// Enter elsewhere presses E-mail, the pane fits the texts. A console tool's About box: its
// caption and text, lines joined by CR LF, and the tool's dialog disabled until the box
// closes, however it closes.

#include "about/component_texts.h"
#include "about/frmAbout.h"
#include "about/mod_about.h"
#include "about/mod_browser32.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>

using namespace torvane;

class AboutBoxesTest : public QObject {
    Q_OBJECT
private slots:
    void keys_data();
    void keys();
    void thePaneFitsTheTexts();
    void toolBox_data();
    void toolBox();

private:
    test::FakeServices fakes_;
};

void AboutBoxesTest::keys_data() {
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("outcome");  // closed, the pane's first line, or the link opened
    QTest::newRow("Enter on OK") << "cmdOK" << int(Qt::Key_Return) << "closed";
    QTest::newRow("Enter on Author") << "cmd_author" << int(Qt::Key_Enter) << "Author";
    const QString mail = "mailto:" + AuthorMail();
    QTest::newRow("Enter in the pane") << "Text1" << int(Qt::Key_Return) << mail;
    QTest::newRow("Escape on Author") << "cmd_author" << int(Qt::Key_Escape) << mail;
}

void AboutBoxesTest::keys() {
    QFETCH(QString, focus);
    QFETCH(int, key);
    fakes_.desktop.urls.clear();
    frmAbout about(fakes_.services, TORVANE_APP_DIR);
    about.show();
    QVERIFY(QTest::qWaitForWindowActive(&about));
    QCOMPARE(QApplication::focusWidget(), about.cmdOK);
    about.findChild<QWidget*>(focus)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    QVERIFY(fakes_.desktop.urls.size() < 2);
    const QString shown = about.Text1->toPlainText().section('\n', 0, 0);
    QTEST(about.isVisible() ? fakes_.desktop.urls.value(0, shown) : "closed", "outcome");
}

void AboutBoxesTest::thePaneFitsTheTexts() {
    frmAbout about(fakes_.services, TORVANE_APP_DIR);
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    QCOMPARE(about.minimumSize(), about.maximumSize());
    for (QPushButton* button : {about.cmd_description, about.cmd_requirements, about.cmd_changelog,
                                about.cmd_license, about.cmd_vcdimager, about.cmd_author}) {
        button->click();
        for (QTextBlock block = about.Text1->document()->begin(); block.isValid();
             block = block.next()) {
            about.Text1->document()->documentLayout()->blockBoundingRect(block);
            QVERIFY2(block.layout()->lineCount() == 1, qPrintable(block.text()));
        }
    }
}

void AboutBoxesTest::toolBox_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("firstLine");
    QTest::addColumn<int>("lineCount");
    QTest::newRow("cdxa2mpeg") << "About CDXA2MPEG"
                               << "usage: cdxa2mpg infile [outfile]" << 9;
    QTest::newRow("lkvcdxbuild") << "About lkVCDxBUILD"
                                 << "lkVCDxBuild 5.0.7.10(win32)" << 7;
    QTest::newRow("lkvcdxrip") << "About lkVCDxRIP"
                               << "lkVCDxRIP 5.0.7.10(win32)" << 7;
    for (const QString tool :
         {"vcddebug", "vcdimager", "vcdxbuild", "vcdxgen", "vcdxminfo", "vcdxrip"})
        QTest::newRow(qPrintable(tool))
            << "About " + tool.toUpper() << tool + " (GNU VCDImager) 0.7.12" << 10;
}

void AboutBoxesTest::toolBox() {
    const QString key = QTest::currentDataTag();
    const int closeBy = key == "vcdxbuild" ? Qt::Key_Escape : key == "vcdxrip" ? Qt::Key_Return : 0;
    frm_mainmenu menu(fakes_.services, TORVANE_APP_DIR);
    QPointer<QWidget> dialog = menu.openTool(key);  // the dialogs that exist so far
    dialog ? dialog->findChild<QPushButton*>("cmd_about")->click() : ShowComponentAbout(key);
    QPointer<QWidget> box;
    for (QWidget* widget : QApplication::topLevelWidgets())
        box = widget->objectName() == "frm_about_component" ? widget : box.data();
    QVERIFY(box && box->isVisible() && !box->parentWidget() && !box->isModal());
    QTEST(box->windowTitle(), "caption");
    const QStringList lines = ComponentAboutFor(key)->text.split("\r\n");
    QTEST(lines.first(), "firstLine");
    QTEST(int(lines.size()), "lineCount");
    QVERIFY(!lines.last().isEmpty() && !lines.join("").contains('\n'));
    auto* text = box->findChild<QPlainTextEdit*>("Text1");
    QCOMPARE(text->toPlainText(), lines.join('\n'));
    QVERIFY(text->isReadOnly() && (!dialog || (!dialog->isEnabled() && dialog->isVisible())));
    closeBy ? QTest::keyClick(text, Qt::Key(closeBy)) : void(box->close());  // 0: the title bar
    QTRY_VERIFY(!box);
    QVERIFY(!dialog || dialog->isEnabled());
    delete dialog;
}

QTEST_MAIN(AboutBoxesTest)
#include "about_boxes_test.moc"
