#pragma once

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>

#include <QPointer>

class QAction;
class QIcon;
class QStackedWidget;

namespace Norvane { namespace UI {

class TitleBarButton;
struct PaneIcons;

/// The inside of a pane, shared by the files that implement it.
struct Dock::Private {
    explicit Private(Dock* dock)
        : q(dock)
    {
    }

    void buildMenu(const PaneIcons& icons);
    void buildButtons(const PaneIcons& icons);
    void buildStackAndTabs();

    // Stack, tab bar and `panels` change in silence, so that no host hears of a change half done; settle()
    // then tells of another current tab.

    /// Puts \a widget into stack and tab bar, taking it from where it was; returns its index, -1 if the host
    /// took it or the pane is about to go.
    int adopt(int index, QWidget* widget);
    int reorder(int index, QWidget* widget);
    void addTab(int index, QWidget* page, const QWidget* titled);
    void dropTab(int index);
    void chooseTab(int index);
    void settle();
    /// Takes \a widget out of stack and tab bar. Nothing is reported.
    void take(QWidget* widget);
    /// The same, and without parent afterwards.
    void release(QWidget* widget);
    /// Takes \a widget, which goes to another pane, out of this one and reports the loss.
    void handOver(QWidget* widget);
    /// Takes all panels out, from the last to the first, and returns them in that order; those with
    /// Qt::WA_DeleteOnClose remain children.
    QList<QPointer<QWidget>> releaseAll();
    DockPlaceHolder* placeHolderNamed(const QString& name) const;

    /// A pane with one panel hides its title where the controller says so.
    void hideSingleTab();
    void applyTitleRule();
    void relayout(const QSize& oldSize);

    void reportAdded(QWidget* widget);
    void reportRemoved(QWidget* widget);
    void reportActivated(QWidget* widget);

    void stepTab(int step);
    bool containsFocus() const;
    bool parentCanBeClosed() const;
    void fitSizeLimits();
    /// False where the controller has no window or pane to give; the panel then stays where it is.
    bool floatAt(QWidget* widget, const QPoint& position);
    void showInWindow(DockWindow* window, Dock* content, const QPoint& position) const;

    Dock* const q;
    QList<QPointer<QWidget>> keptWidgets;
    DockMainWindow* controller = nullptr;
    TitleBarButton* closeButton = nullptr;
    TitleBarButton* floatButton = nullptr;
    TitleBarButton* menuButton = nullptr;
    DockTabBar* tabBar = nullptr;
    DockTitleBar* titleBar = nullptr;
    QStackedWidget* stack = nullptr;
    QMenu* menu = nullptr;
    QAction* showTabsAction = nullptr;
    int previousTab = 0;
    bool titleVisible = true;
    bool hover = false;
    bool expanded = false;
    QStringList paneIDs;

    /// The panels by index, to know which one the stack has lost.
    QList<QPointer<QWidget>> panels;
    /// Those that the controller has reported as added and not as removed: it reports both in turn.
    QList<QPointer<QWidget>> reported;
    /// The panel whose loss the pane itself brings about and reports.
    QWidget* leaving = nullptr;
    /// The current tab has changed in silence.
    bool unsettled = false;
    /// The pane is being destroyed: it takes nothing any more.
    bool dying = false;
};

}} // namespace Norvane::UI
