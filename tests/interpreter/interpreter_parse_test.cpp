// How a program line is taken apart: the C runtime's argument rules, and the program, its
// arguments and its output file.

#include "tools/torvane-cmd/command_line.h"
#include "tools/torvane-cmd/crt_args.h"

#include <QByteArrayList>
#include <QTest>

using namespace jobscript;

namespace {

QByteArrayList ToList(const std::vector<std::string>& texts) {
    QByteArrayList list;
    for (const std::string& text : texts)
        list.append(QByteArray::fromStdString(text));
    return list;
}

}  // namespace

class InterpreterParseTest : public QObject {
    Q_OBJECT
private slots:
    void crtArguments_data();
    void crtArguments();
    void programLines_data();
    void programLines();
};

void InterpreterParseTest::crtArguments_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArrayList>("args");
    QTest::newRow("blanks and tabs separate")
        << QByteArray("  a  b\tc ") << QByteArrayList{"a", "b", "c"};
    QTest::newRow("quotes group and are removed")
        << QByteArray("\"a b\" c") << QByteArrayList{"a b", "c"};
    QTest::newRow("empty quotes are an empty argument")
        << QByteArray("\"\" x") << QByteArrayList{"", "x"};
    QTest::newRow("doubled quote inside quotes is one quote")
        << QByteArray("\"a\"\"b c\"") << QByteArrayList{"a\"b c"};
    QTest::newRow("2n backslashes and a quote: n backslashes, quote closes")
        << QByteArray("\"a\\\\\" b") << QByteArrayList{"a\\", "b"};
    QTest::newRow("2n+1 backslashes and a quote: literal quote")
        << QByteArray("a\\\"b a\\\\\\\"b") << QByteArrayList{"a\"b", "a\\\"b"};
    QTest::newRow("an open quote runs to the end")
        << QByteArray("x \"a b ") << QByteArrayList{"x", "a b "};
    QTest::newRow("operators, dashes and letters beyond ASCII are text")
        << QByteArray("\"/m/a b & c;d|e<f>g$h.mpg\" -x %PATH% \"Ünï – ü\"")
        << QByteArrayList{"/m/a b & c;d|e<f>g$h.mpg", "-x", "%PATH%", "Ünï – ü"};
}

void InterpreterParseTest::crtArguments() {
    QFETCH(QByteArray, text);
    QFETCH(QByteArrayList, args);
    QCOMPARE(ToList(SplitCrtArguments(text.toStdString())), args);
}

void InterpreterParseTest::programLines_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QByteArrayList>("args");
    QTest::addColumn<int>("output");
    QTest::addColumn<QByteArray>("target");
    const int term = int(OutputTarget::Terminal);
    const int trunc = int(OutputTarget::Truncate);
    QTest::newRow("quoted program loses its trailing blank")
        << QByteArray("\"/app/VCDImager/vcdxbuild.exe \" --gui")
        << QByteArray("\"/app/VCDImager/vcdxbuild.exe \"")
        << QByteArray("/app/VCDImager/vcdxbuild.exe") << QByteArrayList{"--gui"} << term
        << QByteArray();
    QTest::newRow("quoted program loses trailing dots and blanks, keeps inner ones")
        << QByteArray("\"/a b/t.exe. . \"x") << QByteArray("\"/a b/t.exe. . \"")
        << QByteArray("/a b/t.exe") << QByteArrayList{"x"} << term << QByteArray();
    QTest::newRow("bare target") << QByteArray("t a > log.txt") << QByteArray("t")
                                 << QByteArray("t") << QByteArrayList{"a"} << trunc
                                 << QByteArray("log.txt");
    QTest::newRow("quoted target with blanks")
        << QByteArray("\"t\" \"a b\" > \"/out dir/log & x.txt\"") << QByteArray("\"t\"")
        << QByteArray("t") << QByteArrayList{"a b"} << trunc << QByteArray("/out dir/log & x.txt");
    QTest::newRow("a bare program ends at the operator")
        << QByteArray("t>log.txt") << QByteArray("t") << QByteArray("t") << QByteArrayList{}
        << trunc << QByteArray("log.txt");
    QTest::newRow("an operator inside quotes is text")
        << QByteArray("t \"a>b\" > \"c>d\"") << QByteArray("t") << QByteArray("t")
        << QByteArrayList{"a>b"} << trunc << QByteArray("c>d");
    QTest::newRow("other operators reach the program as text")
        << QByteArray("t a&b | c < d ^e %PATH% $x;y") << QByteArray("t") << QByteArray("t")
        << QByteArrayList{"a&b", "|", "c", "<", "d", "^e", "%PATH%", "$x;y"} << term
        << QByteArray();
    // The operator is found by counting quotes alone; the backslash matters only to the
    // program's own splitting afterwards.
    QTest::newRow("a backslash before a quote does not hide the operator")
        << QByteArray("t \"a\\\" > log.txt") << QByteArray("t") << QByteArray("t")
        << QByteArrayList{"a\" "} << trunc << QByteArray("log.txt");
}

void InterpreterParseTest::programLines() {
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, word);
    QFETCH(QByteArray, program);
    QFETCH(QByteArrayList, args);
    QFETCH(int, output);
    QFETCH(QByteArray, target);
    const ProgramLine parsed = ParseProgramLine(line.toStdString());
    QCOMPARE(QByteArray::fromStdString(parsed.word), word);
    QCOMPARE(QByteArray::fromStdString(parsed.program), program);
    QCOMPARE(ToList(parsed.args), args);
    QCOMPARE(int(parsed.output), output);
    QCOMPARE(QByteArray::fromStdString(parsed.target), target);
    QVERIFY(!parsed.missingTarget);
}

QTEST_APPLESS_MAIN(InterpreterParseTest)
#include "interpreter_parse_test.moc"
