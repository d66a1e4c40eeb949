#include <tests/support/DockHost.h>
#include <tests/support/Recorder.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/docking/HoverWidget.h>

#include <QStackedWidget>

using namespace NorvaneTest;
using Norvane::UI::HoverWidget;

/// Dragging tabs within their bar, panels out of their pane and into others.
class tst_DockDrag : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void cleanup();
    void panelIsTornOffOutsideBounds();
    void panelIsDropped_data();
    void panelIsDropped();
    void panelDroppedNowhereFloatsAtMouse();
    void overlayFollowsMouse();
    void tabIsReordered_data();
    void tabIsReordered();
    void dropIndexDependsOnMiddle();
    void hiddenTitleIsRevealed();
    void controlClickFloatsTab();
};

namespace {

QPoint tabCentre(const Dock* dock, int tab)
{
    return dock->tabBar()->mapToGlobal(dock->tabBar()->tabRect(tab).center());
}

HoverWidget* overlay()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (HoverWidget* const found = qobject_cast<HoverWidget*>(widget))
            return found;
    }
    return nullptr;
}

} // namespace

void tst_DockDrag::cleanup()
{
    QCursor::setPos(5, 5);
    QVERIFY(!overlay() && !QWidget::mouseGrabber());
}

void tst_DockDrag::panelIsTornOffOutsideBounds()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    QVERIFY(desk.show());
    const DockTabBar* const bar = dock->tabBar();
    const QRect title = dock->titleBar()->rect();
    // The right bound is the title's width, measured from the tab bar.
    const QRect bounds(QPoint(-bar->x() - 5, -5), QPoint(title.right() + 5, title.bottom() + 5));
    const QPoint middle = bar->tabRect(0).center();
    QList<QPoint> outside;
    outside << QPoint(bounds.left() - 1, middle.y()) << QPoint(bounds.right() + 1, middle.y())
            << QPoint(middle.x(), bounds.top() - 1) << QPoint(middle.x(), bounds.bottom() + 1);
    for (const QPoint& point : outside) {
        TabDrag drag(dock, 0);
        drag.moveTo(bar->mapToGlobal(bounds.topLeft()));
        drag.moveTo(bar->mapToGlobal(bounds.bottomRight()));
        drag.moveTo(bar->mapToGlobal(bounds.bottomLeft()));
        QCOMPARE(dock->count(), 2);
        drag.moveTo(bar->mapToGlobal(point));
        QCOMPARE(dock->count(), 1);
        drag.pressEscape();
        QCOMPARE(dock->count(), 2);
    }
}

void tst_DockDrag::panelIsDropped_data()
{
    QTest::addColumn<int>("pane");
    QTest::addColumn<QPoint>("offset"); // from the stack's edges, negative from the right and bottom ones
    QTest::addColumn<bool>("split");
    QTest::addColumn<bool>("control");
    QTest::addColumn<QString>("trees");
    const QPoint centre(200, 80);
    const QPoint left(5, 80);
    QTest::newRow("centre") << 1 << centre << true << false << latin1("V(*A, C D *B)");
    QTest::newRow("first tab: still the last")
        << 1 << QPoint(25, -999) << true << false << latin1("V(*A, C D *B)");
    QTest::newRow("left border") << 1 << left << true << false << latin1("V(*A, H(*B, C *D))");
    QTest::newRow("right border") << 1 << QPoint(-5, 80) << true << false << latin1("V(*A, H(C *D, *B))");
    QTest::newRow("top border") << 1 << QPoint(200, 5) << true << false << latin1("V(*A, *B, C *D)");
    QTest::newRow("bottom border") << 1 << QPoint(200, -5) << true << false << latin1("V(*A, C *D, *B)");
    QTest::newRow("border does not split") << 1 << left << false << false << latin1("V(*A, C D *B)");
    QTest::newRow("back onto its pane") << 0 << centre << true << false << latin1("V(A *B, C *D)");
    QTest::newRow("border of its pane") << 0 << left << true << false << latin1("V(H(*B, *A), C *D)");
    QTest::newRow("with Control") << 1 << left << true << true << latin1("V(*A, C *D) + V(*B)");
}

