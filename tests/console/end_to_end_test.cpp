// A job script run by the real torvane-cmd in the console, as a tool dialog runs it: the
// marker appears at row 0 only after a key was pressed at "pause".

#include "job/cconsole.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

using torvane::CConsole;

namespace {

const QString kMarker = QStringLiteral("***end***");
constexpr int kWaitMs = 30000;

QByteArray JobScript(const QByteArray& middle) {
    return "echo off\r\ncls\r\necho VCDXMINFO Tool - Batch File\r\necho =====================\r\n"
           "echo.\r\n" +
           middle + "echo.\r\necho Finished!\r\npause\r\ncls\r\necho ***end***";
}

}  // namespace

class EndToEndTest : public QObject {
    Q_OBJECT
private slots:
    void theJobEndsAfterAKeyAtPause_data();
    void theJobEndsAfterAKeyAtPause();
};

void EndToEndTest::theJobEndsAfterAKeyAtPause_data() {
    QTest::addColumn<QByteArray>("middle");
    QTest::addColumn<QString>("rowAtPause");  // what the poll reads while the job waits
    QTest::newRow("nothing run") << QByteArray() << QStringLiteral("VCDXMINFO");
    QTest::newRow("a tool that cannot be found")
        << QByteArray("\"VCDImager/no such tool.exe\" --info \"a b.mpg\" > log.txt\r\n")
        << QStringLiteral("VCDXMINFO");
    QTest::newRow("a tool that prints a lot")
        << QByteArray("\"VCDImager/chatty.exe\"\r\n") << QStringLiteral("output li");
}

void EndToEndTest::theJobEndsAfterAKeyAtPause() {
    QFETCH(QByteArray, middle);
    QFETCH(QString, rowAtPause);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("VCDImager")));
    QFile tool(dir.filePath(QStringLiteral("VCDImager/chatty.exe")));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write(
        "#!/bin/sh\ni=0\nwhile [ $i -lt 4000 ]; do echo \"output line $i of a busy tool\"; "
        "i=$((i+1)); done\n");
    tool.close();
    tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile script(dir.filePath(QStringLiteral("run.bat")));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write(JobScript(middle));
    script.close();

    const QString oldCurrent = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    CConsole::setInterpreterPath(QStringLiteral(TORVANE_CMD_PATH));
    {
        CConsole console;
        console.setTitle(QStringLiteral("Torvane -- VCDXMINFO Tool"));
        console.setForeColor(2);
        console.setForeIntense(true);
        console.StartApp(QStringLiteral("run.bat"));
        QTRY_VERIFY_WITH_TIMEOUT(
            console.screenText().contains(QStringLiteral("Press any key to continue . . .")),
            kWaitMs);
        QCOMPARE(console.WordScan(), rowAtPause);
        QVERIFY(!console.screenText().contains(QStringLiteral("echo")));
        QTest::keyClick(console.window(), Qt::Key_Space);
        QTRY_COMPARE_WITH_TIMEOUT(console.WordScan(), kMarker, kWaitMs);
    }
    QDir::setCurrent(oldCurrent);
}

QTEST_MAIN(EndToEndTest)
#include "end_to_end_test.moc"
