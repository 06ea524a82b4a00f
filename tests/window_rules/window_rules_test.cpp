// The rules every window keeps: keys go to the focused control or open list before any
// form shortcut, and a disabled window is out of the window manager's reach.

#include "forms/window_rules.h"
#include "about/mod_about.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"

#include <QComboBox>
#include <QTimer>

using namespace torvane;
using namespace torvane::test;

class WindowRulesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qApp->installEventFilter(new WindowRules(qApp)); }

    void keys_data() {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<QString>("focus");   // the control given the focus; empty: as opened
        QTest::addColumn<int>("key");         // pressed there; 0: none
        QTest::addColumn<QString>("result");  // the control with the focus then; empty: closed
        const auto row = [](const char* name, const char* tool, const char* focus, int key,
                            const char* result) {
            QTest::newRow(name) << QString(tool) << QString(focus) << key << QString(result);
        };
        row("Enter on Cancel", "vcdxgen", "cmd_cancel", Qt::Key_Return, "");
        row("Enter on Browse", "vcdimager", "cmd_output", Qt::Key_Enter, "txt_output=/picked");
        row("Tab into the type group", "vcdxgen", "cmd_output", Qt::Key_Tab, "opt_vcd2");
        row("opened", "cdxa2mpeg", "", 0, "cmd_about");
        row("Escape in the drive list", "lkvcdxrip", "list_driver", Qt::Key_Escape, "list_driver");
    }

    void keys() {
        QFETCH(QString, tool);
        QFETCH(QString, focus);
        QFETCH(int, key);
        QFETCH(QString, result);
        DialogFixture<QWidget> f(tool.toUtf8().constData());
        f.fakes.files.names = {QStringLiteral("/picked")};
        QPointer<QWidget> dialog = &f.dialog;
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QWidget* target = focus.isEmpty() ? dialog->focusWidget() : Child(*dialog, focus);
        target->setEnabled(true);
        target->setFocus(Qt::TabFocusReason);
        if (auto* list = qobject_cast<QComboBox*>(target)) {
            list->showPopup();
            QTRY_VERIFY(QApplication::activePopupWidget());
            target = QApplication::activePopupWidget()->focusWidget();
        }
        // A form's default button that took the key would open its modal list of files.
        bool defaultPressed = false;
        QTimer guard;
        guard.setSingleShot(true);
        connect(&guard, &QTimer::timeout, [&] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                defaultPressed = true;
                modal->hide();
            }
        });
        guard.start(0);
        if (key)
            QTest::keyClick(target, Qt::Key(key));
        QVERIFY(!defaultPressed);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(bool(dialog) && dialog->isVisible(), !result.isEmpty());
        if (result.contains('='))
            QCOMPARE(Child(*dialog, result.section('=', 0, 0))->property("text").toString(),
                     result.section('=', 1));
        else if (!result.isEmpty())
            QCOMPARE(QApplication::focusWidget()->objectName(), result);
    }

    // The window manager's close of a greyed window: the tool dialog behind its About box
    // and the menu behind the dialog stay; the box, once closed, gives the dialog back.
    void disabledWindowsStay() {
        FakeServices fakes;
        frm_mainmenu menu(fakes.services, QDir::tempPath());
        QWidget& dialog = *menu.openTool(QStringLiteral("vcdxgen"));
        qobject_cast<QPushButton*>(Child(dialog, "cmd_about"))->click();
        QVERIFY(!dialog.isEnabled());
        for (QWidget* window : {static_cast<QWidget*>(&menu), &dialog})
            QVERIFY(!window->close());
        QWidget* box = test::ComponentDialog(QStringLiteral("about_component"));
        QVERIFY(box && box->close());
        fakes.boxes.answers = {vbYes};
        QVERIFY(dialog.close() && menu.isEnabled());
    }

private:
    static QWidget* Child(QWidget& dialog, const QString& name) {
        auto* child = dialog.findChild<QWidget*>(name);
        Q_ASSERT(child);
        return child;
    }
};

QTEST_MAIN(WindowRulesTest)
#include "window_rules_test.moc"
