#include <ui/docking/DockWindow.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/DockTree.h>
#include <ui/docking/WidgetUtils.h>

#include <QCloseEvent>
#include <QPointer>

namespace Norvane { namespace UI {

struct DockWindow::Private {
    DockMainWindow* controller;
    DockSplitter* rootSplitter;
};

DockWindow::DockWindow(DockMainWindow* controller, QWidget* parent)
    : QMainWindow(parent)
    , d(new Private)
{
    d->controller = controller;
    replaceRootSplitter(new DockSplitter(Qt::Vertical));
    if (this != controller)
        WidgetUtils::SetFloatingWindowStyle(this, parent);
    if (controller && this != controller)
        controller->registerWindow(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setSnapEnabled(false);
    setWindowTitle(QLatin1String(" "));
}

DockWindow::~DockWindow()
{
    if (d->controller)
        d->controller->unregisterWindow(this);
}

void DockWindow::addWidget(Dock* dock)
{
    d->rootSplitter->addWidget(dock);
    d->rootSplitter->updateDocks();
}

DockSplitter* DockWindow::rootSplitter() const
{
    return d->rootSplitter;
}

void DockWindow::replaceRootSplitter(DockSplitter* splitter)
{
    d->rootSplitter = splitter;
    setCentralWidget(splitter);
}

void DockWindow::disconnectController()
{
    d->controller = nullptr;
}

Dock* DockWindow::findDockWithPaneID(const QString& id, bool exact) const
{
    QList<Dock*> docks;
    collectDocks(d->rootSplitter, docks);
    for (Dock* const dock : docks) {
        for (const QString& paneId : dock->paneIDs()) {
            if (exact ? paneId == id : paneId.startsWith(id))
                return dock;
        }
    }
    return nullptr;
}

void DockWindow::closeEvent(QCloseEvent*)
{
    QList<Dock*> docks;
    collectDocks(qobject_cast<DockSplitter*>(centralWidget()), docks);
    // A panel's answer to its close may be to destroy other panes.
    QList<QPointer<Dock>> present;
    for (Dock* const dock : docks)
        present.append(dock);
    for (const QPointer<Dock>& dock : present) {
        if (dock)
            dock->close();
    }
}

}} // namespace Norvane::UI
