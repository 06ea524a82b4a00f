// The subindices remover dialog: its controls, the checks ahead of the work, the
// overwrite question, the rewritten file on disk and the closing question.

#include "additional/frm_subindex.h"
#include "shell/frm_mainmenu.h"
#include "shell/mod_mainmenu.h"
#include "tests/support/fake_services.h"

#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace torvane;
using namespace torvane::test;

class SubindexDialogTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void browseFillsTheBoxesThroughTheCueFilter();
    void missingNamesAreReportedInOrder_data();
    void missingNamesAreReportedInOrder();
    void goRewritesTheSheetAndAsksToShowIt_data();
    void goRewritesTheSheetAndAsksToShowIt();
    void sameNameAsksBeforeRewritingInPlace_data();
    void sameNameAsksBeforeRewritingInPlace();
    void inputThatCannotBeReadIsReportedAndNothingIsWritten_data();
    void inputThatCannotBeReadIsReportedAndNothingIsWritten();
    void escapeClosesTheDialogAndTheMenuComesBack();

private:
    QString path(const QString& name) const { return dir_->filePath(name); }
    void writeFile(const QString& name, const QByteArray& content) const;
    QByteArray readFile(const QString& name) const;
    void go(const QString& input, const QString& output);

    FakeServices fakes_;
    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<frm_mainmenu> menu_;
    QPointer<frm_subindex> dialog_;
};

namespace {

// A literal with NULs in it, to its last byte.
template <int N>
QByteArray Bytes(const char (&text)[N]) {
    return QByteArray(text, N - 1);
}

const QByteArray kSheet(
    "FILE \"movie.bin\" BINARY\r\n"
    "  TRACK 01 MODE2/2352\r\n"
    "    FLAGS DCP\r\n"
    "    INDEX 01 00:00:00\r\n"
    "  TRACK 02 MODE2/2352\r\n"
    "    FLAGS DCP\r\n"
    "    INDEX 00 00:10:00\r\n"
    "    INDEX 01 00:12:00\r\n"
    "    INDEX 02 05:30:00\r\n"
    "    INDEX 03 11:00:00\r\n"
    "\r\n"
    "\r\n");
const QByteArray kRewritten(
    "FILE \"movie.bin\" BINARY\r\n"
    "  TRACK 01 MODE2/2352\r\n"
    "    INDEX 01 00:00:00\r\n"
    "  TRACK 02 MODE2/2352\r\n"
    "    INDEX 00 00:10:00\r\n"
    "    INDEX 01 00:12:00");
const QString kCueFilter = QStringLiteral("All Files (*.*)|*.*|CUE Files (*.cue)|*.cue");
const QString kCreated =
    QStringLiteral("The new cuesheet has been created!\r\rDo you want to open up the CUE file?");

}  // namespace

void SubindexDialogTest::init() {
    fakes_.boxes.shown.clear();
    fakes_.boxes.answers.clear();
    fakes_.files.calls.clear();
    fakes_.files.names.clear();
    fakes_.desktop.viewed.clear();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    menu_ = std::make_unique<frm_mainmenu>(fakes_.services, dir_->path());
    EnterToolDialog(*menu_, QStringLiteral("Subindicies Remover"));
    dialog_ = new frm_subindex(*menu_, fakes_.services);
    dialog_->show();
}

void SubindexDialogTest::cleanup() {
    if (dialog_)
        dialog_->close();
    menu_.reset();
    dir_.reset();
}

