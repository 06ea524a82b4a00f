// The real vcdxminfo through the dialog, on clips made by ffmpeg at test time, with plain
// paths and with paths that hold blanks, shell characters and non-ASCII letters.

#include "inspect/frm_vcdxminfo.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/fake_services.h"
#include "tests/support/job_driver.h"

#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class VcdxminfoIntegrationTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void reportIsWritten_data();
    void reportIsWritten();

private:
    QTemporaryDir work_;
    QString clip_;
};

void VcdxminfoIntegrationTest::initTestCase() {
    UseBuiltInterpreter();
    QVERIFY(QFile::exists(QStringLiteral(TORVANE_APP_DIR "/VCDImager/vcdxminfo.exe")));
    clip_ = work_.path() + QStringLiteral("/clip.mpg");
    QCOMPARE(QProcess::execute(QStringLiteral(TORVANE_FIXTURES "/make-media"),
                               {QStringLiteral("ntsc-vcd"), QStringLiteral("2"), clip_}),
             0);
}

void VcdxminfoIntegrationTest::reportIsWritten_data() {
    QTest::addColumn<QString>("inputName");
    QTest::addColumn<QString>("outputName");
    QTest::addColumn<int>("answer");  // to "open the XML file now?"
    QTest::newRow("plain") << "in/clip.mpg"
                           << "out/report.xml" << vbYes;
    QTest::newRow("blanks, shell characters, non-ASCII")
        << "in dir & co; $HOME/Ünïcødé clip.mpg"
        << "out $dir; & <x>/-rapport été.xml" << vbNo;
}

void VcdxminfoIntegrationTest::reportIsWritten() {
    QFETCH(QString, inputName);
    QFETCH(QString, outputName);
    QFETCH(int, answer);
    const QString input = work_.path() + QLatin1Char('/') + inputName;
    const QString output = work_.path() + QLatin1Char('/') + outputName;
    QVERIFY(QDir().mkpath(QFileInfo(input).path()));
    QVERIFY(QDir().mkpath(QFileInfo(output).path()));
    QFile::remove(input);
    QVERIFY(QFile::copy(clip_, input));

    FakeServices fakes;
    frm_mainmenu menu(fakes.services, QStringLiteral(TORVANE_APP_DIR));
    auto* dialog = qobject_cast<frm_vcdxminfo*>(menu.openTool(QStringLiteral("vcdxminfo")));
    QVERIFY(dialog);
    fakes.files.names = {input, output};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    dialog->cmd_rip->click();
    QVERIFY(WaitForPause(dialog->frame));
    fakes.boxes.answers = {answer};
    PressKeyInConsole(dialog->frame);
    QVERIFY(WaitForIdle(dialog->frame));

    const QByteArray report = ReadFile(output);
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
