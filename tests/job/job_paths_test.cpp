// What every Go handler refuses before anything is written (paths that cannot be carried
// through a job script, folders that a job cannot write into), and the viewer's failure.

#include "job/job_paths.h"
#include "job/desktop_services.h"
#include "job/form_support.h"
#include "tests/support/fake_services.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace torvane;

class JobPathsTest : public QObject {
    Q_OBJECT
private slots:
    void unsafePaths_data();
    void unsafePaths();
    void unusableFolders();
    void aFileWithoutAViewerIsNamedInABox();
    void fileDialogsOpenWhereTheUsersFilesAre();
    void aTypedNameIsTakenAsItStands_data();
    void aTypedNameIsTakenAsItStands();
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

void JobPathsTest::fileDialogsOpenWhereTheUsersFilesAre() {
    QTemporaryDir dir;
    const QString picked = dir.filePath(QStringLiteral("disc one/movie.bin"));
    QVERIFY(QDir().mkpath(QFileInfo(picked).path()));
    QCOMPARE(BrowseStartFolder(QString()), QDir::homePath());  // nothing picked yet
    test::FakeServices fakes;
    QLineEdit box;
    fakes.files.names = {picked};
    Browse(fakes.files, BrowseKind::Open, QStringLiteral("All|*.*"), box);
    QCOMPARE(fakes.files.calls.at(0).folder, QDir::homePath());
    QCOMPARE(box.text(), picked);
    QCOMPARE(BrowseStartFolder(QString()), QFileInfo(picked).path());
    QCOMPARE(BrowseStartFolder(QStringLiteral("/no/such/folder/x.xml")), QFileInfo(picked).path());
    QCOMPARE(BrowseStartFolder(dir.filePath(QStringLiteral("other.xml"))), dir.path());
}

void JobPathsTest::aTypedNameIsTakenAsItStands_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("a plain name") << "report.xml";
    QTest::newRow("a name with double quotes") << "say \"hi\".xml";
}

void JobPathsTest::aTypedNameIsTakenAsItStands() {
    QFETCH(QString, typed);
    QTemporaryDir dir;
    QTimer::singleShot(100, [typed] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(typed);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    QtFileDialogs files;
    QCOMPARE(files.saveFileName(QStringLiteral("All Files (*.*)|*.*"), 1, dir.path()),
             std::optional<QString>(dir.filePath(typed)));
}

QTEST_MAIN(JobPathsTest)
#include "job_paths_test.moc"
