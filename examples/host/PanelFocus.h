#pragma once

#include <QObject>
#include <QPointer>

namespace Norvane { namespace UI {
class Dock;
class DockMainWindow;
}} // namespace Norvane::UI

namespace Norvane { namespace Host {

class PanelRegistry;
class ViewerPanel;

/// Knows what the user works on: the pane and the viewer that last had the keyboard focus. A menu, or a panel
/// with controls, may have it by now.
class PanelFocus : public QObject
{
    Q_OBJECT
public:
    /// Neither is owned.
    PanelFocus(UI::DockMainWindow* window, const PanelRegistry* panels);

    /// Null if it is gone.
    UI::Dock* pane() const;
    /// Another one if that is in no pane any more; null if there is none.
    ViewerPanel* viewer() const;
    /// As if \a viewer had been given the focus; one that is in no pane changes nothing.
    void setViewer(ViewerPanel* viewer);

    /// If \a panel has a slot setViewer(Norvane::Host::ViewerPanel*), it is called now and at every change.
    void addFollower(QWidget* panel);

public Q_SLOTS:
    /// Says that the viewer may be another one, or show another picture.
    void update();

Q_SIGNALS:
    /// Null for none.
    void viewerChanged(Norvane::Host::ViewerPanel* viewer);

private Q_SLOTS:
    void focusMoved(QWidget* from, QWidget* to);
    void panelActivated(Norvane::UI::Dock* pane, QWidget* panel);

private:
    const PanelRegistry* const m_panels;
    QPointer<UI::Dock> m_pane;
    QPointer<ViewerPanel> m_viewer;
};

}} // namespace Norvane::Host
