#pragma once

#include <ui/docking/DockMainWindow.h>

namespace Norvane { namespace Host {

/// A switch of the main window that the user finds in the View menu.
struct DisplayOption {
    /// In the settings.
    const char* key;
    /// For the menu; to be translated in the context "DisplayOptions".
    const char* text;
    bool isOnAtFirst;
    /// Only panes made afterwards know of a change.
    bool needsNewPanes;
    bool (UI::DockMainWindow::*isOn)() const;
    void (UI::DockMainWindow::*setOn)(bool);
};

const int kDisplayOptionCount = 5;
extern const DisplayOption kDisplayOptions[kDisplayOptionCount];

}} // namespace Norvane::Host
