// The pure parts of the authoring adapters: vcdxbuild's --gui output read and split between
// log and console with its progress figures, and argument files.

#include "tools/adapters/authoring/arg_files.h"
#include "tools/adapters/authoring/build_log.h"
#include "tools/adapters/authoring/tool_capture.h"

#include <QTest>
#include <cerrno>

using namespace authoring;

namespace {

std::string S(const QByteArray& bytes) {
    return bytes.toStdString();
}

QByteArray B(const std::string& text) {
    return QByteArray::fromStdString(text);
}

const QByteArray kFinished =
    R"(<log level="information">finished ok, image created with 1879 sectors [00:25:04]</log>)";

}  // namespace

class AdapterParsingTest : public QObject {
    Q_OBJECT
private slots:
    void buildOutputIsSplitBetweenLogAndConsole_data() {
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<QByteArrayList>("log");
        QTest::addColumn<QByteArray>("console");
        const QByteArray wipe(10, ' ');
        QTest::newRow("progress goes to the console only, each figure once")
            << QByteArrayList{R"(<progress operation="scan" id="s-0" position="0" size="200" />)",
                              R"(<progress operation="scan" id="s-0" position="1" size="200" />)",
                              R"(<progress operation="scan" id="s-0" position="2" size="200" />)",
                              R"(<log level="information">writing track 1</log>)",
                              R"(<progress operation="write" position="10" size="10" />)",
                              kFinished}
            << QByteArrayList{"   INFO: writing track 1",
                              "   INFO: finished ok, image created with 1879 sectors [00:25:04]"}
            << "\r#scan[s-0]: 0/200 ( 0%)" + wipe + "\r#scan[s-0]: 2/200 ( 1%)" + wipe +
                   "\n\r#write: 10/10 (100%)" + wipe + "\n";
        QTest::newRow("an error is shown on the console too, on a line of its own")
            << QByteArrayList{R"(<progress operation="write" position="5" size="10" />)",
                              R"(<log level="error">could not stat() file `a & b.mpg'</log>)"}
            << QByteArrayList{"**ERROR: could not stat() file `a & b.mpg'"}
            << "\r#write: 5/10 (50%)" + wipe + "\n**ERROR: could not stat() file `a & b.mpg'\n";
        QTest::newRow("each level gets the prefix of old; an unknown one is a warning")
            << QByteArrayList{R"(<log level="information">i</log>)",
                              R"(<log level="debug">d</log>)", R"(<log level="warning">w</log>)",
                              R"(<log level="assertion">a</log>)",
                              R"(<log level="Information">u</log>)"}
            << QByteArrayList{"   INFO: i", "--DEBUG: d", "++ WARN: w", "!ASSERT: a", "++ WARN: u"}
            << QByteArray("!ASSERT: a\n");
        QTest::newRow("markup in a message stays as written; one over two lines is joined")
            << QByteArrayList{R"(<log level="debug">adding a & <b> &amp; `x</log>y.mpg'</log>)",
                              R"(<log level="error">could not open `a)", "b.mpg'</log>"}
            << QByteArrayList{"--DEBUG: adding a & <b> &amp; `x</log>y.mpg'",
                              "**ERROR: could not open `a\nb.mpg'"}
            << QByteArray("**ERROR: could not open `a\nb.mpg'\n");
        QTest::newRow("an unclosed message ends at the next element; other lines pass as they are")
            << QByteArrayList{R"(<log level="error">broken)",
                              R"(<progress operation="write" position="1" size="2" />)",
                              "Usage: vcdxbuild [OPTION...] <xml-control-file>",
                              "",
                              "<log level=\"debug",
                              "<progress operation=\"scan\" id=\"s"}
            << QByteArrayList{"**ERROR: broken", "Usage: vcdxbuild [OPTION...] <xml-control-file>",
                              "", "<log level=\"debug", "<progress operation=\"scan\" id=\"s"}
            << "**ERROR: broken\n\r#write: 1/2 (50%)" + wipe + "\n";
        QTest::newRow("honest figures: no size yet, a hundredfold beyond 64 bits, past the size")
            << QByteArrayList{R"(<progress operation="write" position="7" size="0" />)",
                              R"(<progress operation="write" position="100000000000000000" )"
                              R"(size="9223372036854775807" />)",
                              R"(<progress operation="write" position="18525" size="18476" />)"}
            << QByteArrayList{}
            << "\r#write: 7/0 ( 0%)" + wipe +
                   "\r#write: 100000000000000000/9223372036854775807 ( 1%)" + wipe +
                   "\r#write: 18476/18476 (100%)" + wipe + "\n";
    }

