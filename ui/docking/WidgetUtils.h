#pragma once

#include <NorvaneCoreExport.h>

class QMainWindow;
class QRect;
class QString;
class QWidget;

namespace Norvane { namespace UI {

/// Helpers for top-level windows: full screen, the style of floating windows, and pop-ups that stay on
/// screen. All coordinates are global pixels. GUI thread only.
class NORVANE_CORE_EXPORT WidgetUtils
{
public:
    /// False for null.
    static bool GetFullscreen(const QWidget* widget);

    /// Nothing happens for null or when the state is \a on already. Leaving full screen fits the window back
    /// into the available geometry of its screen. \a mainWindow is accepted for interface compatibility and
    /// not used.
    static void SetFullscreen(QWidget* widget, bool on, QMainWindow* mainWindow);
    /// SetFullscreen() with the other state.
    static void ToggleFullscreen(QWidget* widget);

    /// Makes \a widget a tool window with title bar, system menu, minimise and maximise buttons. This hides a
    /// visible widget, as every change of window flags does. \a parent is not used.
    static void SetFloatingWindowStyle(QWidget* widget, QWidget* parent);

    /// Fixes the width of \a widget to that of \a text in the widget's font.
    static void SetFixedWidthForString(QWidget* widget, const QString& text);

    /// Places the pop-up window \a widget beside \a rect, 20 pixels away, on the screen that holds the
    /// top-left corner of \a rect, then raises and activates it. Where no side has room, the window is left
    /// as it is.
    static void MoveWidgetNearRect(QWidget* widget, QRect& rect);

    /// Shows \a widget just below \a other (which may be null: then where it is), shifted to stay on screen.
    static void MoveWidgetNotObscuringWidget(QWidget* widget, QWidget* other);

    WidgetUtils() = delete;
};

}} // namespace Norvane::UI
