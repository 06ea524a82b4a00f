// The subindices remover dialog: the checks ahead of the work, the overwrite question, the
// rewritten file on disk and the closing question, as one table of what a user does.

#include "additional/frm_subindex.h"
#include "shell/frm_mainmenu.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/job_driver.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

namespace {
const QByteArray kSheet(
    "FILE \"movie.bin\" BINARY\r\n  TRACK 01 MODE2/2352\r\n    FLAGS DCP\r\n"
    "    INDEX 01 00:00:00\r\n  TRACK 02 MODE2/2352\r\n    INDEX 01 00:12:00\r\n"
    "    INDEX 02 05:30:00\r\n\r\n");
const QByteArray kRewritten(
    "FILE \"movie.bin\" BINARY\r\n  TRACK 01 MODE2/2352\r\n    INDEX 01 00:00:00\r\n"
    "  TRACK 02 MODE2/2352\r\n    INDEX 01 00:12:00");
const QString kCreated =
    QStringLiteral("The new cuesheet has been created!\r\rDo you want to open up the CUE file?");
}  // namespace

class SubindexDialogTest : public QObject {
    Q_OBJECT
private slots:
    void go_data();
    void go();
    void aFullDiskKeepsTheSheetAndSaysSo();
};

void SubindexDialogTest::go_data() {
    QTest::addColumn<QString>("input");  // names in the test's folder, which holds in.cue
    QTest::addColumn<QString>("output");
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<QStringList>("boxes");   // the start of each box's text
    QTest::addColumn<QByteArray>("written");  // what the output holds afterwards
    const QString overwrite = QStringLiteral("Are you sure that you want to overwrite:\r\r");
    QTest::newRow("no input") << ""
                              << "out.cue" << QList<int>{}
                              << QStringList{"You have not selected a CUE file to open!"}
                              << QByteArray();
    QTest::newRow("no output") << "in.cue"
                               << "" << QList<int>{}
                               << QStringList{"You have not set a destination CUE file to save!"}
                               << QByteArray();
    QTest::newRow("an output folder that does not exist")
        << "in.cue"
        << "gone/out.cue" << QList<int>{} << QStringList{"The folder does not exist:"}
        << QByteArray();
    QTest::newRow("a new name, opened afterwards")
        << "in.cue"
        << "out.cue" << QList<int>{vbYes} << QStringList{kCreated} << kRewritten;
    QTest::newRow("the same name, overwrite No")
        << "in.cue"
        << "in.cue" << QList<int>{vbNo} << QStringList{overwrite} << kSheet;
    QTest::newRow("the same name, overwrite Yes")
        << "in.cue"
        << "in.cue" << QList<int>{vbYes, vbNo} << QStringList{overwrite, kCreated} << kRewritten;
    QTest::newRow("an input that cannot be read")
        << "gone.cue"
        << "out.cue" << QList<int>{} << QStringList{"The CUE file could not be read:\r\r"}
        << QByteArray();
}

void SubindexDialogTest::go() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(QList<int>, answers);
    QFETCH(QStringList, boxes);
    QFETCH(QByteArray, written);
    QTemporaryDir dir;
    QFile sheet(dir.filePath("in.cue"));
    QVERIFY(sheet.open(QIODevice::WriteOnly) && sheet.write(kSheet) == kSheet.size());
    sheet.close();
    const auto path = [&dir](const QString& name) {
        return name.isEmpty() ? name : dir.filePath(name);
    };
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, dir.path());
    auto* dialog = qobject_cast<frm_subindex*>(menu.openTool(QStringLiteral("subindex")));
    fakes.files.names = {path(input), path(output)};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    fakes.boxes.answers.assign(answers.begin(), answers.end());
    dialog->cmd_rip->click();

    QCOMPARE(fakes.boxes.shown.size(), size_t(boxes.size()));
    for (int i = 0; i < boxes.size(); ++i)
        QVERIFY2(fakes.boxes.shown[i].text.startsWith(boxes[i]),
                 qPrintable(fakes.boxes.shown[i].text));
    if (boxes.first().startsWith(QStringLiteral("Are you sure")))
        QCOMPARE(fakes.boxes.shown[0].defaultAnswer, vbNo);
    QCOMPARE(ReadFile(path(output)), written);
    if (input != output)
        QCOMPARE(ReadFile(dir.filePath("in.cue")), kSheet);  // the input is never touched
    QCOMPARE(fakes.desktop.viewed, answers.value(boxes.size() - 1) == vbYes && written == kRewritten
                                       ? QStringList{path(output)}
                                       : QStringList());
    QVERIFY(dialog->close());
}

void SubindexDialogTest::aFullDiskKeepsTheSheetAndSaysSo() {
    QTemporaryDir dir;
    const QString cue = dir.filePath("in.cue");
    QFile sheet(cue);
    QVERIFY(sheet.open(QIODevice::WriteOnly) && sheet.write(kSheet) == kSheet.size());
    sheet.close();
    FakeServices fakes;
    frm_mainmenu menu(fakes.services, dir.path());
    auto* dialog = qobject_cast<frm_subindex*>(menu.openTool(QStringLiteral("subindex")));
    fakes.files.names = {cue, cue};
    dialog->cmd_input->click();
    dialog->cmd_output->click();
    fakes.boxes.answers = {vbYes};  // overwrite
    {
        FileSizeLimit full(40);
        dialog->cmd_rip->click();
    }
    QCOMPARE(fakes.boxes.shown.size(), 2u);  // the question, then the failure; no success
    QCOMPARE(fakes.boxes.shown[1].text,
             "The file could not be written:\r\r" + cue +
                 "\r\rFile too large\r\rAny file of that name is as it was before.");
    QCOMPARE(ReadFile(cue), kSheet);
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"in.cue"});
    QVERIFY(dialog->close());
}

QTEST_MAIN(SubindexDialogTest)
#include "dialog_test.moc"
