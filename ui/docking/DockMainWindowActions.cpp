// Moving the keyboard focus through panes and tabs.

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindowPrivate.h>

#include <QAction>
#include <QKeySequence>

namespace Norvane { namespace UI {

QAction* DockMainWindow::createFocusAction(const QString& text, const char* shortcut, const char* name,
                                           const char* slot)
{
    QAction* const action = new QAction(text, this);
    action->setShortcut(QKeySequence(QLatin1String(shortcut)));
    action->setObjectName(QLatin1String(name));
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

QAction* DockMainWindow::nextDockAction()
{
    return createFocusAction(tr("Next Pane"), "Ctrl+Alt+`", "norvane.application.focusNextPane",
                             SLOT(nextDock()));
}

QAction* DockMainWindow::prevDockAction()
{
    return createFocusAction(tr("Previous Pane"), "Ctrl+Shift+Alt+`", "norvane.application.focusPreviousPane",
                             SLOT(prevDock()));
}

QAction* DockMainWindow::nextTabAction()
{
    return createFocusAction(tr("Next Tab"), "Ctrl+Shift+]", "norvane.application.focusNextTab",
                             SLOT(nextTab()));
}

QAction* DockMainWindow::prevTabAction()
{
    return createFocusAction(tr("Previous Tab"), "Ctrl+Shift+[", "norvane.application.focusPreviousTab",
                             SLOT(prevTab()));
}

// Returns the pane that gets the focus, null if none does. In another window it has the focus only once the
// window system has activated that window.
Dock* DockMainWindow::focusNeighbour(int step)
{
    const QList<Dock*> panes = docks();
    const int count = static_cast<int>(panes.size());
    int index = static_cast<int>(panes.indexOf(activeDock()));
    if (index < 0)
        return nullptr;
    for (int tried = 0; tried < count; ++tried) {
        index = (index + step + count) % count;
        if (panes[index]->currentWidget()) {
            panes[index]->setFocus(Qt::OtherFocusReason);
            if (!panes[index]->isActiveWindow())
                panes[index]->activateWindow();
            return panes[index];
        }
    }
    return nullptr;
}

void DockMainWindow::nextDock()
{
    focusNeighbour(1);
}

void DockMainWindow::prevDock()
{
    focusNeighbour(-1);
}

void DockMainWindow::nextTab()
{
    Dock* const dock = activeDock();
    if (!dock)
        return;
    if (dock->currentTab() < dock->count() - 1)
        dock->nextTab();
    else if (Dock* const next = focusNeighbour(1))
        next->setCurrentTab(0);
}

void DockMainWindow::prevTab()
{
    Dock* const dock = activeDock();
    if (!dock)
        return;
    if (dock->currentTab() != 0)
        dock->prevTab();
    else if (Dock* const previous = focusNeighbour(-1))
        previous->setCurrentTab(previous->count() - 1);
}

// Neither a pane of another main window nor one in the middle of its destruction.
Dock* DockMainWindow::ownDockForWidget(QWidget* widget) const
{
    Dock* const dock = Dock::dockForWidget(widget);
    return d->panes.contains(dock) ? dock : nullptr;
}

void DockMainWindow::focusChanged(QWidget* old, QWidget* now)
{
    Dock* const oldDock = ownDockForWidget(old);
    Dock* const newDock = ownDockForWidget(now);
    if (oldDock == newDock)
        return;
    if (oldDock)
        oldDock->updateTabs();
    if (!newDock)
        return;
    newDock->updateTabs();
    if (newDock->currentTab() >= 0)
        newDock->setCurrentTab(newDock->currentTab());
}

}} // namespace Norvane::UI
