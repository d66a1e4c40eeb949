#include <ui/docking/DockMainWindow.h>

#include <tests/support/Desk.h>
#include <tests/support/Recorder.h>
#include <ui/docking/DockPlaceHolder.h>

using namespace NorvaneTest;
using Norvane::UI::DockPlaceHolder;

class tst_DockMainWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void focusMovesThroughPanesAndTabs();
    void focusActivatesCurrentTab();
    void floatingWindowFitsPanel();
    void paneIsFoundByName_data();
    void paneIsFoundByName();
    void panesAreFoundByPrefix();
    void placeHoldersInFloatingWindowsCountTwice();
    void paneIsFoundByPosition();
};

void tst_DockMainWindow::focusMovesThroughPanesAndTabs()
{
    Desk desk;
    Dock* const first = desk.pane("A B");
    desk.pane("");
    Dock* const second = desk.fill(first->split(Qt::Horizontal, false), "C");
    QVERIFY(desk.show());
    first->setFocus();
    QStringList visited;
    for (const char* const slot : {"nextDock", "nextDock", "prevDock", "prevDock", "nextTab", "nextTab",
                                   "nextTab", "prevTab", "prevTab", "prevTab"}) {
        QVERIFY(QMetaObject::invokeMethod(desk.window, slot));
        visited.append(desk.window->activeTab()->objectName());
    }
    QCOMPARE(visited.join(latin1(" ")), latin1("C B C B C A B A C B"));

    // Another window gets the keyboard later than its pane the right tab.
    const Dock* const floating = desk.fill(desk.floatingPane("D"), "E");
    QVERIFY(desk.show());
    second->setFocus();
    desk.window->nextTab();
    QCOMPARE(tabs(floating), latin1("*D E"));

    QWidget outside(desk.window);
    outside.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(desk.show());
    outside.show();
    outside.setFocus();
    for (const char* const slot : {"nextDock", "prevDock", "nextTab", "prevTab"}) {
        QVERIFY(QMetaObject::invokeMethod(desk.window, slot));
        QCOMPARE(QApplication::focusWidget(), &outside);
    }
    QVERIFY(!desk.window->activeDock() && !desk.window->activeTab());
}

void tst_DockMainWindow::focusActivatesCurrentTab()
{
    Desk desk;
    Dock* const first = desk.pane("A");
    Dock* const second = desk.pane("B C");
    QWidget child(second->widget(1));
    QVERIFY(desk.show());
    first->setFocus();
    Recorder recorder(desk.window);
    second->setFocus();
    QCOMPARE(recorder.take(), latin1(""));
    desk.window->setHighlightCurrentTab(true);
    first->setFocus();
    QCOMPARE(recorder.take(), latin1("*A"));
    desk.window->setHighlightCurrentTab(true);
    second->setFocus();
    QCOMPARE(recorder.take(), latin1("*C *C"));
    child.setFocus();
    QCOMPARE(recorder.take(), latin1(""));
    desk.window->setHighlightCurrentTab(false);
    first->setFocus();
    QCOMPARE(recorder.take(), latin1(""));
}

void tst_DockMainWindow::floatingWindowFitsPanel()
{
    Desk desk;
    DockWindow* const shown = desk.window->addNewFloatingDock(desk.panel(latin1("A")));
    QVERIFY(shown->snapEnabled() && shown->isVisible());
    QCOMPARE(shown->size(), desk.window->docks().first()->sizeHint().expandedTo(shown->minimumSizeHint()));
    QVERIFY(!desk.window->addNewFloatingDock(nullptr)->isVisible());
    QWidget withoutSizeHint;
    QVERIFY(!desk.window->addNewFloatingDock(&withoutSizeHint)->size().isEmpty());
}

