// What every Go handler refuses before anything is written (paths that cannot be carried
// through a job script, folders that a job cannot write into), and the viewer's failure.

#include "job/job_paths.h"
#include "job/form_support.h"
#include "tests/support/fake_services.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;

class JobPathsTest : public QObject {
    Q_OBJECT
private slots:
    void unsafePaths_data();
    void unsafePaths();
    void unusableFolders();
    void aFileWithoutAViewerIsNamedInABox();
};

void JobPathsTest::unsafePaths_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    const QString quote = QStringLiteral("It holds a double quote.");
    const QString control = QStringLiteral(
        "It holds a control character (a line break, a tab or an escape character).");
    const QString backslash = QStringLiteral("It ends in a backslash.");
    QTest::newRow("blanks and shell characters") << "/m/a b &;|<>$'`().mpg"
                                                 << "";
    QTest::newRow("non-ASCII letters and a leading dash") << "-Ärger/ñandú.mpg"
                                                          << "";
    QTest::newRow("backslash inside") << "/m/a\\b.mpg"
                                      << "";
    QTest::newRow("double quote") << "/m/say \"hi\".xml" << quote;
    QTest::newRow("line feed") << "/m/movie\ntouch pwned\n.bin" << control;
    QTest::newRow("carriage return") << "/m/a\rb.bin" << control;
    QTest::newRow("escape drawing the end marker") << "/m/\x1b[H***end***.mpg" << control;
    QTest::newRow("tab") << "/m/a\tb.mpg" << control;
    QTest::newRow("delete character") << "/m/a\x7f.mpg" << control;
    QTest::newRow("trailing backslash") << "/m/dir\\" << backslash;
}

void JobPathsTest::unsafePaths() {
    QFETCH(QString, path);
    QFETCH(QString, reason);
    QCOMPARE(UnsafePathReason(path), reason);
    const QString message = UnsafePathMessage({QStringLiteral("/fine.mpg"), path});
    QCOMPARE(message.isEmpty(), reason.isEmpty());
    if (!reason.isEmpty()) {
        // The message names the path as it can be shown, and why.
        QVERIFY(message.contains(ShownPath(path)));
        QVERIFY(message.contains(reason));
        QVERIFY(!ShownPath(path).contains(QLatin1Char('\n')));
    }
}

void JobPathsTest::unusableFolders() {
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("gone/"));
    QFile file(dir.filePath(QStringLiteral("plain")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(UnusableFolderMessage(dir.path() + QLatin1Char('/')), QString());
    QCOMPARE(UnusableFolderMessage(missing),
             QStringLiteral("The folder does not exist:\r\r") + missing +
                 QStringLiteral("\r\rPlease choose a folder that exists."));
    QVERIFY(UnusableFolderMessage(file.fileName()).startsWith("The folder does not exist"));
    // procfs refuses writes even to root, as a read-only folder refuses them to a user.
    QCOMPARE(UnusableFolderMessage(QStringLiteral("/proc/self/")),
             QStringLiteral("The folder cannot be written to:\r\r/proc/self/\r\rPlease choose a "
                            "folder that you may write to."));
}

void JobPathsTest::aFileWithoutAViewerIsNamedInABox() {
    test::FakeServices fakes;
    OpenInViewer(fakes.services, QStringLiteral("/out/log.txt"));
    QVERIFY(fakes.boxes.shown.empty());
    fakes.desktop.viewerFound = false;
    OpenInViewer(fakes.services, QStringLiteral("/out/log.txt"));
    QCOMPARE(fakes.boxes.shown.size(), 1u);
    QCOMPARE(fakes.boxes.shown[0].text,
             QStringLiteral("No program on this desktop opens the file:\r\r/out/log.txt"));
    QCOMPARE(fakes.desktop.viewed.size(), 2);
}

QTEST_MAIN(JobPathsTest)
#include "job_paths_test.moc"
