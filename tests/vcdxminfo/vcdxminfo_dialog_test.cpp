// The VCDXMINFO dialog: its script with either separator, checks at Go, interlock and report.

#include "inspect/frm_vcdxminfo.h"
#include "inspect/vcdxminfo_builder.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QPushButton>

using namespace torvane;
using namespace torvane::test;

namespace {

// The whole script: the fixed lines around the job's description and command in `lines`.
QStringList Script(const QString& lines) {
    const int command = lines.lastIndexOf('\n') + 1;
    return QStringLiteral(
               "echo off\ncls\necho VCDXMINFO Tool - Batch File (quelmora productions)\n"
               "echo ==================================================\n%1\necho.\n%2\n"
               "echo.\necho Finished!\npause\ncls\necho ***end***")
        .arg(lines.left(command - 1), lines.mid(command))
        .split('\n');
}

// A menu over fake services and an application folder with no tool yet, and its dialog.
struct Fixture {
    FakeServices fakes;
    FakeAppFolder app;
    QTemporaryDir work;
    frm_mainmenu menu{fakes.services, app.path()};
    frm_vcdxminfo& dialog = *qobject_cast<frm_vcdxminfo*>(menu.openTool("vcdxminfo"));
    ~Fixture() { CloseDialog(&dialog, fakes.boxes); }
};

}  // namespace

class VcdxminfoDialogTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { UseBuiltInterpreter(); }
    void commandAndScript_data();
    void commandAndScript();
    void goRefusesInOrder_data();
    void goRefusesInOrder();
    void job();
};

void VcdxminfoDialogTest::commandAndScript_data() {
    QTest::addColumn<VcdxminfoInputs>("in");
    QTest::addColumn<QString>("jobDir");
    QTest::addColumn<QString>("script");  // less its fixed lines; the command comes last
    const VcdxminfoInputs windows{"D:\\in\\clip.mpg",     "D:\\out\\report.xml", true, true, false,
                                  "C:\\App\\VCDImager\\", QLatin1Char('\\')};
    const VcdxminfoInputs posix{"/in/clip one.mpg",    "/out/report.xml", false, true, true,
                                "/opt/app/VCDImager/", QLatin1Char('/')};
    QTest::newRow("generic and aps") << windows << "D:\\out\\"
                                     << R"(echo Input MPEG File:  D:\in\clip.mpg
echo Output XML File:  report.xml
echo Option switches:  -i -a -v -p
"C:\App\VCDImager\vcdxminfo.exe" -i -a -v  -p --output-file="D:\out\report.xml" "D:\in\clip.mpg")";
    QTest::newRow("posix, relaxed aps alone") << posix << "/out/"
                                              << R"(echo Input MPEG File:  /in/clip one.mpg
echo Output XML File:  report.xml
echo Option switches:   -a --relaxed-aps -v -p
"/opt/app/VCDImager/vcdxminfo.exe"  -a --relaxed-aps -v  -p --output-file="/out/report.xml" "/in/clip one.mpg")";
}

void VcdxminfoDialogTest::commandAndScript() {
    QFETCH(VcdxminfoInputs, in);
    QFETCH(QString, jobDir);
    QFETCH(QString, script);
    const JobPlan plan = BuildVcdxminfoJob(in);
    QCOMPARE(plan.scriptLines, Script(script));
    QCOMPARE(plan.jobDir, jobDir);
    QCOMPARE(plan.scriptPath, jobDir + "run.bat");
}

void VcdxminfoDialogTest::goRefusesInOrder_data() {
    AddRefusalColumns();
    RefusalRow("nothing set: the output first", "", "", "You have not set an output file!");
    RefusalRow("no input", "", "r.xml", "You have not loaded an input XML file!");
    RefusalRow("a quote in the output", "/m/a.mpg", "say \"hi\".xml",
               "This file name cannot be passed to the tool:");
    RefusalRow("an output folder that does not exist", "/m/a.mpg", "gone/r.xml",
               "The folder does not exist:");
}

void VcdxminfoDialogTest::goRefusesInOrder() {
    Fixture f;
    PickAndExpectRefusal(f.fakes, f.dialog, f.dialog.frame, f.work.path());
}

// Without APS the relaxed tick is moot: grey, kept, and left out of the command.
void VcdxminfoDialogTest::job() {
    Fixture f;
    const QString args = f.work.filePath("args.txt"), input = f.work.filePath("-clip & co.mpg");
    const QString output = f.work.filePath("report; $x.xml");
    f.app.addRecordingTool("vcdxminfo.exe", args);
    f.fakes.files.names = {input, output};
    f.dialog.cmd_input->click();
    f.dialog.cmd_output->click();
    f.dialog.chk_apsrelaxed->click();
    f.dialog.chk_aps->click();
    QVERIFY(!f.dialog.chk_apsrelaxed->isEnabled() && f.dialog.chk_apsrelaxed->isChecked());
    QVERIFY(RunJobToIdle(*f.dialog.cmd_rip, f.dialog.frame, f.fakes.boxes, vbYes));

    QCOMPARE(RecordedArguments(args),
             (QStringList{"-i", "-v", "-p", "--output-file=" + output, input}));
    QCOMPARE(f.fakes.boxes.shown.size(), 1u);
    QCOMPARE(f.fakes.boxes.shown[0].title, "Question");
    QCOMPARE(f.fakes.boxes.shown[0].text,
             "Finished!\r\rDo you want to open the XML file now?\r\n\r\n" + output);
    QCOMPARE(f.fakes.desktop.viewed, QStringList{output});
    QVERIFY(!f.dialog.chk_apsrelaxed->isEnabled() && f.dialog.chk_apsrelaxed->isChecked());
}

QTEST_MAIN(VcdxminfoDialogTest)
#include "vcdxminfo_dialog_test.moc"
