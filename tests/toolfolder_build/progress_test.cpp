// The progress line of a build: honest figures whatever the tool reports.

#include "tools/adapters/authoring/progress_meter.h"

#include <QTest>
#include <climits>

using namespace authoring;

class ProgressTest : public QObject {
    Q_OBJECT
private slots:
    void figuresStayWithinTheSize_data();
    void figuresStayWithinTheSize();
};

void ProgressTest::figuresStayWithinTheSize_data() {
    QTest::addColumn<long long>("position");
    QTest::addColumn<long long>("size");
    QTest::addColumn<QString>("line");
    QTest::newRow("halfway") << 50LL << 200LL << "\r#write: 50/200 (25%)          ";
    QTest::newRow("past the size at the end")
        << 18525LL << 18476LL << "\r#write: 18476/18476 (100%)          ";
    QTest::newRow("a position whose hundredfold overflows")
        << 100000000000000000LL << LLONG_MAX
        << "\r#write: 100000000000000000/9223372036854775807 ( 1%)          ";
    QTest::newRow("no size yet") << 7LL << 0LL << "\r#write: 7/0 ( 0%)          ";
}

void ProgressTest::figuresStayWithinTheSize() {
    QFETCH(long long, position);
    QFETCH(long long, size);
    QFETCH(QString, line);
    GuiEvent event;
    event.kind = GuiEvent::Kind::Progress;
    event.operation = "write";
    event.position = position;
    event.size = size;
    ProgressMeter meter;
    QCOMPARE(QString::fromStdString(meter.Update(event)), line);
}

QTEST_APPLESS_MAIN(ProgressTest)
#include "progress_test.moc"
