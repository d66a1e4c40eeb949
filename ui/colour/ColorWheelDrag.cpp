// What the mouse does with a wheel.

#include <ui/colour/ColorWheel.h>

#include <ui/colour/ColorWheelPrivate.h>
#include <ui/toolkit/Events.h>

#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

/// A press farther out than this, in inner radii, is outside.
const double kOutside = 1.01;
/// In kInnerSquare, the band of the hue begins here, in radii.
const double kHueBand = 0.8;
/// For a value from 0 to 1.
const float kPixelsPerValue = 500.0f;
/// A box smaller than this in both directions is a click.
const int kBoxMinimum = 4;

double length(const QPointF& point)
{
    return std::hypot(point.x(), point.y());
}

} // namespace

unsigned ColorWheel::getDragMode(unsigned current, QMouseEvent* event, bool outside) const
{
    const bool shift = event->modifiers() & Qt::ShiftModifier;
    const bool control = event->modifiers() & Qt::ControlModifier;
    const bool alt = event->modifiers() & Qt::AltModifier;
    if (event->button() == Qt::RightButton)
        return kValueDrag;
    if (d->zoomEnabled) {
        const bool middle = event->button() == Qt::MiddleButton;
        if ((current & kZoomDrag) || (middle && alt))
            return kZoomDrag;
        if ((current & kBoxZoomDrag) || middle)
            return kBoxZoomDrag;
        if (alt)
            return kPanDrag;
    }
    if (outside)
        return d->displayMode == kValueRing ? kValueDrag : kHueDrag | kAbsoluteDrag;
    const unsigned jump = alt && d->displayMode == kEmbedded ? kAbsoluteDrag : 0;
    if (!control)
        return jump | (shift ? kSaturationDrag : kHueDrag | kSaturationDrag);
    return jump | (shift || d->displayMode == kValueRing ? kValueDrag : kHueDrag);
}

unsigned ColorWheel::squareDragMode(const QPointF& point) const
{
    const WheelGeometry wheel = d->measures();
    const double distance = length(point) / wheel.radius;
    if (distance > 1.0)
        return 0;
    if (distance >= kHueBand)
        return kHueDrag;
    const double reach = wheel.squareReach();
    const bool isInSquare = std::abs(point.x()) <= reach && std::abs(point.y()) <= reach;
    return isInSquare ? kSaturationDrag | kValueDrag : 0;
}

void ColorWheel::mousePressEvent(QMouseEvent* event)
{
    const WheelGeometry wheel = d->measures();
    // A second button changes nothing about the drag of the first.
    if (!wheel.isUsable() || (d->drag.mode != 0 && event->buttons() != event->button()))
        return;
    const QPoint position = mousePosition(event);
    const QPointF point = QPointF(position.x(), height() - position.y()) - wheel.centre;
    const bool isOutside = length(point) > kOutside * wheel.innerRadius;
    d->drag.mode = d->displayMode == kInnerSquare ? squareDragMode(point) : getDragMode(0, event, isOutside);
    if (d->drag.mode == 0)
        return;
    d->drag.pressPosition = position;
    d->drag.zoom = d->zoom;
    d->drag.radius = wheel.radius;
    d->drag.color = d->shown;
    d->drag.anchor = dragAnchor(point);
    d->drag.current = point;
    if (d->drag.mode == kPanDrag)
        setCursor(Qt::SizeAllCursor);
    else if (d->drag.mode == (kHueDrag | kSaturationDrag))
        setCursor(Qt::ArrowCursor);
    update();
    const QPointer<ColorWheel> self(this);
    Q_EMIT startDragSignal();
    if (self && d->drag.mode != 0)
        drag(event);
}

bool ColorWheel::isRelativeDrag() const
{
    return d->drag.has(kHueDrag | kSaturationDrag) && !isAbsoluteMode();
}

QPointF ColorWheel::dragAnchor(const QPointF& point) const
{
    if (!isRelativeDrag())
        return point;
    if (d->displayMode != kInnerSquare)
        return d->saturationMark();
    return d->drag.has(kHueDrag) ? d->hueMark() : d->squareMark();
}

QPointF ColorWheel::dragPoint(const QMouseEvent* event) const
{
    const QPoint position = mousePosition(event);
    QPointF point(position.x(), height() - position.y());
    if (isRelativeDrag()) {
        const QPoint way = position - d->drag.pressPosition;
        point = d->drag.anchor + QPointF(way.x(), -way.y()) * d->interactionScale;
    }
    return point - d->measures().centre;
}

