#include <ui/progress/TimeToGo.h>

#include <ui/progress/TaskPrivate.h>

#include <QtTest>

#include <climits>

using namespace Norvane::UI;

class tst_TimeToGo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void estimate_data();
    void estimate();
    void text_data();
    void text();
    void state_data();
    void state();
};

void tst_TimeToGo::estimate_data()
{
    QTest::addColumn<int>("elapsed");
    QTest::addColumn<int>("progress");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("seconds");
    QTest::newRow("half done") << 10 << 5 << 10 << 10;
    QTest::newRow("rounded down") << 1 << 3 << 4 << 0;
    QTest::newRow("more than all, late") << 4 << 10 << 5 << -1;
    QTest::newRow("more than all, early") << 2 << 10 << 5 << 0;
    QTest::newRow("past midnight") << -86000 << 5 << 10 << -85999;
    QTest::newRow("more seconds than an int holds") << 86399 << 1 << INT_MAX << -1;
    QTest::newRow("no difference fits an int") << 1 << 1 << INT_MIN << -1;
}

void tst_TimeToGo::estimate()
{
    QFETCH(int, elapsed);
    QFETCH(int, progress);
    QFETCH(int, maximum);
    QTEST(secondsToGo(elapsed, progress, maximum), "seconds");
}

void tst_TimeToGo::text_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    const struct {
        int seconds;
        const char* text;
    } rows[] = {{-1, "?"},
                {0, "0 seconds."},
                {60, "1 minute 0 seconds."},
                {119, "1 minute 59 seconds."},
                {179, "2 minutes 59 seconds."},
                {180, "3 minutes."},
                {3599, "59 minutes."},
                {3600, "1 hour 0 minutes."},
                {3660, "1 hour 1 minute."},
                {7260, "2 hours 1 minute."}};
    for (const auto& row : rows) {
        QTest::newRow(row.text) << row.seconds
                                << QString::fromLatin1("Time to go: ") + QString::fromLatin1(row.text);
    }
}

void tst_TimeToGo::text()
{
    QFETCH(int, seconds);
    QTEST(timeToGoText(seconds), "text");
}

void tst_TimeToGo::state_data()
{
    QTest::addColumn<int>("progress");
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<bool>("error");
    QTest::addColumn<QString>("text");
    QTest::newRow("not started") << -1 << false << false << QString::fromLatin1("Time to go: Awaiting Task");
    QTest::newRow("nothing done") << 0 << false << false << QString::fromLatin1("Time to go: Calculating");
    QTest::newRow("done") << 10 << false << false << QString::fromLatin1("Time to go: 0 seconds.");
    QTest::newRow("cancelled") << -1 << true << false << QString::fromLatin1("Cancelling");
    QTest::newRow("failed when cancelled") << 10 << true << true << QString::fromLatin1("");
}

void tst_TimeToGo::state()
{
    QFETCH(int, progress);
    QFETCH(bool, cancelled);
    QFETCH(bool, error);
    TaskPrivate task(nullptr, QString(), 10, 0, nullptr);
    task.progress = progress;
    task.cancelled = cancelled;
    task.error = error;
    QTEST(timeToGoText(task), "text");
}

QTEST_APPLESS_MAIN(tst_TimeToGo)
#include "tst_TimeToGo.moc"
