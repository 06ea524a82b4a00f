// What every Go handler refuses before anything is written: paths that cannot be carried
// through a job script, folders that a job cannot write into.

#include "job/form_support.h"
#include "tests/support/fake_services.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;

class JobPathsTest : public QObject {
    Q_OBJECT
private slots:
    void refusals_data();
    void refusals();
};

void JobPathsTest::refusals_data() {
    QTest::addColumn<QString>("path");     // a file the job reads or writes
    QTest::addColumn<QString>("folder");   // a folder it writes into; <d>: the test's folder
    QTest::addColumn<QString>("message");  // the one box's text, empty for none
    const auto refusal = [](const char* shown, const char* why) {
        return QStringLiteral(
                   "This file name cannot be passed to the tool:\r\r%1\r\r%2\rPlease "
                   "rename the file or choose another one.")
            .arg(QString::fromUtf8(shown), QLatin1String(why));
    };
    const auto file = [&](const char* name, const char* path, const char* shown, const char* why) {
        QTest::newRow(name) << QString::fromUtf8(path) << "<d>/"
                            << (*why ? refusal(shown, why) : QString());
    };
    const char* control =
        "It holds a control character (a line break, a tab or an escape "
        "character).";
    file("fine: blanks, shell characters, non-ASCII, a leading dash, an inner backslash",
         "-/m/a b &;|<>$'`()Ärger\\ñandú.mpg", "", "");
    file("a double quote", "/m/say \"hi\".xml", "/m/say \"hi\".xml", "It holds a double quote.");
    file("line feeds", "/m/movie\ntouch x\n.bin", "/m/movie?touch x?.bin", control);
    file("an escape drawing the end marker", "/m/\x1b[H***end***", "/m/?[H***end***", control);
    file("a carriage return, a tab, a delete", "/m/a\rb\t\x7f", "/m/a?b??", control);
    file("a trailing backslash", "/m/dir\\", "/m/dir\\", "It ends in a backslash.");
    const QString missing(
        "The folder does not exist:\r\r%1\r\rPlease choose a folder that exists.");
    QTest::newRow("a missing folder") << "/a.mpg"
                                      << "<d>/gone/" << missing.arg("<d>/gone/");
    QTest::newRow("a file for a folder") << "/a.mpg"
                                         << "<d>/plain" << missing.arg("<d>/plain");
    // procfs refuses writes even to root, as a read-only folder refuses them to a user.
    QTest::newRow("a folder that cannot be written")
        << "/a.mpg"
        << "/proc/self/"
        << "The folder cannot be written to:\r\r/proc/self/\r\rPlease choose a folder that you "
           "may write to.";
    QTest::newRow("the file is refused first")
        << "/a\""
        << "<d>/gone/" << refusal("/a\"", "It holds a double quote.");
}

void JobPathsTest::refusals() {
    QFETCH(QString, path);
    QFETCH(QString, folder);
    QFETCH(QString, message);
    QTemporaryDir dir;
    QFile(dir.filePath("plain")).open(QIODevice::WriteOnly);
    folder.replace("<d>", dir.path());
    message.replace("<d>", dir.path());
    test::FakeMessageBoxes boxes;
    QCOMPARE(GoMayProceed(boxes, {}, {QStringLiteral("/fine.mpg"), path}, {dir.path(), folder}),
             message.isEmpty());
    QVERIFY(boxes.shown.size() < 2);
    QCOMPARE(boxes.shown.empty() ? QString() : boxes.shown[0].text, message);
}

QTEST_MAIN(JobPathsTest)
#include "job_paths_test.moc"
