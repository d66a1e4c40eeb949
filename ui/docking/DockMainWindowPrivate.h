#pragma once

#include <ui/docking/DockMainWindow.h>
#include <ui/docking/PaneIcons.h>

#include <QPointer>
#include <QSet>

namespace Norvane { namespace UI {

/// The inside of the main window, shared by the files that implement it.
struct DockMainWindow::Private {
    QList<DockWindow*> floatingWindows;
    QStringList layoutIds;
    bool hideSingleTabs = false;
    bool hasPanelMenu = true;
    bool splitPanelsByDragging = false;
    bool highlightCurrentTab = false;
    bool tabsAreClosable = false;
    QString focusPage;
    /// Made for the style that panes had last.
    std::unique_ptr<PaneIcons> paneIcons;

    /// Every pane and floating window that reports to this window, to be cut off when the window dies.
    QSet<Dock*> panes;
    QSet<DockWindow*> windows;
    /// What is in no window and must still be deleted some day: trees left over from failed restores, and
    /// panes that a layout file puts nowhere.
    QList<QPointer<QWidget>> leftovers;
};

}} // namespace Norvane::UI
