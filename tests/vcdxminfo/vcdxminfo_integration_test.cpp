// The real vcdxminfo through the dialog, on a clip of the shared media, in folders whose
// names hold blanks, shell characters and non-ASCII letters.

#include "inspect/frm_vcdxminfo.h"
#include "tests/support/job_driver.h"

using namespace torvane;
using namespace torvane::test;

class VcdxminfoIntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void reportIsWritten();
};

void VcdxminfoIntegrationTest::reportIsWritten() {
    DialogFixture<frm_vcdxminfo> f("vcdxminfo", TORVANE_APP_DIR);
    const QString input = FreshFolder(f.work.path(), "in dir & co; $HOME") + "/Ünïcødé clip.mpg";
    const QString output = FreshFolder(f.work.path(), "out $dir; & <x>") + "/-rapport été.xml";
    QVERIFY(QFile::copy(Media("clip-vcd.mpg"), input));
    f.prepare(nullptr, "", input, output);
    QVERIFY(f.go(vbYes));

    const QByteArray report = ReadBytes(output);
    QVERIFY2(report.startsWith("<mpeg-info src="), report.left(200).constData());
    QVERIFY(report.contains("<horizontal-size>352</horizontal-size>"));
    QCOMPARE(f.fakes.desktop.viewed, QStringList{output});
}

QTEST_MAIN(VcdxminfoIntegrationTest)
#include "vcdxminfo_integration_test.moc"
