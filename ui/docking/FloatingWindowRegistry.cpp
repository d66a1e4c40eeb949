#include <ui/docking/FloatingWindowRegistry.h>

#include <QWidget>

namespace Norvane { namespace UI {

FloatingWindowRegistry::FloatingWindowRegistry() = default;
FloatingWindowRegistry::~FloatingWindowRegistry() = default;

void FloatingWindowRegistry::addWindow(QWidget* window)
{
    if (!window || m_windows.contains(window))
        return;
    m_windows.append(window);
    connect(window, SIGNAL(destroyed(QObject*)), this, SLOT(windowDestroyed(QObject*)));
}

void FloatingWindowRegistry::removeWindow(QWidget* window)
{
    if (m_windows.removeAll(window) > 0)
        disconnect(window, SIGNAL(destroyed(QObject*)), this, SLOT(windowDestroyed(QObject*)));
}

const QList<QWidget*>& FloatingWindowRegistry::windows() const
{
    return m_windows;
}

void FloatingWindowRegistry::windowDestroyed(QObject* window)
{
    // Only the address is compared: by now the object is no QWidget any more.
    m_windows.removeAll(static_cast<QWidget*>(window));
}

}} // namespace Norvane::UI
