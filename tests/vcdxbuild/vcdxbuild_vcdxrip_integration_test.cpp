// The real tools through the two dialogs: clips made by ffmpeg, a descriptor made by
// vcdxgen.exe, an image built by the VCDXBUILD dialog with the subindices removed from its
// cue sheet, and that image taken apart again by the VCDXRIP dialog into the descriptor
// and the clips, byte for byte. Once with plain names, once with names that hold blanks,
// shell characters, a leading dash and non-ASCII letters.

#include "author/frm_vcdxbuild.h"
#include "rip/frm_vcdxrip.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class VcdxbuildVcdxripIntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void buildThenRipGivesTheClipsBack_data();
    void buildThenRipGivesTheClipsBack();

private:
    struct Folders {
        QString source, image, rip;
    };
    QString makeDescriptor(const Folders& folders, const QStringList& clipNames,
                           const QString& xmlName);
    void build(const QString& xml, const QString& image);
    void rip(const QString& image, const QString& xml);
    bool runJob(JobFrame& frame);

    QTemporaryDir work_;
    QStringList clips_;  // made once, copied under each row's names
    FakeServices fakes_;
    std::unique_ptr<frm_mainmenu> menu_;
};

namespace {

const QString kToolFolder = QStringLiteral(TORVANE_APP_DIR "/VCDImager/");

// The size line the dialog must print back: the tool's own figures, without zeros in front.
QString SizeLineOfLog(const QByteArray& log) {
    static const QRegularExpression field(
        QStringLiteral(R"(finished ok.*\[(\d\d):(\d\d)[:.](\d\d)\]\s*$)"));
    const QRegularExpressionMatch match = field.match(QString::fromLocal8Bit(log));
    if (!match.hasMatch())
        return QStringLiteral("no size field in the log");
    return QStringLiteral("The image size is: %1 minutes, %2 seconds, %3 sectors.")
        .arg(match.captured(1).toInt())
        .arg(match.captured(2).toInt())
        .arg(match.captured(3).toInt());
}

}  // namespace

void VcdxbuildVcdxripIntegrationTest::initTestCase() {
    UseBuiltInterpreter();
    for (const char* tool : {"vcdxgen.exe", "vcdxbuild.exe", "vcdxrip.exe"})
        QVERIFY2(QFile::exists(kToolFolder + QLatin1String(tool)), tool);
    for (const char* seconds : {"2", "3"}) {
        clips_ << work_.filePath(QStringLiteral("clip%1.mpg").arg(QLatin1String(seconds)));
        QCOMPARE(
            QProcess::execute(QStringLiteral(TORVANE_FIXTURES "/make-media"),
                              {QStringLiteral("ntsc-vcd"), QLatin1String(seconds), clips_.last()}),
            0);
    }
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, QStringLiteral(TORVANE_APP_DIR));
}

void VcdxbuildVcdxripIntegrationTest::buildThenRipGivesTheClipsBack_data() {
    QTest::addColumn<QString>("row");  // a folder of its own for each row
    QTest::addColumn<QStringList>("names");
    QTest::newRow("plain") << QStringLiteral("plain")
                           << QStringList{"src",     "img",         "rip",       "one.mpg",
                                          "two.mpg", "videocd.xml", "image.bin", "disc.xml"};
    QTest::newRow("blanks, shell characters, non-ASCII")
        << QStringLiteral("Ünïcødé & co")
        << QStringList{"src ü & co",    "img; $x <y>",  "rip été |z", "-clip été.mpg",
                       "zweite Ω'.mpg", "vidéo cd.xml", "bild Ä.bin", "disc ö.xml"};
}

void VcdxbuildVcdxripIntegrationTest::buildThenRipGivesTheClipsBack() {
    QFETCH(QString, row);
    QFETCH(QStringList, names);
    const QString base = work_.filePath(row) + QLatin1Char('/');
    const Folders folders{base + names[0] + QLatin1Char('/'), base + names[1] + QLatin1Char('/'),
                          base + names[2] + QLatin1Char('/')};
    for (const QString& folder : {folders.source, folders.image, folders.rip})
        QVERIFY(QDir().mkpath(folder));

    const QString xml = makeDescriptor(folders, {names[3], names[4]}, names[5]);
    QVERIFY(QFile::exists(xml));
    const QString image = folders.image + names[6];
    build(xml, image);
    if (QTest::currentTestFailed())
        return;
    rip(image, folders.rip + names[7]);
    if (QTest::currentTestFailed())
        return;

    // One media file per track, each byte for byte its source clip.
    const QByteArray ripped = ReadFile(folders.rip + names[7]);
    QVERIFY2(ripped.contains("<sequence-items>"), ripped.constData());
    QCOMPARE(ReadFile(folders.rip + QStringLiteral("avseq01.mpg")), ReadFile(clips_[0]));
    QCOMPARE(ReadFile(folders.rip + QStringLiteral("avseq02.mpg")), ReadFile(clips_[1]));
    QVERIFY(!QFile::exists(folders.rip + QStringLiteral("avseq03.mpg")));
}

