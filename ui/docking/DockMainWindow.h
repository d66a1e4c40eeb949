#pragma once

#include <NorvaneCoreExport.h>
#include <ui/docking/DockWindow.h>

#include <QList>
#include <QPoint>
#include <QStringList>

#include <memory>

class QAction;
class QIODevice;

namespace Norvane { namespace UI {

class Dock;
class DockPlaceHolder;
class DockSplitter;
struct PaneIcons;

/// The application's main window and the controller of the whole arrangement: the panes in its own tree of
/// splitters and those in its floating windows. Hosts derive from it and override createPage() so that a
/// layout file can be restored.
///
/// Create it with new: it carries Qt::WA_DeleteOnClose. Floating windows are its Qt children. Panes and
/// floating windows that outlive it report to nobody. GUI thread only.
class NORVANE_CORE_EXPORT DockMainWindow : public DockWindow
{
    Q_OBJECT
public:
    DockMainWindow();
    ~DockMainWindow() override;

    /// Makes a floating window; the default is a DockWindow owned by this window. Null: nothing floats.
    virtual DockWindow* createWindow();
    /// Makes an empty pane; the default is a Dock in no window yet. Null: nothing splits or floats.
    virtual Dock* createDock();
    /// Makes or finds the panel that a layout file calls \a id; null drops the page. The default is a
    /// DockPlaceHolder of that name. The panel's object name becomes its id in files written later.
    virtual QWidget* createPage(QString& id);

    /// A pane with a single panel shows no title. Applied when panels come and go. Default: false.
    bool hideSingleTabs() const;
    void setHideSingleTabs(bool on);
    /// New panes get a menu button. Default: true.
    bool hasPanelMenu() const;
    void setHasPanelMenu(bool on);
    /// A panel dropped on a pane's border splits that pane. Default: false.
    bool splitPanelsByDragging() const;
    void setSplitPanelsByDragging(bool on);
    /// The current tab of the pane with the keyboard focus is highlighted, and focus entering a pane
    /// activates its current tab. Default: false. Every call with true adds a connection; one call with false
    /// removes them all.
    bool highlightCurrentTab() const;
    void setHighlightCurrentTab(bool on);
    /// New panes have a close button in every tab instead of a float and a close button. Default: false.
    bool tabsAreClosable() const;
    void setTabsAreClosable(bool on);

    /// Makes \a splitter the central widget and root; the former one is deleted by Qt.
    void setRootSplitter(DockSplitter* splitter);

    /// In the order of registration, which is that of the layout file and of the pane cycle.
    const QList<DockWindow*>& floatingWindows() const;
    /// Replaces the list as given; the windows' snap switches are left alone.
    void setFloatingWindows(QList<DockWindow*> windows);
    /// Makes, registers and returns a floating window; with \a page (may be null) in a pane of its own, and
    /// shown.
    DockWindow* addNewFloatingDock(QWidget* page);
    /// Does nothing; kept for interface compatibility.
    void clearRegisteredRects();

    /// All panes: the main window's depth first, then those of each floating window.
    QList<Dock*> docks() const;
    /// All placeholders; those in floating windows appear twice.
    QList<DockPlaceHolder*> placeHolders() const;
    /// For each widget whose object name begins with \a prefix, the pane that holds it.
    QList<Dock*> getDocksWithPrefix(const QString& prefix);
    /// The pane with the panel called \a name. Failing that: with \a exactMatch, the pane that has \a name
    /// among its pane ids (if \a searchPaneIDs); without, the pane with an id (if \a searchPaneIDs) or else a
    /// panel of the same kind, that is, with the same text up to the last ".". Null if there is none.
    Dock* findDockByName(const QString& name, bool exactMatch, bool searchPaneIDs) const;
    /// The pane under a point of the desktop; floating windows come first. Null if there is none.
    Dock* findDockAt(QPoint globalPosition) const;
    /// Gives the keyboard focus to the pane under the mouse, else to the main window; returns the pane.
    Dock* focusWidgetUnderCursor();
    /// The pane with the keyboard focus, and its current panel; null if there is none.
    Dock* activeDock() const;
    QWidget* activeTab() const;
    /// Whether \a id was the object name of a widget in the arrangement when it was last saved or restored.
    bool isInLayout(const QString& id) const;

    /// The page that had the keyboard focus in the layout last restored; for the host to give it back.
    void setFocusPage(QString id);
    QString getFocusPage() const;

    /// Reports of panes, republished as signals.
    void emitWidgetAdded(Norvane::UI::Dock* dock, QWidget* widget);
    void emitWidgetRemoved(Norvane::UI::Dock* dock, QWidget* widget);
    void emitWidgetActivated(Norvane::UI::Dock* dock, QWidget* widget);
    /// Emits updateMoskScriptName().
    void emitUpdateMoskScriptName(QString name);

    /// New actions, children of this window, with text, shortcut and command id (the object name). The caller
    /// puts them into menus.
    QAction* nextDockAction();
    QAction* prevDockAction();
    QAction* nextTabAction();
    QAction* prevTabAction();

    /// Writes the arrangement as an XML document to \a device, which must be open for writing. The pane that
    /// holds \a focusWidget (null: the application's focus widget) is marked. Object names and states lose
    /// characters that XML cannot hold.
    void saveLayout(QIODevice* device, QWidget* focusWidget);
    /// Throws the arrangement away and builds the one that \a device describes, asking createWindow(),
    /// createDock() and createPage(). With \a fitMainWindowToScreen the main window fills its screen. On an
    /// error a message is shown, what was built so far stays, and the result is false: callers that want
    /// their arrangement back save it before and restore those bytes. Not to be called from slots of
    /// widgetAdded() and its siblings, whose panes it destroys: use a queued connection there.
    /// Nor may such slots delete panes or windows outright; close() and deleteLater() are fine.
    bool restoreLayout(QIODevice* device, bool fitMainWindowToScreen);
    /// Whether \a device, from its position on, holds a layout of the supported version. Consumes data.
    static bool IsLayoutValid(QIODevice* device);

Q_SIGNALS:
    /// A pane has gained, lost or activated a panel; Dock says which changes are reported. The activated
    /// panel is null where a pane has become empty.
    void widgetAdded(Norvane::UI::Dock* dock, QWidget* widget);
    void widgetRemoved(Norvane::UI::Dock* dock, QWidget* widget);
    void widgetActivated(Norvane::UI::Dock* dock, QWidget* widget);
    /// Emitted by emitUpdateMoskScriptName() only, on the host's behalf.
    void updateMoskScriptName(QString name);

public Q_SLOTS:
    /// Moves the keyboard focus to the next pane that has panels, around and around.
    void nextDock();
    void prevDock();
    /// Moves through the tabs of all panes in the order of the panes.
    void nextTab();
    void prevTab();

private Q_SLOTS:
    void focusChanged(QWidget* old, QWidget* now);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Dock;
    friend class DockWindow;
    friend class LayoutReader;
    const PaneIcons& paneIcons(const Dock* dock);
    void registerPane(Dock* dock);
    void unregisterPane(Dock* dock);
    void registerWindow(DockWindow* window);
    void unregisterWindow(DockWindow* window);
    Dock* ownDockForWidget(QWidget* widget) const;
    void addFloatingDock(DockWindow* window);
    void removeFloatingDock(DockWindow* window);
    QList<DockWindow*> allWindows() const;
    void saveLayoutIDs();
    Dock* focusNeighbour(int step);
    QAction* createFocusAction(const QString& text, const char* shortcut, const char* name, const char* slot);

    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
