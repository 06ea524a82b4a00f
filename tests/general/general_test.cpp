// The shared routines: validators, disc-fit advice, job logs, whole files read and written.

#include "core/mod_general.h"
#include "core/whole_file_write.h"

#include <sys/stat.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <climits>

using namespace torvane;

namespace {

// What `routine` makes of `input`, as text; a log line "x" stands for a log that cannot be read.
QString Apply(const QString& routine, const QByteArray& in) {
    const auto yes = [](bool b) { return QString(b ? "yes" : "no"); };
    if (routine == "number")
        return yes(IsValidNumber(QString::fromUtf8(in)));
    if (routine == "label")
        return yes(IsValidLabel(QString::fromUtf8(in)));
    if (routine == "advice")
        return DiscFitAdvice(in.toInt());
    if (routine == "lines")
        return QString::number(CountLineEnds(in)) + '|' + QString::fromLatin1(LastLine(in));
    return yes(LogSucceeded(in == "x" ? std::nullopt : std::optional(in), "   INFO: done"));
}

}  // namespace

class GeneralTest : public QObject {
    Q_OBJECT
private slots:
    void routines_data() {
        QTest::addColumn<QString>("routine");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QString>("output");
        const auto row = [](const char* routine, const QByteArray& in, const QString& out) {
            QTest::addRow("%s %s", routine, in.left(30).toPercentEncoding().constData())
                << QString(routine) << in << out;
        };
        for (const char* text : {"1", "65535", "0000000000065535"})
            row("number", text, "yes");
        for (const char* text : {"0", "65536", "4294967297", "", "12a", "-1", " 1", "\u0663"})
            row("number", text, "no");
        for (const char* text : {"AZ09_", ""})
            row("label", text, "yes");
        for (const char* text : {"VIDEOcD", "VIDEO CD", "@", "[", ":", "/", "\u00c9T\u00c9"})
            row("label", text, "no");
        const auto fits = [](const char* disc) {
            return QStringLiteral("It should fit on %1 CD-R disc.").arg(QLatin1String(disc));
        };
        const QString may(
            "It may fit on %1 CD-R disc with a small\rdegree of overburning.  "
            "Otherwise, use %2\rCD-R disc.");
        row("advice", "20", fits("a 21min/180MB (8 cm)"));
        row("advice", "21",
            "It may fit on a 21min/180MB (8 cm) CD-R disc with\ra small degree of overburning. "
            "Otherwise, use a\r74min/650MB CD-R disc.");
        row("advice", "22", fits("a 74min/650MB"));
        row("advice", "74", may.arg("a 74min/650MB", "an 80min/700MB"));
        row("advice", "75", fits("an 80min/700MB"));
        row("advice", "80", may.arg("an 80min/700MB", "a 90min/790MB"));
        row("advice", "81", fits("a 90min/790MB"));
        row("advice", "90", may.arg("a 90min/790MB", "a 99min/870MB"));
        row("advice", QByteArray::number(INT_MAX),
            "It may fit on a 99min/870MB CD-R disc. Use with caution!");
        // Only CR LF pairs are counted and separate lines.
        row("lines", "\n\r\r\n\n", "1|");
        row("lines", "a\r\nb  \r\n\r\n\n\r", "3|b  ");
        row("lines", "a\nb\r\nc\rd\n\r \r\n", "2|c\rd\n\r ");
        row("lines", QByteArray("x\r\n").repeated(40000) + "end", "40000|end");
        row("success", "a\r\n   INFO: done, 3 files\r\n\r\n\n\r", "yes");  // two line ends at least
        for (const char* log : {"x", "   INFO: done\r\n", "a\r\n   INFO: done\r\n++ WARN: late\r\n",
                                "a\r\nINFO: done\r\n", "a\nb\n   INFO: done\n"})
            row("success", log, "no");
    }

    void routines() {
        QFETCH(QString, routine);
        QFETCH(QByteArray, input);
        QTEST(Apply(routine, input), "output");
    }

    void filesAreReadAndWrittenWhole() {
        QTemporaryDir dir;
        const QString path = dir.filePath(QString::fromUtf8("-my 'a' \"b\" &;|<>$ \u00e4.cue"));
        const QByteArray raw("\xef\xbb\xbf\xff\xfe\0a\x80\r\n\n\r\x1a\0", 15);
        QVERIFY(!ReadWholeFile(path) && !ReadWholeFile(dir.path()));  // none yet; a folder
        QCOMPARE(WriteWholeFile(path, "old"), QString());
        QVERIFY(chmod(QFile::encodeName(path).constData(), 0640) == 0);
        // Through a symbolic link: the file it leads to is replaced, the link stays a link.
        const QString link = dir.filePath("link");
        QVERIFY(QFile::link(path, link));
        QCOMPARE(WriteWholeFile(link, raw), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(ReadWholeFile(path), std::optional(raw));
        struct stat info {};
        QVERIFY(stat(QFile::encodeName(path).constData(), &info) == 0 &&
                (info.st_mode & 0777) == 0640);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 2);  // no part left behind
    }
};

QTEST_APPLESS_MAIN(GeneralTest)
#include "general_test.moc"
