#include "DisplayOptions.h"

#include <QtGlobal>

namespace Norvane { namespace Host {

using UI::DockMainWindow;

const DisplayOption kDisplayOptions[kDisplayOptionCount] = {
    {"Display/HideSingleTabs", QT_TRANSLATE_NOOP("DisplayOptions", "&Hide Single Tabs"), false, false,
     &DockMainWindow::hideSingleTabs, &DockMainWindow::setHideSingleTabs},
    {"Display/PanelMenu", QT_TRANSLATE_NOOP("DisplayOptions", "Panel &Menu"), true, true,
     &DockMainWindow::hasPanelMenu, &DockMainWindow::setHasPanelMenu},
    {"Display/SplitByDragging", QT_TRANSLATE_NOOP("DisplayOptions", "&Split by Dragging"), true, false,
     &DockMainWindow::splitPanelsByDragging, &DockMainWindow::setSplitPanelsByDragging},
    {"Display/HighlightCurrentTab", QT_TRANSLATE_NOOP("DisplayOptions", "Highlight &Current Tab"), true,
     false, &DockMainWindow::highlightCurrentTab, &DockMainWindow::setHighlightCurrentTab},
    {"Display/ClosableTabs", QT_TRANSLATE_NOOP("DisplayOptions", "Closable &Tabs"), false, true,
     &DockMainWindow::tabsAreClosable, &DockMainWindow::setTabsAreClosable}};

}} // namespace Norvane::Host