QString VcdxbuildVcdxripIntegrationTest::makeDescriptor(const Folders& folders,
                                                        const QStringList& clipNames,
                                                        const QString& xmlName) {
    QByteArray list;
    for (int i = 0; i < clipNames.size(); ++i) {
        const QString clip = folders.source + clipNames[i];
        QFile::remove(clip);
        if (!QFile::copy(clips_[i], clip))
            return {};
        list += (i ? "\r\n\"" : "\"") + QFile::encodeName(clip) + '"';
    }
    QFile listFile(folders.source + QStringLiteral("list.txt"));
    if (!listFile.open(QIODevice::WriteOnly))
        return {};
    listFile.write(list);
    listFile.close();

    const QString xml = folders.source + xmlName;
    QProcess vcdxgen;
    vcdxgen.setWorkingDirectory(folders.source);
    vcdxgen.start(kToolFolder + QStringLiteral("vcdxgen.exe"),
                  {QStringLiteral("--output-file=") + xml, QStringLiteral("@list.txt")});
    vcdxgen.waitForFinished(kJobStepTimeoutMs);
    return xml;
}

bool VcdxbuildVcdxripIntegrationTest::runJob(JobFrame& frame) {
    if (!WaitForPause(frame))
        return false;
    fakes_.boxes.answers = {vbNo};
    PressKeyInConsole(frame);
    return WaitForIdle(frame);
}

void VcdxbuildVcdxripIntegrationTest::build(const QString& xml, const QString& image) {
    auto* dialog = qobject_cast<frm_vcdxbuild*>(menu_->openTool(QStringLiteral("vcdxbuild")));
    QVERIFY(dialog);
    fakes_.boxes.shown.clear();
    fakes_.files.names = {xml, image};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    dialog->chk_subindex->click();
    dialog->cmd_rip->click();
    QVERIFY(runJob(dialog->frame));

    const QString folder = QFileInfo(image).path() + QLatin1Char('/');
    const QByteArray log = ReadFile(folder + QStringLiteral("log.txt"));
    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text,
             QStringLiteral("The process has finished successfully!\r\r") + SizeLineOfLog(log) +
                 QStringLiteral("\r\rIt should fit on a 21min/180MB (8 cm) CD-R disc.\r\r"
                                "Do you want to read the log file?"));
    QVERIFY(QFileInfo(image).size() > 0);
    const QByteArray cue = ReadFile(folder + QFileInfo(image).completeBaseName() + ".cue");
    QCOMPARE(cue.count("    INDEX 01 "), 3);
    QVERIFY2(!cue.contains("FLAGS DCP") && !cue.contains("INDEX 02"), cue.constData());
    QVERIFY(!QFile::exists(QFileInfo(xml).path() + QStringLiteral("/run.bat")));
    QVERIFY(dialog->close());
}

void VcdxbuildVcdxripIntegrationTest::rip(const QString& image, const QString& xml) {
    auto* dialog = qobject_cast<frm_vcdxrip*>(menu_->openTool(QStringLiteral("vcdxrip")));
    QVERIFY(dialog);
    fakes_.boxes.shown.clear();
    fakes_.files.names = {image, xml};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    dialog->cmd_rip->click();
    QVERIFY(runJob(dialog->frame));

    QCOMPARE(fakes_.boxes.shown.size(), 1u);
    QCOMPARE(fakes_.boxes.shown[0].text,
             QStringLiteral(
                 "The process has finished successfully!\r\rDo you want to read the log file?"));
    QVERIFY(!QFile::exists(QFileInfo(xml).path() + QStringLiteral("/run.bat")));
    QVERIFY(dialog->close());
}

QTEST_MAIN(VcdxbuildVcdxripIntegrationTest)
#include "vcdxbuild_vcdxrip_integration_test.moc"
