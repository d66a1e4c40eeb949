#include <tests/support/DockHost.h>
#include <tests/support/Recorder.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/docking/HoverWidget.h>

#include <QStackedWidget>

using namespace NorvaneTest;
using Norvane::UI::HoverWidget;

/// Dragging panels out of their pane and dropping them.
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
};

namespace {

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
    TabDrag plain(source, 0);
    plain.tearOff();
    plain.moveTo(over);
    QVERIFY(!overlay());
    plain.pressEscape();

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

QTEST_MAIN(tst_DockDrag)
#include "tst_DockDrag.moc"
