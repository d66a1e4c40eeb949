#include <ui/docking/DockMainWindow.h>

#include <ui/docking/DockMainWindowPrivate.h>
#include <ui/docking/DockPlaceHolder.h>
#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockSplitter.h>

#include <QApplication>
#include <QCloseEvent>

namespace Norvane { namespace UI {

DockMainWindow::DockMainWindow()
    : DockWindow(this, nullptr)
    , d(new Private)
{
    setContextMenuPolicy(Qt::NoContextMenu);
    setSnapEnabled(true);
}

DockMainWindow::~DockMainWindow()
{
    disconnectController();
    for (DockWindow* const window : d->windows)
        window->disconnectController();
    for (Dock* const pane : d->panes)
        pane->d->controller = nullptr;
    for (const QPointer<QWidget>& leftover : d->leftovers)
        delete leftover.data();
}

DockWindow* DockMainWindow::createWindow()
{
    return new DockWindow(this, this);
}

Dock* DockMainWindow::createDock()
{
    return new Dock(this);
}

QWidget* DockMainWindow::createPage(QString& id)
{
    DockPlaceHolder* const placeHolder = new DockPlaceHolder;
    placeHolder->setObjectName(id);
    return placeHolder;
}

bool DockMainWindow::hideSingleTabs() const
{
    return d->hideSingleTabs;
}

void DockMainWindow::setHideSingleTabs(bool on)
{
    d->hideSingleTabs = on;
}

bool DockMainWindow::hasPanelMenu() const
{
    return d->hasPanelMenu;
}

void DockMainWindow::setHasPanelMenu(bool on)
{
    d->hasPanelMenu = on;
}

bool DockMainWindow::splitPanelsByDragging() const
{
    return d->splitPanelsByDragging;
}

void DockMainWindow::setSplitPanelsByDragging(bool on)
{
    d->splitPanelsByDragging = on;
}

bool DockMainWindow::highlightCurrentTab() const
{
    return d->highlightCurrentTab;
}

void DockMainWindow::setHighlightCurrentTab(bool on)
{
    d->highlightCurrentTab = on;
    const char* const signal = SIGNAL(focusChanged(QWidget*, QWidget*));
    const char* const slot = SLOT(focusChanged(QWidget*, QWidget*));
    if (on)
        connect(qApp, signal, this, slot);
    else
        disconnect(qApp, signal, this, slot);
}

bool DockMainWindow::tabsAreClosable() const
{
    return d->tabsAreClosable;
}

void DockMainWindow::setTabsAreClosable(bool on)
{
    d->tabsAreClosable = on;
}

void DockMainWindow::setRootSplitter(DockSplitter* splitter)
{
    replaceRootSplitter(splitter);
}

const QList<DockWindow*>& DockMainWindow::floatingWindows() const
{
    return d->floatingWindows;
}

void DockMainWindow::setFloatingWindows(QList<DockWindow*> windows)
{
    d->floatingWindows = windows;
}

DockWindow* DockMainWindow::addNewFloatingDock(QWidget* page)
{
    DockWindow* const window = createWindow();
    if (!window)
        return nullptr;
    Dock* const dock = page ? createDock() : nullptr;
    if (dock) {
        window->addWidget(dock);
        dock->addWidget(page, true, false);
        // A panel without a size hint leaves the window the size that it has.
        if (!dock->sizeHint().isEmpty())
            window->resize(dock->sizeHint());
        window->show();
        window->raise();
        window->activateWindow();
    }
    addFloatingDock(window);
    return window;
}

void DockMainWindow::addFloatingDock(DockWindow* window)
{
    window->setSnapEnabled(true);
    d->floatingWindows.append(window);
}

void DockMainWindow::removeFloatingDock(DockWindow* window)
{
    if (!window || window == this)
        return;
    if (d->floatingWindows.removeOne(window))
        window->setSnapEnabled(false);
}

const PaneIcons& DockMainWindow::paneIcons(const Dock* dock)
{
    if (!d->paneIcons || d->paneIcons->style != dock->style())
        d->paneIcons.reset(new PaneIcons(dock));
    return *d->paneIcons;
}

void DockMainWindow::registerPane(Dock* dock)
{
    d->panes.insert(dock);
}

void DockMainWindow::unregisterPane(Dock* dock)
{
    d->panes.remove(dock);
}

void DockMainWindow::registerWindow(DockWindow* window)
{
    d->windows.insert(window);
}

void DockMainWindow::unregisterWindow(DockWindow* window)
{
    d->windows.remove(window);
    removeFloatingDock(window);
}

void DockMainWindow::clearRegisteredRects() {}

void DockMainWindow::setFocusPage(QString id)
{
    d->focusPage = id;
}

QString DockMainWindow::getFocusPage() const
{
    return d->focusPage;
}

void DockMainWindow::emitWidgetAdded(Dock* dock, QWidget* widget)
{
    if (d->highlightCurrentTab)
        dock->updateTabs();
    Q_EMIT widgetAdded(dock, widget);
}

void DockMainWindow::emitWidgetRemoved(Dock* dock, QWidget* widget)
{
    Q_EMIT widgetRemoved(dock, widget);
}

void DockMainWindow::emitWidgetActivated(Dock* dock, QWidget* widget)
{
    Q_EMIT widgetActivated(dock, widget);
}

void DockMainWindow::emitUpdateMoskScriptName(QString name)
{
    Q_EMIT updateMoskScriptName(name);
}

void DockMainWindow::closeEvent(QCloseEvent* event)
{
    QList<QPointer<DockWindow>> windows;
    for (DockWindow* const window : d->floatingWindows)
        windows.append(window);
    for (const QPointer<DockWindow>& window : windows) {
        if (window)
            window->close();
    }
    DockWindow::closeEvent(event);
}

}} // namespace Norvane::UI
