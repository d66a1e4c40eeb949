#pragma once

#include <NorvaneCoreExport.h>

#include <QRect>

class QPoint;
class QWidget;

namespace Norvane { namespace UI {

/// The screens of the desktop, by number from 0. Nothing else in the library asks the toolkit about screens.
/// GUI thread only.
namespace Screens {

/// At least 1 where there is a desktop.
NORVANE_CORE_EXPORT int count();

/// The part of screen \a number that windows may cover (without panels and docks of the desktop), in global
/// pixels. A number out of range means the primary screen.
NORVANE_CORE_EXPORT QRect availableGeometry(int number);

/// The same for the screen that holds \a point; for a point on no screen, the nearest one.
NORVANE_CORE_EXPORT QRect availableGeometry(const QPoint& point);

/// The same for the screen that holds the largest part of \a widget's window.
NORVANE_CORE_EXPORT QRect availableGeometry(const QWidget* widget);

/// The number of the screen that holds \a widget's window, 0 if that cannot be told.
NORVANE_CORE_EXPORT int numberOf(const QWidget* widget);

} // namespace Screens

}} // namespace Norvane::UI
