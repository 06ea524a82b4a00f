// The boxes and tips of the tool dialogs as an X server shows them: each is read back from
// the screen itself (the server's frame buffer) and must show what the window drew.

#include "author/frm_vcdxgen.h"
#include "forms/desktop_services.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <functional>

using namespace torvane;

namespace {

constexpr int kWindowTimeoutMs = 10000;

// The share of pixels that the screen shows as the window itself drew them.
double ShownAsDrawn(QWidget& window) {
    const QImage drawn = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRect place(window.mapToGlobal(QPoint(0, 0)), window.size());
    const QImage shown = window.screen()
                             ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    if (shown.size() != drawn.size())
        return 0;
    qint64 same = 0;
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            same += drawn.pixel(x, y) == shown.pixel(x, y);
    return double(same) / (drawn.width() * drawn.height());
}

// Runs `step` once on the first shown window that `matches`, after it has been drawn.
void WhenShown(std::function<bool(QWidget&)> matches, std::function<void(QWidget&)> step) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, poll, [poll, matches, step] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && matches(*window) && QTest::qWaitForWindowExposed(window)) {
                poll->deleteLater();
                poll->disconnect();
                QTest::qWait(300);  // the first frame reaches the server
                step(*window);
                return;
            }
        }
    });
    poll->start(50);
}

}  // namespace

class X11DrawnTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        menu = std::make_unique<frm_mainmenu>(services, app.path());
        dialog = qobject_cast<frm_vcdxgen*>(menu->openTool(QStringLiteral("vcdxgen")));
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }
    void cleanup() {
        dialog->close();
        menu.reset();
    }

    // A box over the list dialog, over the tool dialog, over the greyed menu; the box of Go;
    // a tool tip. Each is read back from the screen while it is up.
    void x11_windowIsDrawn_data() {
        QTest::addColumn<QString>("window");
        QTest::newRow("question over the list dialog") << "Question";
        QTest::newRow("box of Go") << "Information";
        QTest::newRow("tool tip") << "QTipLabel";
    }
    void x11_windowIsDrawn() {
        QFETCH(QString, window);
        double shown = -1;
        WhenShown(
            [window](QWidget& w) {
                return w.windowTitle() == window || w.inherits(qPrintable(window));
            },
            [&shown](QWidget& w) {
                shown = ShownAsDrawn(w);
                QTest::keyClick(&w, Qt::Key_Escape);
            });
        if (window == "Question") {
            WhenShown([](QWidget& w) { return w.windowTitle() == "Load MPEG files..."; },
                      [](QWidget& list) {
                          list.findChild<QPushButton*>(QStringLiteral("cmd_clear"))->click();
                          list.close();
                      });
            dialog->cmd_input->click();
        } else if (window == "Information") {
            dialog->cmd_rip->click();
        } else {
            QToolTip::showText(dialog->cmd_input->mapToGlobal(QPoint(4, 4)),
                               dialog->cmd_input->toolTip(), dialog->cmd_input);
        }
        QVERIFY(QTest::qWaitFor([&shown] { return shown >= 0; }, kWindowTimeoutMs));
        QVERIFY2(shown > 0.95, qPrintable(QString::number(shown)));
    }

private:
    QTemporaryDir app;
    QtMessageBoxes boxes;
    test::FakeFileDialogs files;
    test::FakeDesktop desktop;
    Services services{boxes, files, desktop};
    std::unique_ptr<frm_mainmenu> menu;
    QPointer<frm_vcdxgen> dialog;
};

QTEST_MAIN(X11DrawnTest)
#include "drawn_test.moc"
