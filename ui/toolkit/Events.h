#pragma once

#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QEnterEvent>
#endif

/// Names and accessors of events that differ between Qt generations.
namespace Norvane { namespace UI {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/// What QWidget::enterEvent() is given.
using EnterEvent = QEnterEvent;

inline QPoint mousePosition(const QMouseEvent* event)
{
    return event->position().toPoint();
}

inline QPoint globalMousePosition(const QMouseEvent* event)
{
    return event->globalPosition().toPoint();
}

#else

/// What QWidget::enterEvent() is given.
using EnterEvent = QEvent;

inline QPoint mousePosition(const QMouseEvent* event)
{
    return event->pos();
}

inline QPoint globalMousePosition(const QMouseEvent* event)
{
    return event->globalPos();
}

#endif

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)

/// How far the wheel was turned up or down, in eighths of a degree: 120 for one notch of a common mouse.
inline int wheelDelta(const QWheelEvent* event)
{
    return event->angleDelta().y();
}

inline QPoint wheelPosition(const QWheelEvent* event)
{
    return event->position().toPoint();
}

/// The event of a wheel turned by \a delta, as wheelDelta() has it, at \a position in \a widget.
inline QWheelEvent wheelTurn(const QWidget* widget, const QPoint& position, int delta)
{
    return QWheelEvent(position, widget->mapToGlobal(position), QPoint(), QPoint(0, delta), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
}

#else

/// How far the wheel was turned up or down, in eighths of a degree: 120 for one notch of a common mouse.
inline int wheelDelta(const QWheelEvent* event)
{
    return event->orientation() == Qt::Vertical ? event->delta() : 0;
}

inline QPoint wheelPosition(const QWheelEvent* event)
{
    return event->pos();
}

/// The event of a wheel turned by \a delta, as wheelDelta() has it, at \a position in \a widget.
inline QWheelEvent wheelTurn(const QWidget* widget, const QPoint& position, int delta)
{
    return QWheelEvent(position, widget->mapToGlobal(position), delta, Qt::NoButton, Qt::NoModifier);
}

#endif

}} // namespace Norvane::UI
