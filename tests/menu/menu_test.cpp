// The main menu: its buttons, its two states, and the way in and out of a tool dialog.

#include "job/enter_presses_button.h"
#include "shell/frm_mainmenu.h"
#include "shell/mod_mainmenu.h"
#include "tests/support/fake_services.h"

#include <QEnterEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

using namespace torvane;

class MenuTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void tabOrderFollowsTheButtonsThenAboutQuitAndLkvcdxrip();
    void toolButtonOpensItsDialogAndClosingComesBack();
    void accessKeyPressesTheButton();
    void escapePressesQuit();
    void enterPressesTheFocusedButton();
    void aWindowSwitchIsNoFocusMove();
    void buttonsWithoutADialogAreDisabled();
    void pointingAtAButtonDescribesIt_data();
    void pointingAtAButtonDescribesIt();
    void tabChangeDescribesTheTabAndSetsTabStops_data();
    void tabChangeDescribesTheTabAndSetsTabStops();
    void aboutAndQuitDescribeThemselves();

private:
    test::FakeServices fakes_;
    std::unique_ptr<frm_mainmenu> menu_;
};

void MenuTest::init() {
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, QStringLiteral("/opt/torvane"));
    menu_->show();
    QVERIFY(QTest::qWaitForWindowExposed(menu_.get()));
}

void MenuTest::cleanup() {
    menu_.reset();
}

void MenuTest::tabOrderFollowsTheButtonsThenAboutQuitAndLkvcdxrip() {
    const QStringList expected = {
        "SSTab1",        "cmd_vcdimager", "cmd_vcdxgen",  "cmd_vcdxbuild",   "cmd_vcdxrip",
        "cmd_cdxa2mpeg", "cmd_vcdxminfo", "cmd_vcddebug", "cmd_lkvcdxbuild", "cmd_subindex",
        "cmd_regen",     "cmd_about",     "cmd_quit",     "cmd_lkvcdxrip"};
    QStringList chain;
    QWidget* widget = menu_->SSTab1;
    do {
        if (expected.contains(widget->objectName()))
            chain << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget != menu_->SSTab1);
    QCOMPARE(chain, expected);
}

void MenuTest::toolButtonOpensItsDialogAndClosingComesBack() {
    menu_->toolButtons.at(QStringLiteral("vcdxminfo"))->click();
    QWidget* dialog = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("frm_vcdxminfo") && widget->isVisible())
            dialog = widget;
    }
    QVERIFY(dialog);
    QCOMPARE(menu_->windowTitle(), QStringLiteral("VCDXMINFO - Torvane"));
    QVERIFY(!menu_->isEnabled() && menu_->isMinimized());
    QVERIFY(dialog->close());
    QCOMPARE(menu_->windowTitle(), QStringLiteral("Torvane"));
    QVERIFY(menu_->isEnabled() && !menu_->isMinimized());
    QVERIFY(fakes_.boxes.shown.empty());  // idle: no question on the way out
}

void MenuTest::accessKeyPressesTheButton() {
    menu_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(menu_.get()));
    QSignalSpy clicked(menu_->toolButtons.at(QStringLiteral("vcdxminfo")), &QPushButton::clicked);
    QTest::keyClick(menu_.get(), Qt::Key_I, Qt::AltModifier);
    QTRY_COMPARE(clicked.count(), 1);  // an access key animates the click
    QCOMPARE(menu_->windowTitle(), QStringLiteral("VCDXMINFO - Torvane"));
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("frm_vcdxminfo"))
            widget->close();
    }
}

void MenuTest::escapePressesQuit() {
    menu_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(menu_.get()));
    QSignalSpy clicked(menu_->cmd_quit, &QPushButton::clicked);
    QTest::keyClick(menu_.get(), Qt::Key_Escape);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(fakes_.boxes.shown.empty());  // no question
}

void MenuTest::enterPressesTheFocusedButton() {
    EnterPressesFocusedButton filter;
    qApp->installEventFilter(&filter);
    QPushButton* button = menu_->toolButtons.at(QStringLiteral("vcdxminfo"));
    menu_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(menu_.get()));
    button->setFocus(Qt::TabFocusReason);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QTest::keyClick(button, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("frm_vcdxminfo"))
            widget->close();
    }
}

void MenuTest::aWindowSwitchIsNoFocusMove() {
    QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
    QApplication::sendEvent(menu_->cmd_quit, &enter);
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(menu_->toolButtons.at(QStringLiteral("vcdxbuild")), &back);
    QCOMPARE(menu_->lbl_des->text(), QStringLiteral("Quit this program"));
}