void ColorWheel::mouseMoveEvent(QMouseEvent* event)
{
    if (d->drag.mode != 0 && d->measures().isUsable())
        drag(event);
}

void ColorWheel::drag(QMouseEvent* event)
{
    const QPointF point = dragPoint(event);
    if (d->drag.has(kBoxZoomDrag)) {
        const QVector<Private::Mark> before = d->marks();
        d->drag.current = point;
        update(d->changedMarks(before));
    }
    if (d->drag.has(kPanDrag))
        setPan(d->pan + (point - d->drag.anchor) / d->measures().innerRadius);
    if (d->drag.has(kZoomDrag))
        dragZoom(mousePosition(event));

    if (d->displayMode == kInnerSquare)
        editColor(draggedInSquare(point, event->modifiers()));
    else if (d->drag.has(kHueDrag | kSaturationDrag | kValueDrag))
        editColor(draggedColor(point, event->type() == QEvent::MouseMove));
    else
        Q_EMIT draggingSignal();
}

void ColorWheel::editColor(const Shown& color)
{
    display(color);
    const QPointer<ColorWheel> self(this);
    if (d->displayMode != kInnerSquare)
        Q_EMIT hsvChanged(color.hue, color.saturation, color.value);
    if (self)
        Q_EMIT draggingSignal();
}

ColorWheel::Shown ColorWheel::draggedColor(const QPointF& point, bool isMove) const
{
    const WheelGeometry wheel = d->measures();
    const Private::Drag& drag = d->drag;
    Shown color = drag.color;
    color.ringValue = d->shown.ringValue;
    // The centre has every hue.
    if (drag.has(kHueDrag) && !point.isNull())
        color.hue = float(hueAt(point, d->hueRotation));
    if (drag.has(kSaturationDrag)) {
        double distance = length(point) / wheel.innerRadius;
        if (drag.mode == kSaturationDrag) {
            // How far along the direction of the hue.
            const QPointF unit = wheel.pointAt(d->angleOf(drag.color.hue), 1.0) - wheel.centre;
            distance = std::max(0.0, (unit.x() * point.x() + unit.y() * point.y()) / wheel.innerRadius);
        }
        color.saturation = float(std::min(distance, 1.0));
    }
    if (drag.has(kValueDrag) && d->displayMode == kValueRing) {
        const double value = ringValueAt(point);
        color.value = float(isMove ? ringValueHeld(d->shown.ringValue, value) : value);
        color.ringValue = color.value;
    } else if (drag.has(kValueDrag)) {
        color.value += float(point.x() - drag.anchor.x()) / kPixelsPerValue;
    }
    return color;
}

ColorWheel::Shown ColorWheel::draggedInSquare(const QPointF& point, Qt::KeyboardModifiers modifiers) const
{
    Shown color = d->shown;
    if (d->drag.has(kHueDrag)) {
        color.hue = float(hueAt(point, d->hueRotation));
        return color;
    }
    const double side = 2.0 * d->measures().squareReach();
    const bool control = modifiers & Qt::ControlModifier;
    const bool onlyShift = (modifiers & Qt::ShiftModifier) && !control;
    if (!onlyShift)
        color.saturation = float(std::clamp(point.x() / side + 0.5, 0.0, 1.0));
    if (!control)
        color.value = float(std::clamp(point.y() / side + 0.5, 0.0, 1.0));
    return color;
}

void ColorWheel::mouseReleaseEvent(QMouseEvent* event)
{
    setCursor(Qt::ArrowCursor);
    if (d->drag.mode == 0)
        return;
    if (d->drag.has(kBoxZoomDrag)) {
        const QPoint way = mousePosition(event) - d->drag.pressPosition;
        const QPointF from = d->drag.anchor;
        const QPointF to = d->drag.current;
        if (std::abs(way.x()) < kBoxMinimum && std::abs(way.y()) < kBoxMinimum) {
            d->zoom = 1.0f;
            d->pan = QPointF();
        } else {
            box_zoom(float(from.x()), float(from.y()), float(to.x()), float(to.y()));
        }
    }
    d->drag.mode = 0;
    update();
    Q_EMIT stopDragSignal();
}

}} // namespace Norvane::UI
