// The drags of a walk.

#include <tests/ui/docking/DockWalk.h>

namespace NorvaneTest {

// A tab that a hand can reach: its middle is not scrolled away or under the bar's scroll buttons.
bool DockWalk::chooseTabToDrag()
{
    const QList<Dock*> panes = m_mainWindow->docks();
    for (int tries = 0; tries < 5; ++tries) {
        m_source = panes[random(int(panes.size()))];
        m_tab = m_source->count() > 0 ? random(m_source->count()) : 0;
        const QTabBar* const bar = m_source->tabBar();
        const QPoint middle = bar->tabRect(m_tab).center();
        if (bar->count() > 0 && bar->isVisible() && bar->rect().contains(middle) && !bar->childAt(middle))
            return true;
    }
    return false;
}

void DockWalk::dragToPane()
{
    if (!chooseTabToDrag())
        return;
    const QWidget* const stack = anyPane()->stack();
    const QPoint middle = stack->mapToGlobal(stack->rect().center());
    const QPointer<Dock> target(m_mainWindow->findDockAt(middle));
    const QPointer<QWidget> panel(m_source->widget(m_tab));
    TabDrag drag(m_source, m_tab);
    drag.tearOff();
    expect(!Dock::dockForWidget(panel), "a dragged panel is still in a pane");
    drag.moveTo(anyPoint());
    drag.moveTo(middle);
    drag.release(middle);
    const bool inserts = !m_hasMeddled && target && !m_mainWindow->splitPanelsByDragging();
    expect(!inserts || (target->currentWidget() == panel && target->currentTab() == target->count() - 1),
           "the dropped panel is not the last and current one of its target");
}

void DockWalk::dragToBorder()
{
    if (m_mainWindow->docks().size() >= kMostPanes || !chooseTabToDrag())
        return;
    const QWidget* const stack = anyPane()->stack();
    const int right = stack->width() - 4;
    const int bottom = stack->height() - 4;
    const QPoint edges[] = {QPoint(3, bottom / 2), QPoint(right, bottom / 2), QPoint(right / 2, 3),
                            QPoint(right / 2, bottom)};
    const QPoint edge = stack->mapToGlobal(edges[random(4)]);
    TabDrag drag(m_source, m_tab);
    drag.moveTo(edge);
    drag.moveTo(edge);
    drag.release(edge);
}

void DockWalk::dragNowhere()
{
    if (m_mainWindow->floatingWindows().size() >= kMostWindows || !chooseTabToDrag())
        return;
    const bool withControl = oneIn(2);
    const QPoint position = withControl ? anyPoint() : QPoint(-5000, -5000);
    const QPointer<QWidget> panel(m_source->widget(m_tab));
    TabDrag drag(m_source, m_tab);
    drag.tearOff();
    drag.moveTo(position);
    drag.release(position, withControl ? Qt::ControlModifier : Qt::NoModifier);
    const Dock* const pane = Dock::dockForWidget(panel);
    expect(pane && pane->count() == 1 && pane->window() != m_mainWindow,
           "the dropped panel is not alone in a floating window");
}

void DockWalk::dragAndEscape()
{
    if (!chooseTabToDrag())
        return;
    const QWidget* const panel = m_source->widget(m_tab);
    TabDrag drag(m_source, m_tab);
    drag.tearOff();
    drag.moveTo(anyPoint());
    drag.pressEscape();
    expect(m_hasMeddled || m_source->widget(m_tab) == panel,
           "a dragged panel did not come back to its place");
    drag.release(anyPoint());
}

void DockWalk::dragInTitle()
{
    if (!chooseTabToDrag())
        return;
    const QWidget* const panel = m_source->widget(m_tab);
    TabDrag drag(m_source, m_tab);
    drag.slide(random(300) - 150);
    const bool isTornOff = QWidget::mouseGrabber();
    expect(m_hasMeddled || isTornOff || m_source->currentWidget() == panel,
           "a tab dragged in its bar is not the current one");
    drag.release(isTornOff || m_hasMeddled ? anyPoint() : m_source->mapToGlobal(QPoint(5, 5)));
}

void DockWalk::controlClick()
{
    if (m_mainWindow->floatingWindows().size() >= kMostWindows || !chooseTabToDrag())
        return;
    TabDrag drag(m_source, m_tab, Qt::ControlModifier);
    drag.release(anyPoint());
}

} // namespace NorvaneTest
