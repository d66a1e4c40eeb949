#include <examples/host/LayoutHistory.h>

#include <QtTest>

using namespace Norvane::Host;

class tst_LayoutHistory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stepsAreWalked();
    void oldestStepsAreForgotten();
    void samePlacesAreNoStep_data();
    void samePlacesAreNoStep();
    void closedPanelsComeBackAsTheyWere();
};

namespace {

/// A pane with a panel. \a attributes are the pane's, \a state is the panel's.
QByteArray layout(const QByteArray& width, const QByteArray& attributes = QByteArray(),
                  const QByteArray& state = QByteArray())
{
    return "<layout version=\"1.0\"><window x=\"0\" w=\"" + width + "\"><splitter><dock id=\"d\"" +
           attributes + "><page id=\"Viewer.1\" layout=\"" + state +
           "\"/></dock></splitter></window></layout>";
}

} // namespace

void tst_LayoutHistory::stepsAreWalked()
{
    LayoutHistory history;
    QVERIFY(history.undo().isEmpty());
    for (const char* width : {"1", "2", "3"})
        history.record(layout(width));
    QVERIFY(!history.canRedo());
    QCOMPARE(history.undo(), layout("2"));
    QCOMPARE(history.undo(), layout("1"));
    QVERIFY(!history.canUndo());
    QVERIFY(history.undo().isEmpty());
    QCOMPARE(history.redo(), layout("2"));
    QVERIFY(history.canRedo());
    history.record(layout("4"));
    QVERIFY(!history.canRedo());
    QVERIFY(history.redo().isEmpty());
    QCOMPARE(history.undo(), layout("2"));
}

void tst_LayoutHistory::oldestStepsAreForgotten()
{
    LayoutHistory history(3);
    for (int width = 1; width <= 5; ++width)
        history.record(layout(QByteArray::number(width)));
    QCOMPARE(history.undo(), layout("4"));
    QCOMPARE(history.undo(), layout("3"));
    QVERIFY(!history.canUndo());
}

void tst_LayoutHistory::samePlacesAreNoStep_data()
{
    QTest::addColumn<QByteArray>("changed");
    QTest::addColumn<bool>("isStep");
    QTest::addColumn<bool>("isStepWhileSettling");
    QTest::newRow("the same") << layout("1") << false << false;
    QTest::newRow("a panel's state") << layout("1", "", "fit|a") << false << false;
    QTest::newRow("tab in front") << layout("1", " activePageId=\"Viewer.1\" focus=\"true\"") << false
                                  << false;
    QTest::newRow("title of a lone panel") << layout("1", " hideTitles=\"1\"") << false << false;
    QTest::newRow("size") << layout("2") << true << false;
    QTest::newRow("panel") << layout("1").replace("Viewer.1", "Viewer.2") << true << true;
    QTest::newRow("splitter") << layout("1").replace("<splitter", "<splitter orientation=\"1\"") << true
                              << true;
}

void tst_LayoutHistory::samePlacesAreNoStep()
{
    QFETCH(QByteArray, changed);
    LayoutHistory history;
    LayoutHistory settling;
    for (LayoutHistory* const each : {&history, &settling}) {
        each->record(layout("1"));
        each->record(layout("9"));
        QCOMPARE(each->undo(), layout("1"));
    }
    history.record(changed);
    QTEST(history.canUndo(), "isStep");
    QCOMPARE(history.canRedo(), !history.canUndo());
    settling.settle(changed);
    QTEST(settling.canUndo(), "isStepWhileSettling");
    // What is no step is remembered all the same.
    settling.record(layout("8"));
    QCOMPARE(settling.undo(), changed);
}

void tst_LayoutHistory::closedPanelsComeBackAsTheyWere()
{
    LayoutHistory history;
    history.record(layout("1", "", "old"));
    QMap<QString, QString> states;
    states.insert(QLatin1String("Viewer.1"), QLatin1String("<new> & \"late\""));
    states.insert(QLatin1String("Viewer.2"), QLatin1String("elsewhere"));
    history.keepStates(states);
    history.record(layout("1").replace("<page id=\"Viewer.1\" layout=\"\"/>", ""));
    const QByteArray undone = history.undo();
    QVERIFY2(undone.contains("&lt;new&gt; &amp; &quot;late&quot;"), undone.constData());
    QVERIFY(!undone.contains("old"));
    QVERIFY(!undone.contains("elsewhere"));
}

QTEST_MAIN(tst_LayoutHistory)
#include "tst_LayoutHistory.moc"