void SubindexDialogTest::writeFile(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray SubindexDialogTest::readFile(const QString& name) const {
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray("<missing>");
    return file.readAll();
}

void SubindexDialogTest::go(const QString& input, const QString& output) {
    dialog_->txt_input->setText(input.isEmpty() ? QString() : path(input));
    dialog_->txt_output->setText(output.isEmpty() ? QString() : path(output));
    dialog_->cmd_rip->click();
}

void SubindexDialogTest::browseFillsTheBoxesThroughTheCueFilter() {
    fakes_.files.names = {QStringLiteral("/cd/a b.cue"), QStringLiteral("/cd/new.cue"),
                          std::nullopt};
    dialog_->cmd_input->click();
    dialog_->cmd_output->click();
    dialog_->cmd_output->click();  // cancelled: the name stays
    QCOMPARE(dialog_->txt_input->text(), QStringLiteral("/cd/a b.cue"));
    QCOMPARE(dialog_->txt_output->text(), QStringLiteral("/cd/new.cue"));
    QCOMPARE(fakes_.files.calls.size(), size_t(3));
    QCOMPARE(fakes_.files.calls[0].save, false);
    QCOMPARE(fakes_.files.calls[1].save, true);
    for (const FakeFileDialogs::Call& call : fakes_.files.calls) {
        QCOMPARE(call.filter, kCueFilter);
        QCOMPARE(call.filterIndex, 2);
    }
}

void SubindexDialogTest::missingNamesAreReportedInOrder_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    const QString noInput = QStringLiteral("You have not selected a CUE file to open!");
    const QString noOutput = QStringLiteral("You have not set a destination CUE file to save!");
    QTest::newRow("both empty: the input first") << ""
                                                 << "" << noInput;
    QTest::newRow("input empty") << ""
                                 << "out.cue" << noInput;
    QTest::newRow("output empty") << "in.cue"
                                  << "" << noOutput;
}

void SubindexDialogTest::missingNamesAreReportedInOrder() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(QString, message);
    writeFile(QStringLiteral("in.cue"), kSheet);
    go(input, output);
    QCOMPARE(fakes_.boxes.shown.size(), size_t(1));
    const MessageBoxRequest& box = fakes_.boxes.shown.front();
    QCOMPARE(box.title, QStringLiteral("Information"));
    QCOMPARE(box.text, message);
    QCOMPARE(box.buttons, MessageBoxRequest::Buttons::Ok);
    QCOMPARE(box.icon, MessageBoxRequest::Icon::Information);
    QCOMPARE(readFile(QStringLiteral("in.cue")), kSheet);
    QCOMPARE(readFile(QStringLiteral("out.cue")), QByteArray("<missing>"));
}

void SubindexDialogTest::goRewritesTheSheetAndAsksToShowIt_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QByteArray>("oldOutput");  // empty: no such file before
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<int>("answer");
    const QString in = QStringLiteral("in.cue");
    const QString out = QStringLiteral("out.cue");
    QTest::newRow("worked sheet, not shown")
        << in << out << QByteArray() << kSheet << kRewritten << vbNo;
    QTest::newRow("worked sheet, shown")
        << in << out << QByteArray() << kSheet << kRewritten << vbYes;
    QTest::newRow("another, longer file replaced without a question")
        << in << out << QByteArray(4096, 'z') << kSheet << kRewritten << vbNo;
    QTest::newRow("names differing only in case are two names")
        << QStringLiteral("disc.cue") << QStringLiteral("DISC.cue") << QByteArray() << kSheet
        << kRewritten << vbNo;
    QTest::newRow("empty sheet gives an empty file")
        << in << out << QByteArray("old") << QByteArray() << QByteArray() << vbNo;
    QTest::newRow("line ends only give an empty file")
        << in << out << QByteArray() << QByteArray("\r\n\n\r\r\n") << QByteArray() << vbNo;
    QTest::newRow("bytes of any value")
        << in << out << QByteArray() << Bytes("REM \xff\xfe\0x\r\n    INDEX 02 00:00:00\r\n")
        << Bytes("REM \xff\xfe\0x") << vbNo;
    QTest::newRow("names with blanks, quotes, operators, letters and a dash")
        << QString::fromUtf8("-in 'a' \"b\" &;|<>$ \u00e4.cue")
        << QString::fromUtf8("-out `x` $(y) \u00df.cue") << QByteArray() << kSheet << kRewritten
        << vbYes;
}

