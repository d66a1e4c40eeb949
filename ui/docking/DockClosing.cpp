// Closing the panels of a pane, one or all, with the pane and its window after the last one.

#include <ui/docking/DockPrivate.h>
#include <ui/toolkit/Closing.h>

#include <QCloseEvent>
#include <QStackedWidget>

namespace Norvane { namespace UI {

void Dock::closeTab(int index)
{
    const QPointer<QWidget> panel(widget(index));
    if (!panel)
        return;
    const QPointer<Dock> self(this);
    const bool hadFocus = d->containsFocus();
    const bool closed = closeWidget(panel);
    if (!self || !closed)
        return;
    // A panel with Qt::WA_DeleteOnClose has lost that attribute by now and dies soon; until then it must not
    // count as the panel that keeps a window open.
    if (panel)
        removeWidget(panel);
    if (!self)
        return;
    if (hadFocus)
        (currentWidget() ? currentWidget() : this)->setFocus(Qt::OtherFocusReason);
    if (self && d->parentCanBeClosed())
        dockWindow()->close();
}

void Dock::closeActiveTab()
{
    closeTab(currentTab());
}

void Dock::closeInactiveTabs()
{
    const QPointer<Dock> self(this);
    for (int i = count() - 1; self && i >= 0; --i) {
        if (i < count() && i != currentTab())
            closeTab(i);
    }
}

void Dock::closeEvent(QCloseEvent* event)
{
    const QPointer<Dock> self(this);
    bool refused = false;
    const QList<QPointer<QWidget>> panels = d->panels;
    for (int i = static_cast<int>(panels.size()) - 1; i >= 0; --i) {
        const QPointer<QWidget>& panel = panels[i];
        if (!panel || d->stack->indexOf(panel) < 0)
            continue;
        const bool closed = closeWidget(panel);
        if (!self)
            return;
        if (!closed) {
            refused = true;
        } else if (panel) {
            d->release(panel);
            d->reportRemoved(panel);
        }
        if (!self)
            return;
    }
    d->settle();
    if (!self)
        return;
    if (refused) {
        event->ignore();
        return;
    }
    if (d->parentCanBeClosed())
        dockWindow()->close();
    event->accept();
}

}} // namespace Norvane::UI
