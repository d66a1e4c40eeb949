#include "PanelPlacer.h"

#include "PanelFocus.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>

namespace Norvane { namespace Host {

using UI::Dock;

// Controls are not put in front of the viewer that they act on.
const PanelOffer kPanelOffers[kPanelOfferCount] = {
    {PanelRegistry::ViewerKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New &Viewer"), "Viewer."},
    {PanelRegistry::PicturesKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New &Pictures"), nullptr},
    {PanelRegistry::NotesKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New &Notes"), nullptr},
    {PanelRegistry::FilesKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New &Files"), "Pictures."},
    {PanelRegistry::InspectorKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New &Inspector"),
     "Pictures."},
    {PanelRegistry::ControlsKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New Contro&ls"),
     "Pictures."},
    {PanelRegistry::ColourKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New C&olour"), "Pictures."},
    {PanelRegistry::ScriptKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New &Script"), "Notes."},
    {PanelRegistry::ScopesKind, QT_TRANSLATE_NOOP("Norvane::Host::HostWindow", "New Scop&es"), "Pictures."}};

PanelPlacer::PanelPlacer(UI::DockMainWindow* window, PanelRegistry* panels, const PanelFocus* focus)
    : m_window(window)
    , m_panels(panels)
    , m_focus(focus)
{
}

QWidget* PanelPlacer::showNew(PanelRegistry::Kind kind)
{
    Dock* const pane = paneOf(kind);
    QWidget* const panel = m_panels->createPanel(kind);
    pane->addWidget(panel, true, false);
    show(panel);
    return panel;
}

void PanelPlacer::show(QWidget* panel)
{
    Dock* pane = Dock::dockForWidget(panel);
    if (!pane) {
        pane = paneFor(panel->objectName());
        pane->addWidget(panel, true, false);
    }
    pane->setCurrentWidget(panel);
    panel->window()->raise();
    panel->activateWindow();
    panel->setFocus(Qt::OtherFocusReason);
}

Dock* PanelPlacer::paneOf(PanelRegistry::Kind kind)
{
    if (kind == PanelRegistry::ViewerKind && m_focus->viewer())
        return Dock::dockForWidget(m_focus->viewer());
    for (const PanelOffer& offer : kPanelOffers) {
        if (offer.kind == kind)
            return paneFor(QLatin1String(offer.neighbour));
    }
    return paneFor(QString());
}

Dock* PanelPlacer::paneFor(const QString& id)
{
    if (Dock* const pane = id.isEmpty() ? nullptr : m_window->findDockByName(id, false, true))
        return pane;
    const QList<Dock*> panes = m_window->docks();
    if (panes.contains(m_focus->pane()))
        return m_focus->pane();
    if (!panes.isEmpty())
        return panes.first();
    Dock* const pane = m_window->createDock();
    m_window->addWidget(pane);
    return pane;
}

}} // namespace Norvane::Host
