#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>
#include <tests/support/Recorder.h>
#include <ui/docking/DockPlaceHolder.h>

using namespace NorvaneTest;
using Norvane::UI::DockPlaceHolder;

/// What becomes of a panel, its place holder and the focus when it comes and goes.
class tst_DockPanels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void presentPanelBecomesCurrent();
    void placeHolderIsReplaced_data();
    void placeHolderIsReplaced();
    void placeHolderStandsForPanelInLayout();
    void closedPanelIsDeletedIfItWants();
    void lastTabClosesFloatingWindowOnly();
    void focusStaysInPaneWhenTabCloses();
};

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
    QBuffer closed;
    desk.window->saveLayout(&closed, nullptr);
    dock->removeWidget(panel);
    const QPointer<DockPlaceHolder> placeHolder(dock->restorePlaceHolderForWidget(panel));
    QCOMPARE(tabs(dock), latin1("*B A"));
    QVERIFY(placeHolder && panel->isVisible() && !panel->parentWidget());
    dock->addWidget(panel, false, false);
    QCOMPARE(tabs(dock), latin1("*B A"));
    QVERIFY(!dock->restorePlaceHolderForWidget(desk.panel(latin1("C"))));
}

void tst_DockPanels::closedPanelIsDeletedIfItWants()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    const QPointer<Panel> panel(static_cast<Panel*>(dock->widget(1)));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->refuses = true;
    dock->closeTab(1);
    deleteDeferred();
    QVERIFY(panel && panel->parentWidget());
    panel->refuses = false;
    dock->closeTab(1);
    deleteDeferred();
    QVERIFY(!panel);
}

void tst_DockPanels::lastTabClosesFloatingWindowOnly()
{
    Desk desk;
    Dock* const first = desk.floatingPane("A");
    Dock* const second = desk.fill(first->split(Qt::Horizontal, false), "B");
    second->closeActiveTab();
    deleteDeferred();
    QCOMPARE(desk.trees(), latin1("V() + H(*A, -)"));
    second->close();
    deleteDeferred();
    first->closeActiveTab();
    WAIT_FOR(desk.trees() == latin1("V()"));
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

QTEST_MAIN(tst_DockPanels)
#include "tst_DockPanels.moc"
