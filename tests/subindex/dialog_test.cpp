// The subindices remover: its rule on cue sheets, and its dialog from the checks to the file.

#include "additional/frm_subindex.h"
#include "core/mod_general.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/job_driver.h"

using namespace torvane;
using namespace torvane::test;

namespace {
const QByteArray kSheet(
    "FILE \"m.bin\" BINARY\r\n  TRACK 01 MODE2/2352\r\n    FLAGS DCP\r\n    INDEX 01 00:00:00\r\n"
    "  TRACK 02 MODE2/2352\r\n    INDEX 00 00:10:00\r\n    INDEX 01 00:12:00\r\n"
    "    INDEX 02 05:30:00\r\n    INDEX 10 11:00:00\r\n    INDEX 2 1\r\n    INDEX  5 0\r\n"
    "    INDEX 02\r\n\r\n");
const QByteArray kRewritten(
    "FILE \"m.bin\" BINARY\r\n  TRACK 01 MODE2/2352\r\n    INDEX 01 00:00:00\r\n"
    "  TRACK 02 MODE2/2352\r\n    INDEX 00 00:10:00\r\n    INDEX 01 00:12:00");
}  // namespace

class SubindexDialogTest : public QObject {
    Q_OBJECT
private slots:
    void rule_data() {
        QTest::addColumn<QByteArray>("sheet");
        QTest::addColumn<QByteArray>("result");
        QTest::newRow("a worked sheet") << kSheet << kRewritten;
        // Judged by exact text at fixed places: none of these is a flag or a subindex.
        const QByteArray lookalikes(
            "FILE\r\n    INDEX 1 00:00:00\r\n    INDEX\r\n    INDEX xx 0\r\n    INDEX a2 0\r\n"
            "  INDEX 02 0\r\n\tINDEX 02 0\r\n    index 02 0\r\n    FLAGS DCP \r\n    FLAGS 4CH\r\n"
            "    flags dcp");
        QTest::newRow("look-alikes stay") << lookalikes << lookalikes;
        for (const char* sheet : {"", "\r\n\n\r\r\n\r", "    FLAGS DCP\r\n    INDEX 02 0\r\n"})
            QTest::newRow("nothing left") << QByteArray(sheet) << QByteArray();
        QTest::newRow("any byte passes, only CR LF ends a line")
            << QByteArray("REM \xc3\xa4\xff\x01\r\r\nFILE\n    INDEX 02 0\n\n")
            << QByteArray("REM \xc3\xa4\xff\x01\r\r\nFILE\n    INDEX 02 0");
        QTest::newRow("empty lines ahead of the first text go, a blank line is text")
            << QByteArray("\r\n    FLAGS DCP\r\n\r\n  \r\nFILE\r\n\r\n  TRACK 01")
            << QByteArray("  \r\nFILE\r\n\r\n  TRACK 01");
        QTest::newRow("the end is text, never a flag a lone CR hid")
            << QByteArray("FILE\r\r\n\r\n    FLAGS DCP\r\r\n    INDEX 03 0\r\n\n")
            << QByteArray("FILE");
        QTest::newRow("more than 32767 lines")
            << "FILE" +
                   QByteArray("\r\n  TRACK 01\r\n    INDEX 01 0\r\n    INDEX 02 0").repeated(20000)
            << "FILE" + QByteArray("\r\n  TRACK 01\r\n    INDEX 01 0").repeated(20000);
    }

    void rule() {
        QFETCH(QByteArray, sheet);
        const QByteArray once = RemoveSubindices(sheet);
        QTEST(once, "result");
        QCOMPARE(RemoveSubindices(once), once);  // a cleaned sheet stays as it is
    }

    void go_data() {
        QTest::addColumn<QString>("input");  // names in the test's folder <d>, which holds in.cue
        QTest::addColumn<QString>("output");
        QTest::addColumn<QList<int>>("answers");
        QTest::addColumn<QString>("boxes");       // the boxes' texts, joined by '|'
        QTest::addColumn<QByteArray>("written");  // what the output holds afterwards
        const auto row = [](const char* name, const char* in, const char* out, QList<int> answers,
                            const QString& boxes, const QByteArray& written) {
            QTest::newRow(name) << in << out << answers << boxes << written;
        };
        const QString overwrite("Are you sure that you want to overwrite:\r\r<d>/in.cue");
        const QString made(
            "The new cuesheet has been created!\r\rDo you want to open up the CUE file?");
        row("no input", "", "out.cue", {}, "You have not selected a CUE file to open!", {});
        row("no output", "in.cue", "", {}, "You have not set a destination CUE file to save!", {});
        row("an output folder that does not exist", "in.cue", "gone/out.cue", {},
            "The folder does not exist:\r\r<d>/gone/\r\rPlease choose a folder that exists.", {});
        row("a new name, opened afterwards", "in.cue", "out.cue", {vbYes}, made, kRewritten);
        row("no viewer for it", "in.cue", "out.cue", {vbYes},
            made + "|No program on this desktop opens the file:\r\r<d>/out.cue", kRewritten);
        row("the same name, overwrite No", "in.cue", "in.cue", {vbNo}, overwrite, kSheet);
        row("the same name, overwrite Yes", "in.cue", "in.cue", {vbYes, vbNo},
            overwrite + '|' + made, kRewritten);
        row("an input that cannot be read", "gone.cue", "out.cue", {},
            "The CUE file could not be read:\r\r<d>/gone.cue", {});
        row("a full disk keeps the sheet and says so", "in.cue", "in.cue", {vbYes},
            overwrite +
                "|The file could not be written:\r\r<d>/in.cue\r\rFile too large\r\rAny file "
                "of that name is as it was before.",
            kSheet);
    }

    void go() {
        QFETCH(QString, input);
        QFETCH(QString, output);
        QFETCH(QList<int>, answers);
        QFETCH(QString, boxes);
        QFETCH(QByteArray, written);
        DialogFixture<frm_subindex> f("subindex");
        const QTemporaryDir& dir = f.work;
        QVERIFY(WriteBytes(dir.filePath("in.cue"), kSheet));
        const auto path = [&dir](const QString& name) {
            return name.isEmpty() ? name : dir.filePath(name);
        };
        f.prepare(nullptr, {}, path(input), path(output));
        FakeServices& fakes = f.fakes;
        fakes.boxes.answers.assign(answers.begin(), answers.end());
        fakes.desktop.viewerFound = !boxes.contains("No program");
        {
            const FileSizeLimit full(boxes.contains("File too large") ? 40 : RLIM_INFINITY);
            f.dialog.cmd_rip->click();
        }
        QStringList shown;
        for (const MessageBoxRequest& box : fakes.boxes.shown)
            shown << box.text;
        QCOMPARE(shown.join('|'), boxes.replace("<d>", dir.path()));
        QVERIFY(!boxes.startsWith("Are") || fakes.boxes.shown[0].defaultAnswer == vbNo);
        // Nothing is left beside the sheets: no half-written file of a failed save.
        QMap<QString, QByteArray> files{{"in.cue", input == output ? written : kSheet}};
        if (input != output && !written.isEmpty())
            files.insert(output, written);
        QCOMPARE(FilesIn(dir.path()), files);
        const bool opened = written == kRewritten && answers.last() == vbYes;
        QCOMPARE(fakes.desktop.viewed, opened ? QStringList{path(output)} : QStringList());
    }
};

QTEST_MAIN(SubindexDialogTest)
#include "dialog_test.moc"