void MenuTest::buttonsWithoutADialogAreDisabled() {
    for (const auto& [key, button] : menu_->toolButtons) {
        const bool enabled = button->isEnabled();
        const bool hasDialog = menu_->openTool(key) != nullptr;
        QCOMPARE(enabled, hasDialog);
        if (hasDialog) {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (widget != menu_.get() && widget->isVisible())
                    widget->close();
            }
        }
    }
    QVERIFY(menu_->toolButtons.at(QStringLiteral("vcdxminfo"))->isEnabled());
}

void MenuTest::pointingAtAButtonDescribesIt_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("begins");
    QTest::addColumn<QString>("ends");
    QTest::newRow("vcdxbuild") << "vcdxbuild"
                               << "VCDXBUILD is the tool that reads the XML"
                               << "You can then burn the CUE/BIN image to a physical disc.";
    QTest::newRow("lkvcdxbuild: the fork clause ends a sentence")
        << "lkVCDxBUILD"
        << "lkVCDxBUILD is a tool that is near identical in its function to "
           "VCDXBUILD.  This is a fork from the v0.7.10 build of VCDXBUILD by "
        << ".  It allows ISO Level 2 path and filenames to be used on the VCD filesystem!  The "
           "lkVCDxBUILD readme file has more details.  You use this tool to create a (S)VCD disc "
           "image from the XML descriptor file and the referenced media files.";
    QTest::newRow("subindex quotes \"detailed\"")
        << "subindex"
        << "Subindicies Remover - VCDIMAGER / VCDXBUILD / lkVCDxBUILD all create \"detailed\" "
           "cuesheets"
        << "then use this tool to remove the subindicies.";
}

void MenuTest::pointingAtAButtonDescribesIt() {
    QFETCH(QString, key);
    QFETCH(QString, begins);
    QFETCH(QString, ends);
    QPushButton* button = menu_->toolButtons.at(key.toLower());
    menu_->SSTab1->setCurrentWidget(button->parentWidget()->parentWidget());
    QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
    QApplication::sendEvent(button, &enter);  // the pointer passes over, no click
    QVERIFY2(menu_->lbl_des->text().startsWith(begins), qPrintable(menu_->lbl_des->text()));
    QVERIFY(menu_->lbl_des->text().endsWith(ends));
    QVERIFY(!menu_->lbl_des->text().contains(QLatin1Char('\n')));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(button, &leave);  // leaving restores nothing
    QVERIFY(menu_->lbl_des->text().startsWith(begins));

    if (!button->isEnabled())
        return;  // a button without its dialog takes no focus
    menu_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(menu_.get()));
    menu_->cmd_quit->setFocus(Qt::TabFocusReason);
    QCOMPARE(menu_->lbl_des->text(), QStringLiteral("Quit this program"));
    button->setFocus(Qt::TabFocusReason);  // and so does the focus
    QTRY_VERIFY(menu_->lbl_des->text().startsWith(begins));
}

void MenuTest::tabChangeDescribesTheTabAndSetsTabStops_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("begins");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("0") << 0 << "GNU VCDImager 0.7.12 is a suite of open source"
                       << QStringList{"vcdimager", "vcdxgen",  "vcdxbuild", "vcdxrip",
                                      "vcdxminfo", "vcddebug", "cdxa2mpeg", "lkvcdxrip"};
    QTest::newRow("1") << 1 << "lkVCDImager 5.0.7.12 consists of a series"
                       << QStringList{"lkvcdxbuild", "lkvcdxrip"};
    QTest::newRow("2") << 2 << "The Special Additional functions are not part of VCDImager"
                       << QStringList{"subindex", "regen", "lkvcdxrip"};
}

void MenuTest::tabChangeDescribesTheTabAndSetsTabStops() {
    QFETCH(int, tab);
    QFETCH(QString, begins);
    QFETCH(QStringList, stops);
    menu_->SSTab1->setCurrentIndex((tab + 1) % 3);
    menu_->SSTab1->setCurrentIndex(tab);
    QVERIFY(menu_->lbl_des->text().startsWith(begins));
    // Two carriage returns in the text: two line breaks on screen.
    QCOMPARE(menu_->lbl_des->text().count(QLatin1Char('\n')), tab == 2 ? 0 : 2);
    for (const auto& [key, button] : menu_->toolButtons)
        QVERIFY2((button->focusPolicy() == Qt::StrongFocus) == stops.contains(key),
                 qPrintable(key));
}

void MenuTest::aboutAndQuitDescribeThemselves() {
    QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
    QApplication::sendEvent(menu_->cmd_about, &enter);
    QVERIFY(menu_->lbl_des->text().startsWith(
        QStringLiteral("About this program.\n\nTorvane\n\nVersion 1.1.207\n\n")));
    QApplication::sendEvent(menu_->cmd_quit, &enter);
    QCOMPARE(menu_->lbl_des->text(), QStringLiteral("Quit this program"));
}

QTEST_MAIN(MenuTest)
#include "menu_test.moc"
