#include <ui/docking/DockTabBar.h>

#include <tests/support/DockHost.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/docking/TitleBarButton.h>

#include <QStyle>

using namespace NorvaneTest;
using Norvane::UI::TitleBarButton;

class tst_DockTabBar : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void tabIsReordered_data();
    void tabIsReordered();
    void controlClickFloatsTab();
    void pressFocusesPane();
    void dropIndexDependsOnMiddle();
    void hiddenTitleIsRevealed();
};

namespace {

QPoint tabCentre(const Dock* dock, int tab)
{
    return dock->tabBar()->mapToGlobal(dock->tabBar()->tabRect(tab).center());
}

} // namespace

void tst_DockTabBar::tabIsReordered_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("widths"); // of a tab; all are as wide as each other
    QTest::addColumn<int>("pixels"); // and some more
    QTest::addColumn<QString>("result");
    const int start = 2 * QApplication::startDragDistance();
    QTest::newRow("less than the start distance") << 0 << 0 << start - 1 << latin1("*10 20 30");
    QTest::newRow("not past the neighbour") << 0 << 1 << -1 << latin1("*10 20 30");
    QTest::newRow("past the neighbour") << 0 << 1 << 0 << latin1("20 *10 30");
    QTest::newRow("one place a move") << 0 << 2 << 5 << latin1("20 *10 30");
    QTest::newRow("to the left") << 2 << -1 << 0 << latin1("10 *30 20");
    QTest::newRow("not far enough to the left") << 2 << -1 << 1 << latin1("10 20 *30");
    QTest::newRow("last to the right") << 2 << 1 << 5 << latin1("10 20 *30");
    QTest::newRow("first to the left") << 0 << 0 << -start << latin1("*10 20 30");
}

void tst_DockTabBar::tabIsReordered()
{
    QFETCH(int, tab);
    QFETCH(int, widths);
    QFETCH(int, pixels);
    Desk desk;
    Dock* const dock = desk.pane("10 20 30");
    QVERIFY(desk.show());
    const QPoint end = tabCentre(dock, tab) + QPoint(widths * dock->tabBar()->tabRect(1).width() + pixels, 0);
    TabDrag drag(dock, tab);
    drag.moveTo(end);
    drag.release(end);
    QTEST(tabs(dock), "result");
}

void tst_DockTabBar::controlClickFloatsTab()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    QVERIFY(desk.show());
    TabDrag drag(dock, 0, Qt::ControlModifier);
    QCOMPARE(desk.trees(), latin1("V(*B) + V(*A)"));
    drag.tearOff();
    drag.release(desk.window->geometry().center());
    QCOMPARE(desk.trees(), latin1("V(*B) + V(*A)"));
}

void tst_DockTabBar::pressFocusesPane()
{
    Desk desk;
    desk.pane("A")->setFocus();
    Dock* const dock = desk.pane("B C");
    QVERIFY(desk.show());
    TabDrag drag(dock, 0);
    QCOMPARE(QApplication::focusWidget(), dock->widget(0));
    drag.release(tabCentre(dock, 0));
}

void tst_DockTabBar::dropIndexDependsOnMiddle()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    QVERIFY(desk.show());
    const QPoint centre = dock->tabBar()->tabRect(1).center();
    QCOMPARE(dock->tabBar()->dropIndexAt(centre), 1);
    QCOMPARE(dock->tabBar()->dropIndexAt(centre + QPoint(1, 0)), 2);
    QCOMPARE(dock->tabBar()->dropIndexAt(QPoint(5000, 5)), -1);
    dock->insertWidget(centre, desk.panel(latin1("C")));
    QCOMPARE(tabs(dock), latin1("A C *B"));
    dock->insertWidget(QPoint(5000, 5), desk.panel(latin1("D")));
    QCOMPARE(tabs(dock), latin1("A C *B D"));
}

void tst_DockTabBar::hiddenTitleIsRevealed()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    QVERIFY(desk.show());
    dock->setTitleVisible(false);
    const QPoint strip = dock->mapToGlobal(QPoint(300, 1));
    QCursor::setPos(strip);
    WAIT_FOR(dock->titleVisible());
    QCursor::setPos(5, 5);
    WAIT_FOR(!dock->titleVisible());

    QCursor::setPos(strip);
    WAIT_FOR(dock->titleVisible());
    TabDrag press(dock, 0);
    QCursor::setPos(5, 5);
    WAIT_FOR(!dock->titleBar()->underMouse());
    QVERIFY(dock->titleVisible());
    press.release(tabCentre(dock, 0));
    QVERIFY(!dock->titleVisible());
}

QTEST_MAIN(tst_DockTabBar)
#include "tst_DockTabBar.moc"
