// The stand-ins for the lkVCDImager fork: lkvcdxrip.exe's switches, its refusal of a drive
// that is not there, and the drive scan's list.

#include "tests/support/tool_run.h"
#include "tools/adapters/lk/lk_rip_args.h"
#include "tools/adapters/lk/scanbus_text.h"

#include <QTemporaryDir>
#include <QTest>

using namespace torvane::test;

namespace {

const QString kLk = QStringLiteral(TORVANE_APP_DIR "/lkVCDImager/");

}  // namespace

class LkToolsTest : public QObject {
    Q_OBJECT
private slots:
    void ripSwitches_data() {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("parsed");  // folder|source|switches, or the error
        QTest::newRow("image, every option")
            << QStringList{"/s", "/e", "/r", "/o", "E:", "/b", "m.bin"}
            << "E:|m.bin|--sector-2336 --no-ext-psd --norip";
        QTest::newRow("drive 9") << QStringList{"/o", "o", "/c", "1,0,9", "/d", "GENERIC"}
                                 << "o|9|";
        QTest::newRow("a two-digit place")
            << QStringList{"/o", "o", "/c", "1,0,10"} << "no drive can have the address 1,0,10";
        QTest::newRow("two sources") << QStringList{"/o", "o", "/b", "a.bin", "/n", "a.nrg"}
                                     << "give the folder with /o and one source: /b, /n or /c";
        QTest::newRow("no value") << QStringList{"/o"} << "/o needs a value";
    }

    void ripSwitches() {
        QFETCH(QStringList, args);
        QFETCH(QString, parsed);
        std::vector<std::string> list;
        for (const QString& arg : args)
            list.push_back(arg.toStdString());
        std::string error;
        const auto request = lk::ParseRipArgs(list, &error);
        QString got = QString::fromStdString(error);
        if (request) {
            QStringList switches;
            for (const std::string& s : request->switches)
                switches << QString::fromStdString(s);
            got =
                QString::fromStdString(request->folder + "|" + request->binFile + request->nrgFile +
                                       (request->drive ? std::to_string(*request->drive) : "")) +
                "|" + switches.join(' ');
        }
        QCOMPARE(got, parsed);
    }

    // As the dialog reads it from the end: drive lines of 44, a heading, 140 characters at least.
    void scanListHasTheFixedLayout() {
        const std::string none = lk::ScanbusText({});
        QVERIFY(none.size() >= 142 && none.compare(none.size() - 5, 1, ",") != 0);
        const std::string two = lk::ScanbusText(
            {{"/dev/sr0", "HL-DT-ST DVDRAM GH24NSD1 with a long tail"}, {"/dev/sr1", "Bad\tname"}});
        QCOMPARE(QByteArray::fromStdString(two.substr(none.size())),
                 QByteArray("     HL-DT-ST DVDRAM GH24NSD1 with a 1, 0, 0\r\n"
                            "     Bad name                        1, 0, 1\r\n"));
    }

    // A drive the scan does not list at the job's address: nothing is ripped. (The rips from
    // an image and from a listed "drive" are the lkVCDxBUILD and lkVCDxRIP dialogs' real jobs.)
    void aDriveNotListedRipsNothing() {
        QTemporaryDir work;
        const QString out = FreshFolder(work.path(), "rip & 'co' ü");
        qputenv("TORVANE_CD_DEVICES", "/dev/sr7=A");
        const ToolRun run = RunScriptLine(Quoted(kLk + "lkvcdxrip.exe ") + " /o " + Quoted(out) +
                                              " /c 1,0,2 /d GENERIC > log.txt",
                                          work.path());
        qunsetenv("TORVANE_CD_DEVICES");
        QVERIFY(!ReadBytes(work.filePath("log.txt")).contains("   INFO: done"));
        QVERIFY2(run.errors.contains("no CD drive is listed at the address 1, 0, 2"),
                 run.errors.constData());
        QCOMPARE(EntriesOf(out), QStringList());
    }
};

QTEST_MAIN(LkToolsTest)
#include "lk_test.moc"
