#include <ui/docking/DockMainWindow.h>

#include <tests/support/Desk.h>
#include <ui/docking/DockPlaceHolder.h>

using namespace NorvaneTest;
using Norvane::UI::DockPlaceHolder;

/// Finding panes: by name, by place.
class tst_DockMainWindowLookup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void paneIsFoundByName_data();
    void paneIsFoundByName();
    void panesAreFoundByPrefix();
    void placeHoldersInFloatingWindowsCountTwice();
    void paneIsFoundByPosition();
};

void tst_DockMainWindowLookup::paneIsFoundByName_data()
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
    QTest::newRow("panel of that kind") << latin1("Viewer.9") << false << false << main;
    QTest::newRow("ids come before panels") << latin1("Curves.7") << false << true << other;
    QTest::newRow("floating panel of that kind") << latin1("Curves.7") << false << false << floating;
    QTest::newRow("last dot counts") << latin1("Viewer.1.1") << false << true << none;
    QTest::newRow("empty") << latin1("") << false << true << none;
}

void tst_DockMainWindowLookup::paneIsFoundByName()
{
    QFETCH(QString, name);
    QFETCH(bool, exact);
    QFETCH(bool, ids);
    Desk desk;
    desk.pane("Viewer.1");
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

void tst_DockMainWindowLookup::panesAreFoundByPrefix()
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

void tst_DockMainWindowLookup::placeHoldersInFloatingWindowsCountTwice()
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

void tst_DockMainWindowLookup::paneIsFoundByPosition()
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

QTEST_MAIN(tst_DockMainWindowLookup)
#include "tst_DockMainWindowLookup.moc"
