#include "PanelFocus.h"

#include "PanelRegistry.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>

#include <QApplication>
#include <QMetaObject>

namespace Norvane { namespace Host {

using UI::Dock;

PanelFocus::PanelFocus(UI::DockMainWindow* window, const PanelRegistry* panels)
    : m_panels(panels)
{
    connect(window, SIGNAL(widgetActivated(Norvane::UI::Dock*, QWidget*)), this,
            SLOT(panelActivated(Norvane::UI::Dock*, QWidget*)));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(focusMoved(QWidget*, QWidget*)));
}

Dock* PanelFocus::pane() const
{
    return m_pane;
}

ViewerPanel* PanelFocus::viewer() const
{
    if (Dock::dockForWidget(m_viewer))
        return m_viewer;
    const QList<ViewerPanel*> viewers = m_panels->viewers();
    for (ViewerPanel* const viewer : viewers) {
        if (Dock::dockForWidget(viewer))
            return viewer;
    }
    return nullptr;
}

void PanelFocus::setViewer(ViewerPanel* viewer)
{
    if (!Dock::dockForWidget(viewer))
        return;
    m_viewer = viewer;
    update();
}

void PanelFocus::addFollower(QWidget* panel)
{
    const char* const slot = SLOT(setViewer(Norvane::Host::ViewerPanel*));
    // The macro puts a digit before the signature.
    if (panel->metaObject()->indexOfSlot(slot + 1) < 0)
        return;
    connect(this, SIGNAL(viewerChanged(Norvane::Host::ViewerPanel*)), panel, slot);
    QMetaObject::invokeMethod(panel, "setViewer", Q_ARG(Norvane::Host::ViewerPanel*, viewer()));
}

void PanelFocus::update()
{
    Q_EMIT viewerChanged(viewer());
}

void PanelFocus::focusMoved(QWidget*, QWidget* to)
{
    Dock* const pane = Dock::dockForWidget(to);
    if (!pane)
        return;
    m_pane = pane;
    panelActivated(pane, pane->currentWidget());
}

void PanelFocus::panelActivated(Dock*, QWidget* panel)
{
    if (ViewerPanel* const viewer = qobject_cast<ViewerPanel*>(panel))
        setViewer(viewer);
}

}} // namespace Norvane::Host
