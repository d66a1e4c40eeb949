#pragma once

#include <NorvaneCoreExport.h>
#include <ui/docking/SnappableWindow.h>

#include <QMainWindow>

#include <memory>

namespace Norvane { namespace UI {

class Dock;
class DockMainWindow;
class DockSplitter;

/// A window whose central widget is the root of a tree of splitters and panes. Floating panes live in plain
/// DockWindows, which are tool windows; DockMainWindow is one too.
///
/// Closing a window asks every pane in it to close and then deletes the window (Qt::WA_DeleteOnClose), also
/// when a panel refuses: such a panel is left to the host, without parent.
class NORVANE_CORE_EXPORT DockWindow : public QMainWindow, public SnappableWindow
{
    Q_OBJECT
public:
    /// \a controller is not owned; a floating window tells it when it is destroyed.
    DockWindow(DockMainWindow* controller, QWidget* parent);
    ~DockWindow() override;

    /// Appends \a dock to the root splitter, which then owns it.
    void addWidget(Dock* dock);

    /// The central widget. Owned by the window.
    DockSplitter* rootSplitter() const;

    /// Makes the window forget its controller.
    void disconnectController();

    /// The first pane, depth first in child order, one of whose pane ids is \a id or, unless \a exact, begins
    /// with it; null if there is none.
    Dock* findDockWithPaneID(const QString& id, bool exact) const;

protected:
    void closeEvent(QCloseEvent* event) override;

    /// Makes \a splitter the central widget and the root; the former central widget is deleted by Qt.
    void replaceRootSplitter(DockSplitter* splitter);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
