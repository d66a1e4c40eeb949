#pragma once

#include <ui/docking/PaneGeometry.h>

#include <QPoint>
#include <QPointer>

class QWidget;

namespace Norvane { namespace UI {

class Dock;
class DockTabBar;
class HoverWidget;

/// The drag of a panel torn off its tab bar. One mouse, so one drag in the process, shared by all tab bars.
/// Whatever the host destroys meanwhile (panel, pane, window), the drag ends and leaves no pointer behind.
class DockDrag
{
public:
    static DockDrag& shared();

    bool isRunning() const;
    QWidget* panel() const;
    DropSide side() const;

    /// Takes the panel of tab \a index out of \a source and shows it under the mouse, which \a bar grabs. \a
    /// grab is the mouse's position in the bar. False if there is no such panel.
    bool begin(DockTabBar* bar, Dock* source, int index, const QPoint& grab, const QPoint& topLeft);

    /// Follows the mouse: the panel moves to \a topLeft, the pane under \a mouse is marked.
    void moveTo(const QPoint& mouse, const QPoint& topLeft);

    /// Ends the drag: into the pane under \a mouse, or into a window of its own where there is none or \a
    /// floating.
    void drop(const QPoint& mouse, bool floating);

    /// Ends the drag with the panel back where it came from.
    void cancel();

    /// The same for a drag that \a bar started.
    void cancelFrom(DockTabBar* bar);

    /// A press on a tab bar starts anew.
    void forgetTarget();

    /// \a bar is hidden and can hold the mouse no longer: its drag is cancelled soon. Not at once, as the bar
    /// may be hidden by a window in the middle of its destruction.
    void barHides(DockTabBar* bar);

    /// \a dock is about to die: its overlay goes, and a panel torn off it is left to the host like the other
    /// panels.
    void paneDies(Dock* dock);

    /// The outline over the pane under the mouse; null while there is none.
    HoverWidget* overlay() const;
    void showOverlay(Dock* dock);
    void hideOverlay();

private:
    DockDrag();
    void mark(Dock* target, DropSide side);
    void letGoOfMouse();
    void stop();
    Dock* paneAt(const QPoint& mouse) const;
    static Dock* destination(Dock* target, DropSide side);
    static void putBack(const QPointer<Dock>& source, int index, const QPointer<QWidget>& panel);
    static void insertInto(Dock* source, Dock* destination, QWidget* panel);

    QPointer<DockTabBar> m_bar;
    QPointer<Dock> m_source;
    QPointer<QWidget> m_panel;
    QPointer<Dock> m_target;
    DropSide m_side = kDropCentre;
    int m_sourceIndex = -1;
    QPoint m_grab;
    QPointer<HoverWidget> m_overlay;
};

}} // namespace Norvane::UI
