// The VCDXMINFO dialog's own part: the order of its checks at Go, and its interlock. The
// job itself runs in the integration test, on the real tool.

#include "inspect/frm_vcdxminfo.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class VcdxminfoDialogTest : public QObject {
    Q_OBJECT
private slots:
    void goRefusesInOrder_data();
    void goRefusesInOrder();
    void apsGovernsRelaxed();
};

void VcdxminfoDialogTest::goRefusesInOrder_data() {
    AddRefusalColumns();
    RefusalRow("nothing set: the output first", "", "", "You have not set an output file!");
    RefusalRow("no input", "", "r.xml", "You have not loaded an input XML file!");
    RefusalRow("a line feed in the input", "/m/a\nb.mpg", "r.xml",
               "This file name cannot be passed to the tool:");
    RefusalRow("a quote in the output", "/m/a.mpg", "say \"hi\".xml",
               "This file name cannot be passed to the tool:");
    RefusalRow("an output folder that does not exist", "/m/a.mpg", "gone/r.xml",
               "The folder does not exist:");
    RefusalRow("an output folder that cannot be written", "/m/a.mpg", "/proc/self/r.xml",
               "The folder cannot be written to:");
}

void VcdxminfoDialogTest::goRefusesInOrder() {
    QTemporaryDir work;
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, work.path());
    auto* dialog = qobject_cast<frm_vcdxminfo*>(menu.openTool(QStringLiteral("vcdxminfo")));
    PickAndExpectRefusal(fakes, *dialog, dialog->frame, work.path());
    QVERIFY(dialog->close());
}

void VcdxminfoDialogTest::apsGovernsRelaxed() {
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral("/app"));
    auto* dialog = qobject_cast<frm_vcdxminfo*>(menu.openTool(QStringLiteral("vcdxminfo")));
    dialog->chk_apsrelaxed->click();
    dialog->chk_aps->click();
    QVERIFY(!dialog->chk_apsrelaxed->isEnabled());
    QVERIFY(dialog->chk_apsrelaxed->isChecked());  // kept for when APS comes back
    dialog->chk_aps->click();
    QVERIFY(dialog->chk_apsrelaxed->isEnabled());
    QVERIFY(dialog->close());
}

QTEST_MAIN(VcdxminfoDialogTest)
#include "vcdxminfo_dialog_test.moc"
