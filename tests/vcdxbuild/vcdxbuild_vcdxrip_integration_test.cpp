// The real tools through the two dialogs: a descriptor made by vcdxgen.exe from two clips,
// an image built by the VCDXBUILD dialog with the subindices removed from its cue sheet,
// and that image taken apart again by the VCDXRIP dialog into the descriptor and the
// clips, byte for byte; in folders whose names hold blanks, shell characters, a leading
// dash and non-ASCII letters.

#include "author/frm_vcdxbuild.h"
#include "rip/frm_vcdxrip.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/job_driver.h"
#include "tests/support/tool_run.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRegularExpression>

using namespace torvane;
using namespace torvane::test;

class VcdxbuildVcdxripIntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void buildThenRipGivesTheClipsBack();
};

void VcdxbuildVcdxripIntegrationTest::buildThenRipGivesTheClipsBack() {
    UseBuiltInterpreter();
    QTemporaryDir work;
    const QString source = FreshFolder(work.path(), "src ü & co"),
                  images = FreshFolder(work.path(), "img; $x <y>"),
                  rip = FreshFolder(work.path(), "rip été |z");
    const QStringList clips{source + "/-clip été.mpg", source + "/zweite Ω'.mpg"};
    QVERIFY(QFile::copy(Media("clip-vcd.mpg"), clips[0]) &&
            QFile::copy(Media("clip-vcd2.mpg"), clips[1]));
    QVERIFY(WriteBytes(source + "/list.txt", Quoted(clips[0]) + "\r\n" + Quoted(clips[1])));
    const QString xml = source + "/vidéo cd.xml", image = images + "/bild Ä.bin";
    QCOMPARE(
        RunProgram(AppTool("vcdxgen.exe"), {"--output-file=" + xml, "@list.txt"}, source).exitCode,
        0);

    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    auto* build = qobject_cast<frm_vcdxbuild*>(menu.openTool("vcdxbuild"));
    QVERIFY(build);
    fakes.files.names = {xml, image};
    build->cmd_input->click();
    build->cmd_output->click();
    build->chk_subindex->click();
    QVERIFY(RunJobToIdle(*build->cmd_rip, build->frame, fakes.boxes, vbNo));
    // The size printed back is the tool's own, without zeros in front.
    const QRegularExpressionMatch size =
        QRegularExpression(R"(finished ok.*\[(\d\d):(\d\d):(\d\d)\]\s*$)")
            .match(QString::fromUtf8(ReadBytes(images + "/log.txt")));
    QVERIFY(size.hasMatch());
    QCOMPARE(fakes.boxes.shown.size(), 1u);
    QCOMPARE(fakes.boxes.shown[0].text,
             QStringLiteral("The process has finished successfully!\r\rThe image size is: %1 "
                            "minutes, %2 seconds, %3 sectors.\r\rIt should fit on a 21min/180MB "
                            "(8 cm) CD-R disc.\r\rDo you want to read the log file?")
                 .arg(size.captured(1).toInt())
                 .arg(size.captured(2).toInt())
                 .arg(size.captured(3).toInt()));
    const QByteArray cue = ReadBytes(images + "/bild Ä.cue");
    QCOMPARE(cue.count("    INDEX 01 "), 3);
    QVERIFY2(!cue.contains("FLAGS DCP") && !cue.contains("INDEX 02"), cue.constData());
    QVERIFY(!QFile::exists(source + "/run.bat") && build->close());

    auto* ripper = qobject_cast<frm_vcdxrip*>(menu.openTool("vcdxrip"));
    QVERIFY(ripper);
    fakes.boxes.shown.clear();
    fakes.files.names = {image, rip + "/disc ö.xml"};
    ripper->cmd_input->click();
    ripper->cmd_output->click();
    QVERIFY(RunJobToIdle(*ripper->cmd_rip, ripper->frame, fakes.boxes, vbNo));
    QCOMPARE(fakes.boxes.shown.size(), 1u);
    QCOMPARE(fakes.boxes.shown[0].text,
             QStringLiteral(
                 "The process has finished successfully!\r\rDo you want to read the log file?"));
    QVERIFY(ReadBytes(rip + "/disc ö.xml").contains("<sequence-items>"));
    QVERIFY(ReadBytes(rip + "/avseq01.mpg") == ReadBytes(clips[0]));
    QVERIFY(ReadBytes(rip + "/avseq02.mpg") == ReadBytes(clips[1]));
    QVERIFY(!QFile::exists(rip + "/avseq03.mpg") && !QFile::exists(rip + "/run.bat"));
    QVERIFY(ripper->close());
}

QTEST_MAIN(VcdxbuildVcdxripIntegrationTest)
#include "vcdxbuild_vcdxrip_integration_test.moc"
