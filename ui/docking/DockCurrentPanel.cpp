// The panel that a pane shows: choosing it by its tab, stepping through the tabs, telling the host.

#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockTabBar.h>

#include <QStackedWidget>

namespace Norvane { namespace UI {

void Dock::Private::chooseTab(int index)
{
    const bool wasBlocked = tabBar->blockSignals(true);
    tabBar->setCurrentIndex(index);
    tabBar->blockSignals(wasBlocked);
    unsettled = true;
}

void Dock::Private::settle()
{
    if (unsettled)
        q->showTab(tabBar->currentIndex());
}

void Dock::showTab(int index)
{
    d->unsettled = false;
    if (index != d->stack->currentIndex()) {
        const QPointer<Dock> self(this);
        const int chosen = d->tabBar->currentIndex();
        d->previousTab = d->stack->currentIndex();
        // This moves the focus, of which hosts hear: the tabs may be others by the time the stack goes on.
        d->stack->setCurrentIndex(index);
        if (!self)
            return;
        if (d->tabBar->currentIndex() != chosen) {
            showTab(d->tabBar->currentIndex());
            return;
        }
    }
    QWidget* const panel = currentWidget();
    setFocusProxy(panel);
    setAccessibleName(panel ? panel->windowTitle() : QString());
    d->reportActivated(panel);
}

void Dock::setCurrentWidget(QWidget* widget)
{
    const int index = widget ? d->stack->indexOf(widget) : d->previousTab;
    if (index != -1)
        setCurrentTab(index);
}

void Dock::setCurrentTab(int index)
{
    const QPointer<Dock> self(this);
    const QPointer<QWidget> panel(widget(index));
    if (!panel)
        return;
    d->tabBar->setCurrentIndex(index);
    if (self && panel && currentWidget() == panel)
        d->reportActivated(panel);
}

void Dock::Private::stepTab(int step)
{
    const int panelCount = q->count();
    if (panelCount > 0)
        q->setCurrentTab((q->currentTab() + step + panelCount) % panelCount);
}

void Dock::cycleCurrentWidget()
{
    d->stepTab(1);
}

void Dock::nextTab()
{
    d->stepTab(1);
}

void Dock::prevTab()
{
    d->stepTab(-1);
}

}} // namespace Norvane::UI
