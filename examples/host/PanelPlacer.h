#pragma once

#include "PanelRegistry.h"

namespace Norvane { namespace UI {
class Dock;
class DockMainWindow;
}} // namespace Norvane::UI

namespace Norvane { namespace Host {

class PanelFocus;

/// What the Panels menu offers: kinds of panels, and what panels they are shown with.
struct PanelOffer {
    PanelRegistry::Kind kind;
    /// For the menu and HostWindow::tr().
    const char* text;
    /// An id of the panels whose pane a new one joins; null for the pane that the user works in.
    const char* neighbour;
};

const int kPanelOfferCount = 9;
extern const PanelOffer kPanelOffers[kPanelOfferCount];

/// Brings panels into panes.
class PanelPlacer
{
public:
    /// Nothing of it is owned.
    PanelPlacer(UI::DockMainWindow* window, PanelRegistry* panels, const PanelFocus* focus);

    /// Makes a panel, beside those that it belongs with, and shows it.
    QWidget* showNew(PanelRegistry::Kind kind);
    /// Brings \a panel, which need not be in a pane, to the front and gives it the keyboard focus.
    void show(QWidget* panel);
    /// Where a layout had the panel \a id, or has others like it; failing that, the pane that the user works
    /// in. One is made if there is none.
    UI::Dock* paneFor(const QString& id);

private:
    UI::Dock* paneOf(PanelRegistry::Kind kind);

    UI::DockMainWindow* const m_window;
    PanelRegistry* const m_panels;
    const PanelFocus* const m_focus;
};

}} // namespace Norvane::Host