void tst_DockMainWindow::paneIsFoundByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exact");
    QTest::addColumn<bool>("ids");
    QTest::addColumn<QString>("found");
    const QString none = latin1("no pane");
    const QString main = latin1("*Viewer.1");
    const QString other = latin1("*Notes.2");
    const QString floating = latin1("*Curves.1");
    QTest::newRow("panel") << latin1("Viewer.1") << true << false << main;
    QTest::newRow("widget inside a panel") << latin1("button") << true << false << other;
    QTest::newRow("the pane itself") << latin1("pane2") << true << false << other;
    QTest::newRow("widget in no pane") << latin1("Curves.9") << false << true << none;
    QTest::newRow("pane id, ids not asked") << latin1("Graph.1") << true << false << none;
    QTest::newRow("pane id") << latin1("Graph.1") << true << true << other;
    QTest::newRow("floating pane id") << latin1("Scopes.3") << true << true << floating;
    QTest::newRow("pane id of that kind") << latin1("Graph.7") << false << true << other;
    QTest::newRow("pane id of that kind, exact") << latin1("Graph.7") << true << true << none;
    QTest::newRow("pane id, only its beginning") << latin1("Graph.") << true << true << none;
    QTest::newRow("panel of that kind") << latin1("Viewer.9") << false << false << main;
    QTest::newRow("ids come before panels") << latin1("Curves.7") << false << true << other;
    QTest::newRow("floating panel of that kind") << latin1("Curves.7") << false << false << floating;
    QTest::newRow("last dot counts") << latin1("Viewer.1.1") << false << true << none;
    QTest::newRow("empty") << latin1("") << false << true << none;
}

void tst_DockMainWindow::paneIsFoundByName()
{
    QFETCH(QString, name);
    QFETCH(bool, exact);
    QFETCH(bool, ids);
    Desk desk;
    desk.pane("Viewer.1");
    desk.window->docks().first()->paneIDs() << latin1("graph.1");
    Dock* const other = desk.pane("Notes.2");
    other->setObjectName(latin1("pane2"));
    other->paneIDs() << latin1("Graph.1") << latin1("Curves.4");
    QWidget button(other->widget(0));
    button.setObjectName(latin1("button"));
    desk.floatingPane("Curves.1")->paneIDs() << latin1("Scopes.3");
    QWidget outside(desk.window);
    outside.setObjectName(latin1("Curves.9"));
    QTEST(tabs(desk.window->findDockByName(name, exact, ids)), "found");
}

void tst_DockMainWindow::panesAreFoundByPrefix()
{
    Desk desk;
    Dock* const first = desk.pane("Viewer.1 Graph.1 Viewer.2");
    Dock* const second = desk.pane("Viewer.3 viewer.4");
    Dock* const floating = desk.floatingPane("Viewer.5");
    QWidget outside(desk.window);
    outside.setObjectName(latin1("Viewer.6"));
    const QList<Dock*> found = desk.window->getDocksWithPrefix(latin1("Viewer."));
    QCOMPARE(int(found.size()), 4);
    QCOMPARE(int(found.count(first)), 2);
    QVERIFY(found.contains(second) && found.contains(floating));
    QVERIFY(desk.window->getDocksWithPrefix(latin1("Viewer.12")).isEmpty());
}

void tst_DockMainWindow::placeHoldersInFloatingWindowsCountTwice()
{
    Desk desk;
    DockPlaceHolder* const docked = new DockPlaceHolder;
    DockPlaceHolder* const floating = new DockPlaceHolder;
    desk.pane("A")->addWidget(docked, false, false);
    desk.floatingPane("B")->addWidget(floating, false, false);
    QCOMPARE(desk.window->placeHolders(), QList<DockPlaceHolder*>() << docked << floating << floating);
    delete docked;
    delete floating;
}

void tst_DockMainWindow::paneIsFoundByPosition()
{
    Desk desk;
    Dock* const docked = desk.pane("A");
    Dock* const floating = desk.floatingPane("B");
    QVERIFY(desk.show());
    DockWindow* const window = desk.window->floatingWindows().first();
    const QPoint middle = docked->mapToGlobal(docked->rect().center());
    window->resize(100, 100);
    window->move(middle - QPoint(50, 50));
    WAIT_FOR(desk.window->findDockAt(middle) == floating);
    QCOMPARE(desk.window->findDockAt(docked->mapToGlobal(QPoint(10, 40))), docked);
    window->hide();
    QCOMPARE(desk.window->findDockAt(middle), docked);
    QVERIFY(!desk.window->findDockAt(QPoint(-500, -500)));

    QVERIFY(desk.show());
    QCursor::setPos(middle);
    QCOMPARE(desk.window->focusWidgetUnderCursor(), docked);
    QCOMPARE(QApplication::focusWidget(), docked->widget(0));
    QCursor::setPos(5, 5);
    QVERIFY(!desk.window->focusWidgetUnderCursor());
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(desk.window));
}

QTEST_MAIN(tst_DockMainWindow)
#include "tst_DockMainWindow.moc"
