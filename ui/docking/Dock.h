#pragma once

#include <NorvaneCoreExport.h>
#include <ui/toolkit/Events.h>

#include <QList>
#include <QStringList>
#include <QWidget>

#include <memory>

class QMenu;
class QStackedWidget;

namespace Norvane { namespace UI {

class DockMainWindow;
class DockPlaceHolder;
class DockTabBar;
class DockTitleBar;
class DockWindow;

/// A pane: it holds any number of panels (plain QWidgets of the host) as tabs and shows one of them at a time
/// under a title strip with tab bar, buttons and the pane menu. Panes are the leaves of a tree of
/// DockSplitters in the main window or in a floating DockWindow.
///
/// A tab shows its panel's window title, and the window icon where one was explicitly set.
///
/// Ownership: a pane is owned by its splitter and deletes itself when it is closed. Panels are children of
/// the pane while they are in it but belong to the host: a pane that lets a panel go, or dies, leaves the
/// panel without parent, except that panels with Qt::WA_DeleteOnClose die with their close and with their
/// pane. Every panel that a pane gains, loses or activates is reported through the controller's signals; a
/// panel that is being destroyed, and a placeholder that gives way to its panel, are not reported as lost. A
/// pane that has become empty reports the activation of a null panel. GUI thread only.
class NORVANE_CORE_EXPORT Dock : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool titleVisible READ titleVisible WRITE setTitleVisible)
public:
    /// \a controller creates panes and windows, holds the display options and publishes the reports; it may
    /// be null. \a parent is usually null: the pane is then put into a splitter.
    explicit Dock(DockMainWindow* controller, DockWindow* parent = nullptr);
    ~Dock() override;

    /// The nearest pane among \a widget and its ancestors, or null.
    static Dock* dockForWidget(QWidget* widget);

    /// Whether \a widget shares no splitter with others: no splitter with more than one child is above it.
    static bool isTopLevel(const QWidget* widget);

    /// The parts of the pane, owned by it; the controller is not owned and may be null.
    QMenu* menu() const;
    DockMainWindow* controller() const;
    QStackedWidget* stack() const;
    DockTabBar* tabBar() const;
    DockTitleBar* titleBar() const;

    /// The nearest DockWindow above the pane, or null.
    DockWindow* dockWindow() const;

    /// How many tabs there are, and what is in them. A widget is null, the current tab -1 where there is
    /// none.
    int count() const;
    QWidget* widget(int index) const;
    QWidget* currentWidget() const;
    int currentTab() const;
    /// What setTitleVisible() and setExpanded() were last given.
    bool titleVisible() const;
    bool isExpanded() const;
    /// The height of the first tab in pixels, 0 when there is none.
    int tabBarHeight() const;
    /// Always false.
    bool singlePanel() const;

    /// The panels that were added with keep set and still exist, in that order.
    QList<QWidget*> keptWidgets() const;

    /// The page ids that a layout file gave to this pane. The pane itself never reads or writes them.
    QStringList& paneIDs();

    /// Appends \a widget as a tab, or puts it in the place of the DockPlaceHolder of its name. A panel that
    /// is in this pane already only becomes current. \a keep records the panel as one to keep. A panel of
    /// another pane is taken out of there.
    void addWidget(QWidget* widget, bool makeCurrent, bool keep);
    /// Inserts \a widget before the tab at \a index; -1 or an index past the end appends. The current tab
    /// stays.
    void insertWidget(int index, QWidget* widget);
    /// Inserts \a widget where a drop at \a position of the tab bar would go.
    void insertWidget(QPoint position, QWidget* widget);
    /// Takes \a widget out of the pane and leaves it to the host, without parent; the first tab becomes
    /// current if the panel was. Does nothing for a widget that is not in the pane.
    void removeWidget(QWidget* widget);
    /// The same, with \a tab to become current instead.
    void removeWidgetAndSetCurrentTab(QWidget* widget, int tab);
    /// Where the layout names the panel, puts a placeholder for it into the pane and shows the panel itself,
    /// which stays outside; null where the layout does not name it.
    DockPlaceHolder* restorePlaceHolderForWidget(QWidget* widget);

    /// Makes the panel current and reports its activation; for null the tab that was current before.
    void setCurrentWidget(QWidget* widget);
    /// The same by its number; nothing for a number out of range.
    void setCurrentTab(int index);
    /// Makes the next tab current, the first one after the last.
    void cycleCurrentWidget();

    /// Divides the pane and returns the new, empty pane, which lies before (left of, above) this one if \a
    /// before, else after it. Null, and nothing done, where the pane is not in a DockSplitter.
    Dock* split(Qt::Orientation orientation, bool before);

    /// Moves \a widget into a new floating window of this pane's size whose frame is at \a globalPosition. A
    /// floating window that this empties is closed.
    void floatWidgetAt(QWidget* widget, QPoint globalPosition);

    /// Gives the pane the whole extent of every splitter above it, or takes it back.
    void setExpanded(bool expanded);
    /// Whether the window that the pane is in is in full screen.
    bool isFullscreenDock() const;

    /// Marks the pane as the one where a dragged panel would land.
    void setHover(bool hover);

    /// Repaints the tab bar.
    void updateTabs();

    QSize sizeHint() const override;

Q_SIGNALS:
    /// For hosts that track the mouse over a pane; the pane itself never emits it.
    void mouseOver(bool on);

public Q_SLOTS:
    /// Divide the pane with split(): the new pane lies right of this one, or below it.
    void splitHorizontal();
    void splitVertical();
    /// Moves all panels into a new floating pane, in reverse order; this pane stays, empty.
    void floatDock();
    /// Moves the current panel into a new floating window that lies over this pane.
    void floatActiveTab();
    /// Asks the current panel to close, as closeTab() does.
    void closeActiveTab();
    /// Closes all panels but the current one; panels may refuse.
    void closeInactiveTabs();
    /// Asks the panel to close. A floating window that this empties is closed.
    void closeTab(int index);
    /// The stack lost the panel at \a tab: its tab goes too. Not for callers; see removeWidget().
    void removeTab(int tab);
    /// The tab bar's current tab changed. Not for callers; see setCurrentTab().
    void showTab(int index);
    /// Turns the splitter that holds the pane.
    void transposeDock();
    /// Brings the window that the pane is in to full screen, or back.
    void fullscreenDock();
    /// Writes the controller's layout to "/tmp/layout.xml", for diagnosis.
    void dumpLayout();
    /// Shows or hides the title; a strip of three pixels stays.
    void setTitleVisible(bool titleVisible);
    /// Reads titles and icons of all panels again.
    void updateTitles();
    /// Make the tab beside the current one current, around and around.
    void nextTab();
    void prevTab();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void enterEvent(EnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    friend class DockDrag;
    friend class DockMainWindow;
    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