void SubindexDialogTest::goRewritesTheSheetAndAsksToShowIt() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(QByteArray, oldOutput);
    QFETCH(QByteArray, sheet);
    QFETCH(QByteArray, result);
    QFETCH(int, answer);
    writeFile(input, sheet);
    if (!oldOutput.isEmpty())
        writeFile(output, oldOutput);
    fakes_.boxes.answers = {answer};
    go(input, output);

    QCOMPARE(readFile(output), result);
    QCOMPARE(readFile(input), sheet);
    QCOMPARE(fakes_.boxes.shown.size(), size_t(1));
    const MessageBoxRequest& box = fakes_.boxes.shown.front();
    QCOMPARE(box.title, QStringLiteral("Question"));
    QCOMPARE(box.text, kCreated);
    QCOMPARE(box.buttons, MessageBoxRequest::Buttons::YesNo);
    QCOMPARE(box.icon, MessageBoxRequest::Icon::Information);
    QCOMPARE(box.defaultAnswer, vbNo);
    QCOMPARE(fakes_.desktop.viewed, answer == vbYes ? QStringList{path(output)} : QStringList());
}

void SubindexDialogTest::sameNameAsksBeforeRewritingInPlace_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<int>("boxes");
    QTest::newRow("No leaves the file as it was") << vbNo << kSheet << 1;
    QTest::newRow("Yes rewrites it in place") << vbYes << kRewritten << 2;
}

void SubindexDialogTest::sameNameAsksBeforeRewritingInPlace() {
    QFETCH(int, answer);
    QFETCH(QByteArray, result);
    QFETCH(int, boxes);
    const QString name = QStringLiteral("disc.cue");
    writeFile(name, kSheet);
    fakes_.boxes.answers = {answer, vbNo};
    go(name, name);

    QCOMPARE(readFile(name), result);
    QCOMPARE(fakes_.boxes.shown.size(), size_t(boxes));
    const MessageBoxRequest& box = fakes_.boxes.shown.front();
    QCOMPARE(box.title, QStringLiteral("Overwrite?"));
    QCOMPARE(box.text, QStringLiteral("Are you sure that you want to overwrite:\r\r") + path(name));
    QCOMPARE(box.buttons, MessageBoxRequest::Buttons::YesNo);
    QCOMPARE(box.icon, MessageBoxRequest::Icon::Question);
    QCOMPARE(box.defaultAnswer, vbNo);
    QCOMPARE(fakes_.boxes.shown.back().text, boxes == 2 ? kCreated : box.text);
    QVERIFY(fakes_.desktop.viewed.isEmpty());
}

void SubindexDialogTest::inputThatCannotBeReadIsReportedAndNothingIsWritten_data() {
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("boxes");
    QTest::newRow("missing input") << "gone.cue"
                                   << "out.cue" << 1;
    QTest::newRow("input is a folder") << "folder"
                                       << "out.cue" << 1;
    QTest::newRow("missing input named as the output, overwrite Yes") << "out.cue"
                                                                      << "out.cue" << 2;
}

void SubindexDialogTest::inputThatCannotBeReadIsReportedAndNothingIsWritten() {
    QFETCH(QString, input);
    QFETCH(QString, output);
    QFETCH(int, boxes);
    QVERIFY(QDir(dir_->path()).mkdir(QStringLiteral("folder")));
    if (input != output)
        writeFile(output, "old text");
    fakes_.boxes.answers = {vbYes, vbYes};
    go(input, output);
    QCOMPARE(fakes_.boxes.shown.size(), size_t(boxes));
    const MessageBoxRequest& box = fakes_.boxes.shown.back();
    QCOMPARE(box.title, QStringLiteral("Information"));
    QCOMPARE(box.text, QStringLiteral("The CUE file could not be read:\r\r") + path(input));
    QCOMPARE(box.buttons, MessageBoxRequest::Buttons::Ok);
    QCOMPARE(readFile(output), input != output ? QByteArray("old text") : "<missing>");
    QVERIFY(fakes_.desktop.viewed.isEmpty());
}

void SubindexDialogTest::escapeClosesTheDialogAndTheMenuComesBack() {
    QVERIFY(!menu_->isEnabled());
    dialog_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog_));
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QVERIFY(!dialog_->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog_.isNull());
    QVERIFY(menu_->isEnabled());
    QCOMPARE(menu_->windowTitle(), QStringLiteral("Torvane"));
    QVERIFY(fakes_.boxes.shown.empty());
}

QTEST_MAIN(SubindexDialogTest)
#include "dialog_test.moc"
