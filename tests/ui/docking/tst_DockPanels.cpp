#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>
#include <tests/support/Recorder.h>
#include <ui/docking/DockPlaceHolder.h>

using namespace NorvaneTest;
using Norvane::UI::DockPlaceHolder;

/// Adding, removing, choosing and closing the panels of a pane.
class tst_DockPanels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void panelIsInserted_data();
    void panelIsInserted();
    void presentPanelBecomesCurrent();
    void placeHolderIsReplaced_data();
    void placeHolderIsReplaced();
    void placeHolderStandsForPanelInLayout();
    void panelIsRemoved_data();
    void panelIsRemoved();
    void tabsAreStepped_data();
    void tabsAreStepped();
    void nullMeansPreviousTab();
    void tabIsClosed_data();
    void tabIsClosed();
    void lastTabClosesFloatingWindowOnly();
    void focusStaysInPaneWhenTabCloses();
    void soloLeavesCurrentAndRefusing();
    void closedPaneKeepsRefusing();
};

void tst_DockPanels::panelIsInserted_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("result");
    QTest::newRow("first") << 0 << latin1("N A *B");
    QTest::newRow("before the current") << 1 << latin1("A N *B");
    QTest::newRow("last") << 2 << latin1("A *B N");
    QTest::newRow("-1 appends") << -1 << latin1("A *B N");
    QTest::newRow("past the end appends") << 99 << latin1("A *B N");
}

void tst_DockPanels::panelIsInserted()
{
    QFETCH(int, index);
    Desk desk;
    Dock* const dock = desk.pane("A B");
    Recorder recorder(desk.window);
    QVERIFY(desk.show());
    dock->insertWidget(index, desk.panel(latin1("N")));
    QTEST(tabs(dock), "result");
    QCOMPARE(recorder.take(), latin1("+N"));
    QVERIFY(dock->currentWidget()->isVisible());
}

void tst_DockPanels::presentPanelBecomesCurrent()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    Recorder recorder(desk.window);
    QWidget* const panel = dock->widget(0);
    dock->addWidget(panel, false, true);
    dock->addWidget(panel, false, true);
    QCOMPARE(tabs(dock), latin1("*A B"));
    QCOMPARE(recorder.take(), latin1("*A"));
    QCOMPARE(dock->keptWidgets(), QList<QWidget*>() << panel);
    dock->addWidget(desk.panel(latin1("A")), false, false);
    QCOMPARE(tabs(dock), latin1("*A B A"));
    delete panel;
    QVERIFY(dock->keptWidgets().isEmpty());
}

void tst_DockPanels::placeHolderIsReplaced_data()
{
    QTest::addColumn<bool>("makeCurrent");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("result");
    QTest::newRow("made current") << true << 0 << latin1("A *B C");
    QTest::newRow("in the background") << false << 0 << latin1("*A B C");
    QTest::newRow("takes over the current place") << false << 1 << latin1("A *B C");
}

void tst_DockPanels::placeHolderIsReplaced()
{
    QFETCH(bool, makeCurrent);
    QFETCH(int, current);
    Desk desk;
    Dock* const dock = desk.pane("A");
    const QPointer<DockPlaceHolder> placeHolder(new DockPlaceHolder);
    placeHolder->setObjectName(latin1("B"));
    dock->addWidget(placeHolder, false, false);
    desk.fill(dock, "C");
    dock->setCurrentTab(current);
    Recorder recorder(desk.window);
    dock->addWidget(desk.panel(latin1("B")), makeCurrent, false);
    QTEST(tabs(dock), "result");
    QVERIFY(recorder.take().endsWith(latin1("+B")));
    WAIT_FOR(!placeHolder);
}

void tst_DockPanels::placeHolderStandsForPanelInLayout()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    QWidget* const panel = dock->widget(0);
    QVERIFY(!dock->restorePlaceHolderForWidget(panel));
    desk.window->saveLayout(nullptr, nullptr);
    dock->removeWidget(panel);
    const QPointer<DockPlaceHolder> placeHolder(dock->restorePlaceHolderForWidget(panel));
    QCOMPARE(tabs(dock), latin1("*B A"));
    QVERIFY(placeHolder && panel->isVisible() && !panel->parentWidget());
    dock->addWidget(panel, false, false);
    QCOMPARE(tabs(dock), latin1("*B A"));
    QVERIFY(!dock->restorePlaceHolderForWidget(desk.panel(latin1("C"))));
}

void tst_DockPanels::panelIsRemoved_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("next");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("lastReport");
    QTest::newRow("the current one") << 1 << 0 << latin1("*A C") << latin1("-B");
    QTest::newRow("the current one, last follows") << 1 << 1 << latin1("A *C") << latin1("-B");
    QTest::newRow("before the current one") << 0 << 1 << latin1("*B C") << latin1("-A");
    QTest::newRow("behind the current one") << 2 << 0 << latin1("A *B") << latin1("-C");
}

void tst_DockPanels::panelIsRemoved()
{
    QFETCH(int, index);
    QFETCH(int, next);
    QFETCH(QString, lastReport);
    Desk desk;
    Dock* const dock = desk.pane("A B C");
    dock->setCurrentTab(1);
    QWidget* const panel = dock->widget(index);
    Recorder recorder(desk.window);
    dock->removeWidgetAndSetCurrentTab(panel, next);
    QTEST(tabs(dock), "result");
    QVERIFY(!panel->parentWidget());
    const QString reports = recorder.take();
    QVERIFY2(reports.endsWith(lastReport), qPrintable(reports));
    dock->removeWidget(panel);
    dock->removeWidget(nullptr);
    QCOMPARE(recorder.take(), QString());
}

