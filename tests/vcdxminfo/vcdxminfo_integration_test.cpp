// The real vcdxminfo through the dialog, on a clip of the shared media, in folders whose
// names hold blanks, shell characters and non-ASCII letters.

#include "inspect/frm_vcdxminfo.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"
#include "tests/support/tool_run.h"

#include <QPushButton>

using namespace torvane;
using namespace torvane::test;

class VcdxminfoIntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void reportIsWritten_data();
    void reportIsWritten();
};

void VcdxminfoIntegrationTest::reportIsWritten_data() {
    QTest::addColumn<int>("answer");  // to "open the XML file now?"
    QTest::newRow("opened") << vbYes;
    QTest::newRow("not opened") << vbNo;
}

void VcdxminfoIntegrationTest::reportIsWritten() {
    QFETCH(int, answer);
    UseBuiltInterpreter();
    QTemporaryDir work;
    const QString input = FreshFolder(work.path(), "in dir & co; $HOME") + "/Ünïcødé clip.mpg";
    const QString output = FreshFolder(work.path(), "out $dir; & <x>") + "/-rapport été.xml";
    QVERIFY(QFile::copy(Media("clip-vcd.mpg"), input));

    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    auto* dialog = qobject_cast<frm_vcdxminfo*>(menu.openTool(QStringLiteral("vcdxminfo")));
    QVERIFY(dialog);
    fakes.files.names = {input, output};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    QVERIFY(RunJobToIdle(*dialog->cmd_rip, dialog->frame, fakes.boxes, answer));

    const QByteArray report = ReadBytes(output);
    QVERIFY2(report.startsWith("<mpeg-info src="), report.left(200).constData());
    QVERIFY(report.contains("<horizontal-size>352</horizontal-size>"));
    QCOMPARE(fakes.boxes.shown.size(), 1u);
    QCOMPARE(fakes.boxes.shown[0].title, QStringLiteral("Question"));
    QCOMPARE(fakes.boxes.shown[0].text,
             "Finished!\r\rDo you want to open the XML file now?\r\n\r\n" + output);
    QCOMPARE(fakes.desktop.viewed, answer == vbYes ? QStringList{output} : QStringList());
    QVERIFY(dialog->cmd_rip->isEnabled() && !QFile::exists(QFileInfo(output).path() + "/run.bat"));
    QVERIFY(dialog->close());
}

QTEST_MAIN(VcdxminfoIntegrationTest)
#include "vcdxminfo_integration_test.moc"
