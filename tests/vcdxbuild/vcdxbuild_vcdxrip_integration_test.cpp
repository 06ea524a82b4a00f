// The real tools through the two dialogs: the shared descriptor, which names its clip from
// its own folder, built into an image without subindices in its cue sheet, and the image
// ripped back into the clip, byte for byte; in folders with blanks, shell characters and
// non-ASCII letters.

#include "author/frm_vcdxbuild.h"
#include "rip/frm_vcdxrip.h"
#include "tests/support/job_driver.h"

#include <QRegularExpression>

using namespace torvane;
using namespace torvane::test;

class VcdxbuildVcdxripIntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void buildThenRipGivesTheClipBack();
};

void VcdxbuildVcdxripIntegrationTest::buildThenRipGivesTheClipBack() {
    DialogFixture<frm_vcdxbuild> build("vcdxbuild", TORVANE_APP_DIR);
    const QString source = FreshFolder(build.work.path(), "src ü & co"),
                  images = FreshFolder(build.work.path(), "img; $x <y>"),
                  rip = FreshFolder(build.work.path(), "rip été |z");
    const QString xml = source + "/-vidéo cd.xml", image = images + "/bild Ä.bin";
    QVERIFY(QFile::copy(Media("vcd.xml"), xml) &&
            QFile::copy(Media("clip-vcd.mpg"), source + "/clip-vcd.mpg"));
    build.prepare(nullptr, "chk_subindex", xml, image);
    QVERIFY(build.go(vbNo));
    // The size printed back is the tool's own, without zeros in front.
    const QStringList size = QRegularExpression(R"(finished ok.*\[0?(\d+):0?(\d+):0?(\d+)\]\s*$)")
                                 .match(QString::fromUtf8(ReadBytes(images + "/log.txt")))
                                 .capturedTexts();
    QCOMPARE(size.size(), 4);
    QCOMPARE(build.fakes.boxes.shown.size(), 1u);
    QCOMPARE(build.fakes.boxes.shown[0].text,
             QStringLiteral("The process has finished successfully!\r\rThe image size is: %1 "
                            "minutes, %2 seconds, %3 sectors.\r\rIt should fit on a 21min/180MB "
                            "(8 cm) CD-R disc.\r\rDo you want to read the log file?")
                 .arg(size[1], size[2], size[3]));
    const QByteArray cue = ReadBytes(images + "/bild Ä.cue");
    QCOMPARE(cue.count("    INDEX 01 "), 2);
    QVERIFY2(!cue.contains("FLAGS DCP"), cue.constData());

    DialogFixture<frm_vcdxrip> ripper("vcdxrip", TORVANE_APP_DIR);
    ripper.prepare(nullptr, "", image, rip + "/disc ö.xml");
    QVERIFY(ripper.go(vbNo));
    QCOMPARE(ripper.fakes.boxes.shown.size(), 1u);
    QCOMPARE(ripper.fakes.boxes.shown[0].text,
             "The process has finished successfully!\r\rDo you want to read the log file?");
    QVERIFY(ReadBytes(rip + "/disc ö.xml").contains("<sequence-items>"));
    QVERIFY(ReadBytes(rip + "/avseq01.mpg") == ReadBytes(Media("clip-vcd.mpg")));
    QVERIFY(!QFile::exists(rip + "/avseq02.mpg") && !QFile::exists(rip + "/run.bat"));
}

QTEST_MAIN(VcdxbuildVcdxripIntegrationTest)
#include "vcdxbuild_vcdxrip_integration_test.moc"
