// Zooming a wheel: around a point, into a box, by the mouse wheel.

#include <ui/colour/ColorWheel.h>

#include <ui/colour/ColorWheelPrivate.h>
#include <ui/colour/FiniteNumbers.h>
#include <ui/toolkit/Events.h>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

const float kMinZoom = 1.0f;
const float kMaxZoom = 6.0f;
const int kNotch = 120;
const float kNotchesPerOctave = 4.0f;

} // namespace

void ColorWheel::setPan(const QPointF& pan)
{
    const qreal limit = _max_pan;
    d->pan = QPointF(std::clamp(pan.x(), -limit, limit), std::clamp(pan.y(), -limit, limit));
    update();
}

void ColorWheel::zoom(float newZoom, float x, float y)
{
    const WheelGeometry before = d->measures();
    if (!d->zoomEnabled || !areFinite(newZoom, x, y) || !before.isUsable())
        return;
    const float zoom = std::clamp(newZoom, kMinZoom, kMaxZoom);
    if (zoom != d->zoom) {
        d->zoom = zoom;
        setPan(panKeeping(QPointF(x, y), d->pan, before, d->measures()));
    } else if (zoom <= kMinZoom && !d->pan.isNull()) {
        setPan(QPointF());
    }
}

void ColorWheel::box_zoom(float x1, float y1, float x2, float y2)
{
    const WheelGeometry before = d->measures();
    if (!d->zoomEnabled || !areFinite(x1, y1, x2, y2) || !before.isUsable() || (x1 == x2 && y1 == y2))
        return;
    const float boxWidth = std::abs(x2 - x1);
    const float boxHeight = std::abs(y2 - y1);
    const bool isTall = float(width()) * boxHeight > boxWidth * float(height());
    const float factor = d->zoom * float(before.side) / (isTall ? boxHeight : boxWidth);
    d->zoom = kMinZoom;
    d->pan = QPointF();
    zoom(factor, 0.0f, 0.0f);
    // Not limited: the whole of a box near the edge is to be seen.
    d->pan = QPointF(x1 + x2, y1 + y2) / (-2.0 * before.radius);
    update();
}

void ColorWheel::wheelEvent(QWheelEvent* event)
{
    const QPoint position = wheelPosition(event);
    if (!d->zoomEnabled || !rect().contains(position)) {
        event->ignore();
        return;
    }
    // Touch pads turn by fractions of a notch.
    d->wheelTurn += wheelDelta(event);
    const int notches = d->wheelTurn / kNotch;
    d->wheelTurn %= kNotch;
    if (notches == 0)
        return;
    const WheelGeometry wheel = d->measures();
    const QPointF point = (QPointF(position.x(), height() - position.y()) - wheel.centre) / wheel.radius;
    const float now = std::round(kNotchesPerOctave * std::log2(d->zoom));
    zoom(std::exp2((now + float(notches)) / kNotchesPerOctave), float(point.x()), float(point.y()));
}

void ColorWheel::dragZoom(const QPoint& position)
{
    // An octave for each 96 pixels to the right or up.
    const Private::Drag& drag = d->drag;
    const QPoint way = position - drag.pressPosition;
    const QPointF fixed = drag.anchor / drag.radius;
    zoom(drag.zoom * std::exp2(float(way.x() - way.y()) / 96.0f), float(fixed.x()), float(fixed.y()));
}

}} // namespace Norvane::UI
