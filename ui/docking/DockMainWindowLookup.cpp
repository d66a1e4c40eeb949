// Finding panes: by name, by place, by keyboard focus.

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindowPrivate.h>
#include <ui/docking/DockPlaceHolder.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/DockTree.h>

#include <QApplication>
#include <QCursor>

namespace Norvane { namespace UI {

namespace {

void collectWithPrefix(QWidget* widget, const QString& prefix, QList<Dock*>& docks)
{
    if (widget->objectName().startsWith(prefix)) {
        if (Dock* const dock = Dock::dockForWidget(widget))
            docks.append(dock);
    }
    for (QObject* const child : widget->children()) {
        if (child->isWidgetType())
            collectWithPrefix(static_cast<QWidget*>(child), prefix, docks);
    }
}

bool hasPageWithPrefix(const Dock* dock, const QString& prefix)
{
    for (int i = 0; i < dock->count(); ++i) {
        if (dock->widget(i)->objectName().startsWith(prefix))
            return true;
    }
    return false;
}

Dock* findPageWithPrefix(QWidget* widget, const QString& prefix)
{
    if (Dock* const dock = qobject_cast<Dock*>(widget))
        return hasPageWithPrefix(dock, prefix) ? dock : nullptr;
    for (QObject* const child : widget->children()) {
        if (!child->isWidgetType())
            continue;
        if (Dock* const found = findPageWithPrefix(static_cast<QWidget*>(child), prefix))
            return found;
    }
    return nullptr;
}

void appendPlaceHolders(const QWidget* window, QList<DockPlaceHolder*>& placeHolders)
{
    for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (DockPlaceHolder* const placeHolder = qobject_cast<DockPlaceHolder*>(widget))
            placeHolders.append(placeHolder);
    }
}

void appendNames(const QObject* parent, QStringList& names)
{
    for (const QObject* const child : parent->children()) {
        if (!child->isWidgetType())
            continue;
        const QString name = child->objectName();
        if (!name.isEmpty())
            names.append(name);
        appendNames(child, names);
    }
}

} // namespace

QList<DockWindow*> DockMainWindow::allWindows() const
{
    return QList<DockWindow*>() << const_cast<DockMainWindow*>(this) << d->floatingWindows;
}

QList<Dock*> DockMainWindow::docks() const
{
    QList<Dock*> result;
    for (const DockWindow* const window : allWindows())
        collectDocks(window->rootSplitter(), result);
    return result;
}

QList<DockPlaceHolder*> DockMainWindow::placeHolders() const
{
    QList<DockPlaceHolder*> result;
    for (const DockWindow* const window : allWindows())
        appendPlaceHolders(window, result);
    return result;
}

QList<Dock*> DockMainWindow::getDocksWithPrefix(const QString& prefix)
{
    QList<Dock*> result;
    collectWithPrefix(this, prefix, result);
    return result;
}

Dock* DockMainWindow::findDockByName(const QString& name, bool exactMatch, bool searchPaneIDs) const
{
    // To Qt an empty name means any child.
    if (name.isEmpty())
        return nullptr;
    const QList<DockWindow*> windows = allWindows();
    for (const DockWindow* const window : windows) {
        if (QWidget* const widget = window->findChild<QWidget*>(name))
            return Dock::dockForWidget(widget);
    }

    const QString wanted = exactMatch ? name : name.left(name.lastIndexOf(QLatin1Char('.')) + 1);
    if (wanted.isEmpty())
        return nullptr;
    if (searchPaneIDs) {
        for (const DockWindow* const window : windows) {
            if (Dock* const dock = window->findDockWithPaneID(wanted, exactMatch))
                return dock;
        }
    }
    if (exactMatch)
        return nullptr;
    for (DockWindow* const window : windows) {
        if (Dock* const dock = findPageWithPrefix(window, wanted))
            return dock;
    }
    return nullptr;
}

Dock* DockMainWindow::findDockAt(QPoint globalPosition) const
{
    for (const DockWindow* const window : d->floatingWindows) {
        if (!window->isVisible())
            continue;
        if (QWidget* const hit = window->childAt(window->mapFromGlobal(globalPosition)))
            return Dock::dockForWidget(hit);
    }
    return Dock::dockForWidget(childAt(mapFromGlobal(globalPosition)));
}

Dock* DockMainWindow::focusWidgetUnderCursor()
{
    Dock* const dock = findDockAt(QCursor::pos());
    (dock ? static_cast<QWidget*>(dock) : this)->setFocus(Qt::OtherFocusReason);
    return dock;
}

Dock* DockMainWindow::activeDock() const
{
    return Dock::dockForWidget(QApplication::focusWidget());
}

QWidget* DockMainWindow::activeTab() const
{
    const Dock* const dock = activeDock();
    return dock ? dock->currentWidget() : nullptr;
}

bool DockMainWindow::isInLayout(const QString& id) const
{
    return d->layoutIds.contains(id);
}

void DockMainWindow::saveLayoutIDs()
{
    d->layoutIds.clear();
    for (const DockWindow* const window : allWindows())
        appendNames(window, d->layoutIds);
}

}} // namespace Norvane::UI
