// The main menu: each button's dialog, opened by a click, an access key or Enter, and back.

#include "about/mod_about.h"
#include "forms/window_rules.h"
#include "shell/frm_mainmenu.h"
#include "shell/start_file.h"
#include "tests/support/fake_services.h"
#include "tests/support/tool_run.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
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
        const QString tool = QTest::currentDataTag();
        test::FakeServices fakes;
        frm_mainmenu menu(fakes.services, QStringLiteral("/opt/torvane"));
        WindowRules filter;
        qApp->installEventFilter(&filter);
        menu.show();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QPushButton* button = menu.toolButtons.at(tool);
        QVERIFY(button->isEnabled());
        menu.SSTab1->setCurrentWidget(button->parentWidget()->parentWidget());
        button->setFocus(Qt::TabFocusReason);
        if (key == Qt::Key_Return)
            QTest::keyClick(button, Qt::Key_Return);
        else if (key)
            QTest::keyClick(&menu, Qt::Key(key), Qt::AltModifier);  // the underlined letter
        else
            button->click();
        QTRY_VERIFY(test::ComponentDialog(tool));  // an access key animates the click
        QTEST(menu.windowTitle(), "title");
        QVERIFY(!menu.isEnabled() && menu.isMinimized());
        QVERIFY(test::ComponentDialog(tool)->close());
        QCOMPARE(menu.windowTitle(), QStringLiteral("Torvane"));
        QVERIFY(menu.isEnabled() && !menu.isMinimized());
    }

    // Started with a file: its tool opens with the file in the input box, picked through the
    // box's Browse button without a dialog shown (the fake dialog would answer nothing); the
    // next Browse shows one.
    void startedWithFile_data() {
        QTest::addColumn<QString>("tool");  // empty: the menu alone
        const char* const rows[][2] = {{"/m/Disc.CUE", "subindex"}, {"/m/videocd.xml", "vcdxbuild"},
                                       {"/m/disc.bin", "vcdxrip"},  {"/m/disc.nrg", "vcdxrip"},
                                       {"/m/a.mpeg", "vcdxminfo"},  {"/m/a.m2v", "vcdxminfo"},
                                       {"/m/notes.txt", ""},        {"/m/mpg", ""},
                                       {"MPEG stream", "vcdxminfo"}};
        for (const auto& [file, tool] : rows)
            QTest::newRow(file) << QString(tool);
    }

    void startedWithFile() {
        QFETCH(QString, tool);
        QTemporaryDir dir;
        QString file = QTest::currentDataTag();
        if (!file.startsWith('/'))  // a file named for no tool, whose content tells its type
            QVERIFY(test::WriteBytes(file = dir.filePath(file), QByteArray("\0\0\1\xba", 4)));
        test::FakeServices fakes;
        ChosenFileDialogs files(fakes.files);
        Services services{fakes.boxes, files, fakes.desktop};
        frm_mainmenu menu(services, QStringLiteral("/opt/torvane"));
        menu.show();
        QWidget* dialog = OpenToolWithFile(menu, files, file);
        QCOMPARE(dialog != nullptr, !tool.isEmpty());
        if (!dialog)
            return;
        QCOMPARE(dialog, test::ComponentDialog(tool));  // and no other
        auto* input = dialog->findChild<QLineEdit*>(QStringLiteral("txt_input"));
        QCOMPARE(input->text(), file);
        fakes.files.names.push_back(QStringLiteral("/m/other"));
        dialog->findChild<QPushButton*>(QStringLiteral("cmd_input"))->click();
        QCOMPARE(input->text(), QStringLiteral("/m/other"));
        QVERIFY(dialog->close());
    }
};

QTEST_MAIN(MenuTest)
#include "menu_test.moc"
