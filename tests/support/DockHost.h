#pragma once

#include <ui/docking/DockPlaceHolder.h>
#include <ui/docking/DockTabBar.h>

#include <tests/support/Desk.h>

/// A host of the docking framework for tests: its main window, its user's mouse.
namespace NorvaneTest {

/// A main window that finds its host's panels by name; others get placeholders.
class DockHost : public DockMainWindow
{
public:
    explicit DockHost(const Panels& panels)
        : m_panels(panels)
    {
    }

    QWidget* createPage(QString& id) override
    {
        QWidget* const panel = m_panels.find(id);
        return panel ? panel : DockMainWindow::createPage(id);
    }

private:
    const Panels& m_panels;
};

/// Lets everything happen that waits for the event loop, deletions too.
inline void settle()
{
    QApplication::processEvents();
    deleteDeferred();
    QApplication::processEvents();
}

/// A tab pressed with the left mouse button, as its tab bar sees it. Any step may destroy the tab bar; the
/// later ones do nothing then. Positions are global.
class TabDrag
{
public:
    TabDrag(Dock* pane, int tab, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
        : TabDrag(pane, pane->tabBar()->tabRect(tab).center(), modifiers)
    {
    }

    /// Presses at \a position of the tab bar.
    TabDrag(Dock* pane, const QPoint& position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
        : m_bar(pane->tabBar())
        , m_press(m_bar->mapToGlobal(position))
    {
        send(QEvent::MouseButtonPress, m_press, modifiers);
    }

    void moveTo(const QPoint& position) { send(QEvent::MouseMove, position, Qt::NoModifier); }

    /// Moves within the title strip, in steps that a hand may make.
    void slide(int distance)
    {
        const int step = distance < 0 ? -15 : 15;
        for (int x = step; qAbs(x) <= qAbs(distance); x += step)
            moveTo(m_press + QPoint(x, 0));
    }

    /// Moves out of the title strip: the panel leaves its pane.
    void tearOff() { moveTo(m_press + QPoint(0, 100)); }

    void release(const QPoint& position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        send(QEvent::MouseButtonRelease, position, modifiers);
    }

    void pressEscape()
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        if (m_bar)
            QApplication::sendEvent(m_bar, &event);
    }

private:
    void send(QEvent::Type type, const QPoint& position, Qt::KeyboardModifiers modifiers)
    {
        if (!m_bar)
            return;
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, m_bar->mapFromGlobal(position), position, button, held, modifiers);
        QApplication::sendEvent(m_bar, &event);
    }

    const QPointer<DockTabBar> m_bar;
    const QPoint m_press;
};

} // namespace NorvaneTest
