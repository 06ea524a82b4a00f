// The main menu: each button's dialog, opened by a click, an access key or Enter, and back.

#include "about/mod_about.h"
#include "job/window_rules.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"

#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using namespace torvane;

class MenuTest : public QObject {
    Q_OBJECT
private slots:
    void buttons_data() {
        QTest::addColumn<int>("key");        // what presses the button: 0 a click, else a key
        QTest::addColumn<QString>("title");  // the menu's title while the dialog is open
        QTest::newRow("vcdxbuild") << int(Qt::Key_Return) << "VCDXBUILD - Torvane";
        QTest::newRow("vcdxrip") << 0 << "VCDXRIP - Torvane";
        QTest::newRow("vcdxminfo") << int(Qt::Key_I) << "VCDXMINFO - Torvane";
        QTest::newRow("subindex") << int(Qt::Key_S) << "Subindicies Remover - Torvane";
        QTest::newRow("regen") << int(Qt::Key_N) << "CUE/BIN Regenerator - Torvane";
        QTest::newRow("vcddebug") << int(Qt::Key_D) << "VCDDEBUG - Torvane";
        QTest::newRow("cdxa2mpeg") << int(Qt::Key_C) << "CDXA2MPEG - Torvane";
        QTest::newRow("vcdimager") << int(Qt::Key_V) << "VCDIMAGER - Torvane";
        QTest::newRow("vcdxgen") << int(Qt::Key_G) << "VCDXGEN - Torvane";
        QTest::newRow("lkvcdxbuild") << 0 << "lkVCDxBUILD - Torvane";
        QTest::newRow("lkvcdxrip") << 0 << "lkVCDxRIP - Torvane";
    }

    void buttons() {
        QFETCH(int, key);
        QFETCH(QString, title);
        const QString tool = QTest::currentDataTag();
        test::FakeServices fakes;
        frm_mainmenu menu(fakes.services, QStringLiteral("/opt/torvane"));
        WindowRules filter;
        qApp->installEventFilter(&filter);
        menu.show();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QPushButton* button = menu.toolButtons.at(tool);
        QCOMPARE(button->isEnabled(), !title.isEmpty());
        QVERIFY(!title.isEmpty() || !menu.openTool(tool));
        if (title.isEmpty())
            return;
        menu.SSTab1->setCurrentWidget(button->parentWidget()->parentWidget());
        button->setFocus(Qt::TabFocusReason);
        if (key == Qt::Key_Return)
            QTest::keyClick(button, Qt::Key_Return);
        else if (key)
            QTest::keyClick(&menu, Qt::Key(key), Qt::AltModifier);  // the underlined letter
        else
            button->click();
        QTRY_VERIFY(ComponentDialog(tool));  // an access key animates the click
        QTEST(menu.windowTitle(), "title");
        QVERIFY(!menu.isEnabled() && menu.isMinimized());
        QVERIFY(ComponentDialog(tool)->close());
        QCOMPARE(menu.windowTitle(), QStringLiteral("Torvane"));
        QVERIFY(menu.isEnabled() && !menu.isMinimized());
        QVERIFY(fakes.boxes.shown.empty());  // idle: no question on the way out
    }
};

QTEST_MAIN(MenuTest)
#include "menu_test.moc"
