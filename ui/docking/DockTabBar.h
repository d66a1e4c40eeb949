#pragma once

#include <NorvaneCoreExport.h>

#include <QPointer>
#include <QTabBar>

class QStylePainter;

namespace Norvane { namespace UI {

class Dock;
class DockTitleBar;

/// The tab bar of a pane. Tabs are reordered by dragging; a tab dragged out of the title strip takes its
/// panel along, to be dropped onto another pane, onto a pane's border (a new split), or anywhere else (a new
/// floating window; with Control held always). Escape puts a torn-off panel back where it came from.
/// Control-click floats a tab at once. Positions are in the tab bar's pixels.
class NORVANE_CORE_EXPORT DockTabBar : public QTabBar
{
    Q_OBJECT
public:
    /// Made by \a dock, whose tabs it shows.
    DockTabBar(Dock* dock, DockTitleBar* parent);
    ~DockTabBar() override;

    /// The tab's rectangle, at least one line of text high.
    QRect fullTabRect(int index) const;

    /// Where a panel dropped at \a position goes: the tab under it, or one further right of that tab's
    /// middle; -1 where there is no tab.
    int dropIndexAt(const QPoint& position) const;

public Q_SLOTS:
    /// The mouse entered or left the pane; shown in the colour of the current tab.
    void onMouseOverDock(bool on);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void customEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void startTabDrag(const QMouseEvent* event);
    bool leavesTitleBar(const QPoint& position) const;
    void tearOff(const QMouseEvent* event);
    void reorder(int mouseX);
    int reorderedIndex() const;
    void moveDraggedTab(int index);
    void paintTab(QStylePainter& painter, int index);
    void highlight(QPalette& tabPalette) const;
    QRect draggedTabRect() const;

    QPoint m_pressPos;
    QPointer<QWidget> m_pressedPanel;
    Dock* const m_dock;
    DockTitleBar* const m_titleBar;
    int m_dragTab = -1;
    int m_dragX = 0;
    int m_grabOffset = 0;
    bool m_mouseOverDock = false;
};

}} // namespace Norvane::UI