void tst_DockDrag::panelIsDropped()
{
    QFETCH(int, pane);
    QFETCH(QPoint, offset);
    QFETCH(bool, split);
    QFETCH(bool, control);
    Desk desk;
    Dock* const source = desk.pane("A B");
    desk.pane("C D");
    desk.window->setSplitPanelsByDragging(split);
    QVERIFY(desk.show());
    const QPointer<QWidget> panel(source->widget(1));
    const QWidget* const stack = desk.window->docks()[pane]->stack();
    QPoint end(offset.x() < 0 ? stack->width() + offset.x() : offset.x(),
               offset.y() < 0 ? stack->height() + offset.y() : offset.y());
    if (offset.y() == -999)
        end.setY(-10);
    Recorder recorder(desk.window);
    TabDrag drag(source, 1);
    drag.tearOff();
    QCOMPARE(recorder.takeMoves(), latin1("-B"));
    drag.moveTo(stack->mapToGlobal(end));
    QCOMPARE(overlay() != nullptr, split);
    drag.release(stack->mapToGlobal(end), control ? Qt::ControlModifier : Qt::NoModifier);
    QTEST(desk.trees(), "trees");
    QCOMPARE(recorder.takeMoves(), latin1("+B"));
    QVERIFY(panel->isVisible() && !panel->isWindow());
    QCOMPARE(panel->windowOpacity(), 1.0);
}

void tst_DockDrag::panelDroppedNowhereFloatsAtMouse()
{
    Desk desk;
    Dock* const source = desk.pane("A B");
    QVERIFY(desk.show());
    const QPoint mouse(900, 500);
    QCursor::setPos(mouse);
    const QPoint press = source->tabBar()->tabRect(0).center();
    TabDrag drag(source, 0);
    drag.tearOff();
    drag.moveTo(mouse);
    QVERIFY(!overlay());
    drag.release(mouse);
    QCOMPARE(desk.trees(), latin1("V(*B) + V(*A)"));
    WAIT_FOR(desk.window->floatingWindows().first()->pos() == mouse - press - QPoint(0, 100));
}

void tst_DockDrag::overlayFollowsMouse()
{
    Desk desk;
    Dock* const source = desk.pane("A B");
    Dock* const target = desk.pane("C");
    QVERIFY(desk.show());
    const QPoint over = target->stack()->mapToGlobal(target->stack()->rect().center());
    desk.window->setSplitPanelsByDragging(true);
    TabDrag drag(source, 0);
    QVERIFY(!overlay());
    drag.tearOff();
    const QList<Dock*> panes = QList<Dock*>() << target << source;
    for (Dock* const pane : panes) {
        QWidget* const stack = pane->stack();
        drag.moveTo(stack->mapToGlobal(stack->rect().center()));
        QVERIFY(overlay() && overlay()->pane() == pane);
        QCOMPARE(overlay()->geometry(), QRect(stack->mapToGlobal(QPoint(0, 0)), stack->size()));
    }
    drag.moveTo(desk.window->geometry().bottomRight() + QPoint(50, 50));
    QVERIFY(!overlay());
    drag.moveTo(over);
    drag.release(over);
}

void tst_DockDrag::tabIsReordered_data()
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

void tst_DockDrag::tabIsReordered()
{
    QFETCH(int, tab);
    QFETCH(int, widths);
    QFETCH(int, pixels);
    Desk desk;
    desk.pane("other")->setFocus();
    Dock* const dock = desk.pane("10 20 30");
    QVERIFY(desk.show());
    const QPoint end = tabCentre(dock, tab) + QPoint(widths * dock->tabBar()->tabRect(1).width() + pixels, 0);
    TabDrag drag(dock, tab);
    QCOMPARE(QApplication::focusWidget(), dock->widget(tab));
    drag.moveTo(end);
    drag.release(end);
    QTEST(tabs(dock), "result");
}

void tst_DockDrag::dropIndexDependsOnMiddle()
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

void tst_DockDrag::hiddenTitleIsRevealed()
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

void tst_DockDrag::controlClickFloatsTab()
{
    Desk desk;
    Dock* const dock = desk.pane("A B");
    QVERIFY(desk.show());
    const TabDrag click(dock, 0, Qt::ControlModifier);
    QCOMPARE(desk.trees(), latin1("V(*B) + V(*A)"));
}

QTEST_MAIN(tst_DockDrag)
#include "tst_DockDrag.moc"
