#pragma once

#include <tests/support/DockHost.h>

#include <ui/docking/HoverWidget.h>

#include <QHash>
#include <QStackedWidget>

#include <functional>

namespace NorvaneTest {

/// Keeps account of what a main window's signals say about its panels, and finds what is wrong with an
/// arrangement.
class DockLedger : public QObject
{
    Q_OBJECT
public:
    explicit DockLedger(DockMainWindow* mainWindow)
        : m_mainWindow(mainWindow)
    {
        connect(mainWindow, SIGNAL(widgetAdded(Norvane::UI::Dock*, QWidget*)), this,
                SLOT(add(Norvane::UI::Dock*, QWidget*)));
        connect(mainWindow, SIGNAL(widgetRemoved(Norvane::UI::Dock*, QWidget*)), this,
                SLOT(remove(Norvane::UI::Dock*, QWidget*)));
        connect(mainWindow, SIGNAL(widgetActivated(Norvane::UI::Dock*, QWidget*)), this,
                SLOT(activate(Norvane::UI::Dock*, QWidget*)));
    }

    enum Report { kAdded, kRemoved, kActivated };
    /// Called at the end of every report, as another slot of the host's would be.
    std::function<void(Report, Dock*, QWidget*)> whenReported = [](Report, Dock*, QWidget*) {};

    /// What is wrong now, one sentence each. \a home may hold panels that are in no pane.
    QStringList problems(const Panels& panels, const QWidget* home = nullptr)
    {
        m_home = home;
        m_panes = m_mainWindow ? m_mainWindow->docks() : QList<Dock*>();
        checkEverythingIsReachable();
        for (Dock* const pane : m_panes)
            checkPane(pane);
        for (const QPointer<Panel>& panel : panels) {
            if (panel)
                checkPanel(panel);
        }
        expect(!QWidget::mouseGrabber(), "somebody still holds the mouse");
        return m_problems;
    }

private Q_SLOTS:
    void add(Norvane::UI::Dock* dock, QWidget* widget)
    {
        Norvane::UI::Dock* const known = m_account.value(widget);
        expect(!known, "reported as added while in a pane: ", widget);
        m_account.insert(widget, dock);
        connect(widget, SIGNAL(destroyed(QObject*)), this, SLOT(forget(QObject*)), Qt::UniqueConnection);
        whenReported(kAdded, dock, widget);
    }

    void remove(Norvane::UI::Dock* dock, QWidget* widget)
    {
        expect(m_account.value(widget) == dock, "reported as removed from a pane where it was not: ", widget);
        m_account.remove(widget);
        whenReported(kRemoved, dock, widget);
    }

    void activate(Norvane::UI::Dock* dock, QWidget* widget)
    {
        expect(dock->currentWidget() == widget, "reported as activated but not current: ", widget);
        whenReported(kActivated, dock, widget);
    }

    void forget(QObject* widget) { m_account.remove(widget); }

private:
    void expect(bool holds, const char* problem, const QObject* object = nullptr)
    {
        if (!holds)
            m_problems.append(QLatin1String(problem) + (object ? object->objectName() : QString()));
    }

    void checkEverythingIsReachable()
    {
        for (QWidget* const widget : QApplication::allWidgets()) {
            if (Dock* const pane = qobject_cast<Dock*>(widget))
                expect(m_panes.count(pane) == 1, "a pane is in no window");
            else if (DockSplitter* const splitter = qobject_cast<DockSplitter*>(widget))
                expect(splitter->count() > 0 || splitter->parentWidget() == splitter->window(),
                       "an empty splitter is left");
            else if (DockWindow* const window = qobject_cast<DockWindow*>(widget))
                expect(window == m_mainWindow || (m_mainWindow && window->isVisible() &&
                                                  m_mainWindow->floatingWindows().count(window) == 1),
                       "a floating window is hidden or not in the list");
            expect(!qobject_cast<Norvane::UI::HoverWidget*>(widget), "the drop overlay is left");
        }
        if (m_mainWindow) {
            for (DockWindow* const window : m_mainWindow->floatingWindows())
                expect(QApplication::allWidgets().contains(window), "the list holds a window that is gone");
        }
    }

    void checkPane(Dock* pane)
    {
        const QTabBar* const bar = pane->tabBar();
        expect(bar->count() == pane->count(), "tabs and panels differ in number");
        expect(bar->currentIndex() == pane->currentTab(), "current tab and current panel differ");
        for (int i = 0; i < pane->count(); ++i) {
            QWidget* const panel = pane->widget(i);
            if (qobject_cast<Norvane::UI::DockPlaceHolder*>(panel))
                continue;
            expect(bar->tabText(i) == panel->windowTitle(), "another tab title than the panel's: ", panel);
            expect(panel->isVisibleTo(pane) == (i == pane->currentTab()), "wrongly shown or hidden: ", panel);
            expect(m_account.value(panel) == pane, "in a pane that has not been reported: ", panel);
            expect(!panel->internalWinId(), "in a pane with a window of its own: ", panel);
        }
    }

    void checkPanel(QWidget* panel)
    {
        int holders = 0;
        for (Dock* const pane : m_panes)
            holders += pane->stack()->indexOf(panel) >= 0;
        expect(panel->windowOpacity() == 1.0, "still translucent: ", panel);
        if (holders == 0) {
            expect(!panel->parentWidget() || panel->parentWidget() == m_home,
                   "in no pane, nor the host's: ", panel);
            expect(panel->parentWidget() || !panel->isVisible(), "with the host but shown: ", panel);
            const bool isPlain = !(panel->windowFlags() & Qt::WindowStaysOnTopHint) &&
                                 (panel->parentWidget() || panel->windowType() == Qt::Window);
            expect(isPlain, "still a dragged window: ", panel);
            expect(!m_mainWindow || !m_account.contains(panel), "its removal was not reported: ", panel);
        }
        expect(holders <= 1, "in several panes: ", panel);
    }

    const QPointer<DockMainWindow> m_mainWindow;
    QHash<QObject*, Dock*> m_account;
    QStringList m_problems;
    QList<Dock*> m_panes;
    const QWidget* m_home = nullptr;
};

} // namespace NorvaneTest
