#pragma once

#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QWindow>
#endif

namespace Norvane { namespace UI {

/// Gives back the window system's window of a hidden top-level \a widget that is about to become a child.
///
/// Qt 5 keeps it if the widget's flags change first. It then moves about with the widget's new parents, and
/// is taken for the widget's own again when it comes to another screen: a child that is suddenly native.
inline void releaseNativeWindow(QWidget* widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    if (QWindow* const window = widget->windowHandle())
        window->destroy();
#else
    Q_UNUSED(widget);
#endif
}

}} // namespace Norvane::UI
