// The panels of a pane: adding, moving and removing them.

#include <ui/docking/DockPlaceHolder.h>
#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockTabBar.h>

#include <QIcon>
#include <QLayout>
#include <QStackedWidget>

namespace Norvane { namespace UI {

namespace {

QString tabTitle(const QWidget* panel)
{
    // A tab would take a single ampersand for the mark of a shortcut.
    return panel->windowTitle().replace(QLatin1Char('&'), QLatin1String("&&"));
}

QIcon tabIcon(const QWidget* panel)
{
    return panel->testAttribute(Qt::WA_SetWindowIcon) ? panel->windowIcon() : QIcon();
}

} // namespace

int Dock::Private::adopt(int index, QWidget* widget)
{
    if (dying)
        return -1;
    if (stack->indexOf(widget) >= 0)
        return reorder(index, widget);
    Dock* const holder = dockForWidget(widget->parentWidget());
    if (holder && holder->d->stack->indexOf(widget) >= 0) {
        const QPointer<QWidget> panel(widget);
        holder->d->handOver(widget);
        // A host that hears of the loss may have other plans.
        if (!panel || panel->parentWidget())
            return -1;
    }
    const int inserted = stack->insertWidget(index, widget);
    addTab(inserted, widget, widget);
    return inserted;
}

int Dock::Private::reorder(int index, QWidget* widget)
{
    const bool wasCurrent = stack->currentWidget() == widget;
    const bool wasUnsettled = unsettled;
    take(widget);
    const int inserted = stack->insertWidget(index, widget);
    addTab(inserted, widget, widget);
    if (wasCurrent) {
        chooseTab(inserted);
        stack->setCurrentIndex(inserted);
    }
    unsettled = wasUnsettled;
    return inserted;
}

void Dock::Private::addTab(int index, QWidget* page, const QWidget* titled)
{
    panels.insert(index, page);
    const bool wasBlocked = tabBar->blockSignals(true);
    tabBar->insertTab(index, tabIcon(titled), tabTitle(titled));
    tabBar->blockSignals(wasBlocked);
    unsettled = unsettled || tabBar->count() == 1;
}

void Dock::Private::dropTab(int index)
{
    unsettled = unsettled || index == tabBar->currentIndex();
    const bool wasBlocked = tabBar->blockSignals(true);
    tabBar->removeTab(index);
    tabBar->blockSignals(wasBlocked);
}

void Dock::Private::take(QWidget* widget)
{
    // Hosts may take a second panel while they hear about the first.
    QWidget* const alreadyLeaving = leaving;
    leaving = widget;
    stack->removeWidget(widget);
    leaving = alreadyLeaving;
}

void Dock::Private::release(QWidget* widget)
{
    const QPointer<QWidget> panel(widget);
    take(widget);
    if (panel)
        panel->setParent(nullptr);
}

void Dock::Private::handOver(QWidget* widget)
{
    const QPointer<Dock> self(q);
    const QPointer<QWidget> panel(widget);
    release(widget);
    hideSingleTab();
    relayout(q->size());
    if (panel)
        reportRemoved(panel);
    if (self)
        settle();
}

QList<QPointer<QWidget>> Dock::Private::releaseAll()
{
    const QList<QPointer<QWidget>> all = panels;
    QList<QPointer<QWidget>> released;
    for (int i = static_cast<int>(all.size()) - 1; i >= 0; --i) {
        // Each departure moves the focus, of which hosts may hear and close panels that are still here.
        if (!all[i] || stack->indexOf(all[i]) < 0)
            continue;
        // Those that die with the pane stay children of the stack.
        if (all[i]->testAttribute(Qt::WA_DeleteOnClose))
            take(all[i]);
        else
            release(all[i]);
        released.append(all[i]);
    }
    return released;
}

DockPlaceHolder* Dock::Private::placeHolderNamed(const QString& name) const
{
    for (const QPointer<QWidget>& panel : panels) {
        DockPlaceHolder* const placeHolder = qobject_cast<DockPlaceHolder*>(panel.data());
        if (placeHolder && !name.isEmpty() && placeHolder->objectName() == name)
            return placeHolder;
    }
    return nullptr;
}

void Dock::addWidget(QWidget* widget, bool makeCurrent, bool keep)
{
    if (!widget)
        return;
    const QPointer<Dock> self(this);
    const QPointer<QWidget> panel(widget);
    const int present = d->stack->indexOf(widget);
    if (present >= 0) {
        d->tabBar->setCurrentIndex(present);
    } else {
        const QPointer<DockPlaceHolder> placeHolder = d->placeHolderNamed(widget->objectName());
        const bool takesOver = placeHolder && placeHolder == currentWidget();
        const int inserted = d->adopt(placeHolder ? d->stack->indexOf(placeHolder) : -1, widget);
        if (inserted < 0)
            return;
        if (makeCurrent || takesOver)
            d->tabBar->setCurrentIndex(inserted);
        if (self)
            d->settle();
        if (!self || !panel)
            return;
        d->relayout(QSize(-1, -1));
        d->stack->layout()->activate();
        widget->move(0, 0);
        if (placeHolder) {
            d->release(placeHolder);
            placeHolder->deleteLater();
        }
        d->hideSingleTab();
        d->reportAdded(panel);
    }
    if (self && panel && keep && !d->keptWidgets.contains(panel))
        d->keptWidgets.append(panel);
}

void Dock::insertWidget(int index, QWidget* widget)
{
    if (!widget)
        return;
    const QPointer<Dock> self(this);
    const QPointer<QWidget> panel(widget);
    if (d->adopt(index, widget) < 0)
        return;
    d->settle();
    if (!self || !panel)
        return;
    d->stack->layout()->activate();
    // Torn-off panels arrive hidden. One that is not current stays so: a pane shows one panel.
    if (currentWidget() == widget)
        widget->show();
    d->applyTitleRule();
    d->relayout(size());
    d->reportAdded(panel);
}

void Dock::insertWidget(QPoint position, QWidget* widget)
{
    insertWidget(d->tabBar->dropIndexAt(position), widget);
}

void Dock::removeWidget(QWidget* widget)
{
    removeWidgetAndSetCurrentTab(widget, 0);
}

void Dock::removeWidgetAndSetCurrentTab(QWidget* widget, int tab)
{
    if (!widget || d->stack->indexOf(widget) < 0)
        return;
    const QPointer<Dock> self(this);
    const QPointer<QWidget> panel(widget);
    const QPointer<QWidget> current(currentWidget());
    d->release(widget);
    if (!self)
        return;
    if (!current || current == widget) {
        d->chooseTab(tab);
        d->settle();
    } else {
        setCurrentWidget(current);
    }
    if (!self)
        return;
    d->applyTitleRule();
    d->relayout(size());
    if (panel)
        d->reportRemoved(panel);
}

DockPlaceHolder* Dock::restorePlaceHolderForWidget(QWidget* widget)
{
    if (!widget || !d->controller || !d->controller->isInLayout(widget->objectName()))
        return nullptr;
    DockPlaceHolder* const placeHolder = new DockPlaceHolder;
    placeHolder->setObjectName(widget->objectName());
    d->addTab(d->stack->addWidget(placeHolder), placeHolder, widget);
    widget->show();
    d->relayout(size());
    const QPointer<DockPlaceHolder> result(placeHolder);
    d->settle();
    return result;
}

void Dock::removeTab(int tab)
{
    if (tab < 0 || tab >= d->panels.size())
        return;
    if (d->stack->count() == d->panels.size()) {
        removeWidget(widget(tab));
        return;
    }
    const QPointer<Dock> self(this);
    const QPointer<QWidget> panel = d->panels.takeAt(tab);
    if (panel && (focusProxy() == panel || panel->isAncestorOf(focusProxy())))
        setFocusProxy(nullptr);
    d->dropTab(tab);
    if (panel && panel == d->leaving)
        return;
    d->settle();
    // A panel that dies is null by now; one that the host simply gave another parent is lost like any other.
    if (self && panel)
        d->reportRemoved(panel);
}

void Dock::updateTitles()
{
    for (int i = 0; i < count(); ++i) {
        d->tabBar->setTabText(i, tabTitle(widget(i)));
        d->tabBar->setTabIcon(i, tabIcon(widget(i)));
    }
    if (currentWidget())
        setAccessibleName(currentWidget()->windowTitle());
    d->relayout(size());
}

void Dock::Private::reportAdded(QWidget* widget)
{
    // A host that heard of the panel's activation may have taken it away again, or have added it itself.
    if (!controller || stack->indexOf(widget) < 0 || reported.contains(widget))
        return;
    reported.removeAll(QPointer<QWidget>());
    reported.append(widget);
    controller->emitWidgetAdded(q, widget);
}

void Dock::Private::reportRemoved(QWidget* widget)
{
    // Or brought it back. Place holders, and panels that go before they are reported, leave in silence.
    if (controller && stack->indexOf(widget) < 0 && reported.removeOne(widget))
        controller->emitWidgetRemoved(q, widget);
}

void Dock::Private::reportActivated(QWidget* widget)
{
    if (controller)
        controller->emitWidgetActivated(q, widget);
}

}} // namespace Norvane::UI