    void buildOutputIsSplitBetweenLogAndConsole() {
        QFETCH(QByteArrayList, lines);
        QFETCH(QByteArrayList, log);
        QFETCH(QByteArray, console);
        QByteArrayList logLines;
        QByteArray consoleText;
        BuildLogTranslator translator([&](const std::string& line) { logLines << B(line); },
                                      [&](const std::string& text) { consoleText += B(text); });
        for (const QByteArray& line : lines)
            translator.Line(S(line));
        translator.Finish();
        QCOMPARE(logLines, log);
        QCOMPARE(consoleText, console);
    }

    void argumentFilesAreExpanded_data() {
        QTest::addColumn<QByteArray>("list");  // list.txt; a null array: there is none
        QTest::addColumn<QByteArrayList>("args");
        QTest::addColumn<QByteArrayList>("expanded");
        QTest::addColumn<QByteArray>("error");
        const QByteArrayList lone{"@list.txt"};
        QTest::newRow("CR LF between lines, none after the last, in place")
            << QByteArray("\"/in/a b.mpg\"\r\n\"/in/Ünï & c;$d.mpg\"")
            << QByteArrayList{"-v", "@list.txt", "--last"}
            << QByteArrayList{"-v", "/in/a b.mpg", "/in/Ünï & c;$d.mpg", "--last"} << QByteArray();
        QTest::newRow("line ends of every kind, and empty lines")
            << QByteArray("\"a.mpg\"\n\r\n\"b.mpg\"\r\n\r\n") << lone
            << QByteArrayList{"a.mpg", "b.mpg"} << QByteArray();
        QTest::newRow("a line without quotes stands as it is, an unclosed quote runs to its end")
            << QByteArray("plain name.mpg\r\n\"open.mpg") << lone
            << QByteArrayList{"plain name.mpg", "open.mpg"} << QByteArray();
        QTest::newRow("neither a byte-order mark nor text behind the closing quote is in a path")
            << QByteArray("\xEF\xBB\xBF\"a.mpg\" \r\n") << lone << QByteArrayList{"a.mpg"}
            << QByteArray();
        QTest::newRow("a leading dash is not taken for a switch")
            << QByteArray("\"-x.mpg\"\r\n\"/abs/-y.mpg\"") << lone
            << QByteArrayList{"./-x.mpg", "/abs/-y.mpg"} << QByteArray();
        QTest::newRow("a list that cannot be read is named in the error")
            << QByteArray() << QByteArrayList{"-v", "@list.txt"} << QByteArrayList{"-v"}
            << QByteArray("cannot read the list file \"list.txt\": No such file or directory");
    }

    void argumentFilesAreExpanded() {
        QFETCH(QByteArray, list);
        QFETCH(QByteArrayList, args);
        QFETCH(QByteArrayList, expanded);
        QFETCH(QByteArray, error);
        const FileReader read = [&](const std::string& path) -> std::optional<std::string> {
            if (path != "list.txt" || list.isNull()) {
                errno = ENOENT;
                return std::nullopt;
            }
            return S(list);
        };
        std::vector<std::string> input;
        for (const QByteArray& arg : args)
            input.push_back(S(arg));
        const Expansion expansion = ExpandArgFiles(input, read);
        QByteArrayList got;
        for (const std::string& arg : expansion.args)
            got << B(arg);
        QCOMPARE(got, expanded);
        QCOMPARE(B(expansion.error), error);
    }

    // Pipe reads can end anywhere, even between CR and LF; the lines come out the same.
    void linesSurviveAnySplitOfTheOutput() {
        const std::string output = "first\r\n<log level=\"x\">ü</log>\n\nlast";
        const QByteArrayList expected{"first", "<log level=\"x\">ü</log>", "", "last"};
        for (std::size_t split = 0; split <= output.size(); ++split) {
            QByteArrayList lines;
            const LineSink sink = [&](const std::string& line) { lines << B(line); };
            std::string pending = output.substr(0, split);
            TakeLines(pending, sink, false);
            pending += output.substr(split);
            TakeLines(pending, sink, false);
            TakeLines(pending, sink, true);
            QCOMPARE(lines, expected);
        }
    }
};

QTEST_GUILESS_MAIN(AdapterParsingTest)
#include "parsing_test.moc"