void tst_DockPanels::tabsAreStepped_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("result");
    QTest::newRow("next") << 0 << QByteArray("nextTab") << latin1("A *B C");
    QTest::newRow("next of the last") << 2 << QByteArray("nextTab") << latin1("*A B C");
    QTest::newRow("previous") << 2 << QByteArray("prevTab") << latin1("A *B C");
    QTest::newRow("previous of the first") << 0 << QByteArray("prevTab") << latin1("A B *C");
}

void tst_DockPanels::tabsAreStepped()
{
    QFETCH(int, start);
    QFETCH(QByteArray, slot);
    Desk desk;
    Dock* const dock = desk.pane("A B C");
    dock->setCurrentTab(start);
    QVERIFY(QMetaObject::invokeMethod(dock, slot.constData()));
    QTEST(tabs(dock), "result");
    Dock* const empty = desk.pane("");
    QVERIFY(QMetaObject::invokeMethod(empty, slot.constData()));
}

void tst_DockPanels::nullMeansPreviousTab()
{
    Desk desk;
    Dock* const dock = desk.pane("A B C");
    dock->setCurrentTab(0);
    dock->setCurrentTab(2);
    Recorder recorder(desk.window);
    dock->setCurrentWidget(nullptr);
    QCOMPARE(tabs(dock), latin1("*A B C"));
    QVERIFY(recorder.take().endsWith(latin1("*A")));
    dock->setCurrentWidget(desk.panel(latin1("elsewhere")));
    dock->setCurrentTab(7);
    QCOMPARE(tabs(dock), latin1("*A B C"));
    QCOMPARE(recorder.take(), QString());
}

void tst_DockPanels::tabIsClosed_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("refuses");
    QTest::addColumn<bool>("deletes");
    QTest::addColumn<QString>("result");
    QTest::newRow("the current one") << 1 << false << false << latin1("*A C");
    QTest::newRow("another one") << 2 << false << false << latin1("A *B");
    QTest::newRow("deleted on close") << 1 << false << true << latin1("*A C");
    QTest::newRow("refused") << 1 << true << false << latin1("A *B C");
    QTest::newRow("refused, would be deleted") << 2 << true << true << latin1("A *B C");
}

void tst_DockPanels::tabIsClosed()
{
    QFETCH(int, index);
    QFETCH(bool, refuses);
    QFETCH(bool, deletes);
    Desk desk;
    Dock* const dock = desk.pane("A B C");
    dock->setCurrentTab(1);
    const QPointer<QWidget> panel(dock->widget(index));
    static_cast<Panel*>(panel.data())->refuses = refuses;
    panel->setAttribute(Qt::WA_DeleteOnClose, deletes);
    QVERIFY(desk.show());
    dock->closeTab(index);
    dock->closeTab(3);
    dock->closeTab(-1);
    deleteDeferred();
    QTEST(tabs(dock), "result");
    QCOMPARE(panel.isNull(), deletes && !refuses);
    QVERIFY(!panel || refuses || !panel->parentWidget());
}

void tst_DockPanels::lastTabClosesFloatingWindowOnly()
{
    Desk desk;
    Dock* const docked = desk.pane("A");
    Dock* const first = desk.floatingPane("B");
    Dock* const second = first->split(Qt::Horizontal, false);
    desk.fill(second, "C");
    QVERIFY(desk.show());
    docked->closeActiveTab();
    second->closeActiveTab();
    deleteDeferred();
    QCOMPARE(desk.trees(), latin1("V(-) + H(*B, -)"));
    second->close();
    deleteDeferred();
    first->closeActiveTab();
    WAIT_FOR(desk.trees() == latin1("V(-)"));
}

void tst_DockPanels::focusStaysInPaneWhenTabCloses()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    desk.pane("C");
    QVERIFY(desk.show());
    dock->setFocus();
    WAIT_FOR(desk.window->activeTab() == dock->widget(1));
    dock->closeActiveTab();
    QCOMPARE(QApplication::focusWidget(), dock->widget(0));
    dock->closeActiveTab();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(dock));
}

void tst_DockPanels::soloLeavesCurrentAndRefusing()
{
    Desk desk;
    Dock* const dock = desk.pane("A B C");
    static_cast<Panel*>(dock->widget(1))->refuses = true;
    dock->closeInactiveTabs();
    QCOMPARE(tabs(dock), latin1("B *C"));
    dock->setCurrentTab(0);
    dock->closeInactiveTabs();
    QCOMPARE(tabs(dock), latin1("*B"));
}

void tst_DockPanels::closedPaneKeepsRefusing()
{
    Desk desk;
    const QPointer<Dock> dock(desk.pane("A B C"));
    const QPointer<QWidget> last(dock->widget(2));
    Panel* const middle = static_cast<Panel*>(dock->widget(1));
    middle->refuses = true;
    Recorder recorder(desk.window);
    QVERIFY(!dock->close());
    QCOMPARE(tabs(dock), latin1("*B"));
    const QStringList lost = recorder.take().split(QLatin1Char(' ')).filter(latin1("-"));
    QCOMPARE(lost.join(latin1(" ")), latin1("-C -A"));
    QVERIFY(last && !last->parentWidget());
    middle->refuses = false;
    QVERIFY(dock->close());
    WAIT_FOR(!dock);
    QVERIFY(desk.window);
}

QTEST_MAIN(tst_DockPanels)
#include "tst_DockPanels.moc"
