#include <ui/docking/SnappableWindow.h>

namespace Norvane { namespace UI {

SnappableWindow::SnappableWindow()
    : m_snapEnabled(true)
{
}

SnappableWindow::SnappableWindow(const SnappableWindow& other) = default;
SnappableWindow& SnappableWindow::operator=(const SnappableWindow& other) = default;
SnappableWindow::~SnappableWindow() = default;

bool SnappableWindow::snapEnabled() const
{
    return m_snapEnabled;
}

void SnappableWindow::setSnapEnabled(bool enabled)
{
    m_snapEnabled = enabled;
}

}} // namespace Norvane::UI
