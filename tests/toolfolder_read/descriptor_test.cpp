// vcdxrip.exe on a lone BIN of 2336-byte sectors: the descriptor's comment names the
// arguments the adapter was given, the user's image among them, not its temporary cue
// sheet; the rest is what the real tool writes from the disc's own cue sheet.

#include "read_fixture.h"

#include <QTest>

using namespace torvane::test;

class DescriptorTest : public QObject {
    Q_OBJECT
private slots:
    void theCommentNamesTheUsersImage();
};

void DescriptorTest::theCommentNamesTheUsersImage() {
    ReadFixture fixture;
    QVERIFY(fixture.make());
    const QString out = FreshFolder(fixture.scratch(), "out"),
                  tmp = FreshFolder(fixture.scratch(), "tmp");
    const QString image = LoneCopy(fixture.image("svcd-2336.bin"),
                                   FreshFolder(fixture.scratch(), "dl -- x & ü"), "-disc--1.bin");
    const QStringList args = {"--sector-2336", "-q", "--bin-file=" + image,
                              "--output-file=" + out + "/videocd.xml"};
    const AdapterRun run = RunAdapter(TORVANE_APP_DIR "/VCDImager/vcdxrip.exe", args, out, tmp);
    QVERIFY2(!run.crashed && run.exitCode == 0, run.errors.constData());
    QCOMPARE(EntriesOf(out).filter("videocd.xml"), QStringList{"videocd.xml"});
    QByteArray xml = FilesIn(out).value("videocd.xml");
    QByteArray real = FilesIn(fixture.image("ref-svcd")).value("ref.xml");
    const QByteArray comment = xml.split('\n').value(2);
    QCOMPARE(xml.replace(comment, ""), real.replace(real.split('\n').value(2), ""));
    QCOMPARE(comment.right(comment.size() - comment.indexOf(" -=")),
             " " + args.join(' ').toUtf8().replace("--", "-=") + " -->");
}

QTEST_MAIN(DescriptorTest)
#include "descriptor_test.moc"
