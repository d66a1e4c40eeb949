// How a wheel looks. All but updateBase() and paintFocus() paint in wheel coordinates.

#include <ui/colour/ColorWheelPrivate.h>

#include <ui/toolkit/Painting.h>

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPaintEvent>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

void useWheelCoordinates(QPainter& painter, const QSize& size)
{
    painter.translate(0, size.height());
    painter.scale(1, -1);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

} // namespace

void ColorWheel::paintEvent(QPaintEvent* event)
{
    if (!_texture_ready)
        buildTexture();
    const WheelGeometry wheel = d->measures();
    if (!wheel.isUsable())
        return;
    QPainter painter(this);
    d->updateBase();
    // Below the colours: some styles tint what has focus.
    if (d->showsFocus && hasFocus())
        d->paintFocus(painter);
    if (d->displayMode == kInnerSquare)
        d->paintWithSquare(painter, event->rect());
    else
        painter.drawPixmap(0, 0, d->basePixmap);
    useWheelCoordinates(painter, size());
    // Most repaints need only one of the marks.
    if (event->region().intersects(d->placeOf(d->triangle().boundingRect())))
        d->paintTriangle(painter);
    if (d->displayMode != kInnerSquare) {
        d->paintCross(painter);
        d->paintGuides(painter);
        d->paintRubberBand(painter);
    }
    if (event->region().intersects(d->placeOf(d->circle())))
        d->paintCircle(painter);
}

bool ColorWheel::Private::DiscKey::operator==(const DiscKey& other) const
{
    return mode == other.mode && size == other.size && zoom == other.zoom && pan == other.pan &&
           hueRotation == other.hueRotation && density == other.density && window == other.window;
}

void ColorWheel::Private::updateBase()
{
    const qreal density = UI::devicePixelRatio(wheel);
    const QRgb window = wheel->palette().color(QPalette::Window).rgba();
    const DiscKey key = {displayMode, wheel->size(), zoom, pan, hueRotation, density, window};
    const bool isNew = discPixmap.isNull() || !(key == discKey);
    if (isNew) {
        discKey = key;
        discPixmap = QPixmap((QSizeF(wheel->size()) * density).toSize());
        discPixmap.fill(Qt::transparent);
        setDevicePixelRatio(discPixmap, density);
        QPainter painter(&discPixmap);
        useWheelCoordinates(painter, wheel->size());
        drawDisc(painter);
    }
    if (isNew || isShadedOtherwise(baseShown)) {
        basePixmap = discPixmap;
        QPainter painter(&basePixmap);
        useWheelCoordinates(painter, wheel->size());
        drawShade(painter);
    }
    if (isNew && displayMode == kInnerSquare)
        drawVeil();
    baseShown = shown;
}

void ColorWheel::Private::drawDisc(QPainter& painter) const
{
    const WheelGeometry geometry = measures();
    const QRectF square = geometry.discSquare();
    painter.save();
    painter.translate(geometry.centre);
    // The texture is shared, and made with the rotation of the wheel that was painted first.
    painter.rotate((hueRotation - _texture_rotation) * 180.0 / 3.14159265358979323846);
    painter.drawImage(square.translated(-geometry.centre), _texture);
    painter.restore();
    if (displayMode == kEmbedded) {
        painter.setPen(QPen(wheel->palette().color(QPalette::Window), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(square);
    }
    if (displayMode == kValueRing)
        drawRing(painter);
}

void ColorWheel::Private::drawRing(QPainter& painter) const
{
    const WheelGeometry geometry = measures();
    QPainterPath ring;
    ring.setFillRule(Qt::OddEvenFill);
    ring.addEllipse(geometry.discSquare());
    ring.addEllipse(geometry.ringSquare());
    QConicalGradient gradient(geometry.centre, 90);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::lightGray);
    painter.setPen(wheel->palette().color(QPalette::Window).lighter(150));
    painter.setBrush(gradient);
    painter.drawPath(ring);
}

void ColorWheel::Private::drawShade(QPainter& painter) const
{
    const WheelGeometry geometry = measures();
    const double r = geometry.innerRadius;
    const double band = geometry.radius - r;
    if (shown.value >= 0.0f && band > 0.0) {
        painter.setOpacity(0.3);
        painter.setPen(QPen(Qt::black, band));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(geometry.centre, r + band / 2.0, r + band / 2.0);
    }
    const double darkness = displayMode == kValueRing ? 0.5 : 1.0 - std::abs(shown.value);
    painter.setOpacity(std::clamp(darkness, 0.0, 1.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    if (displayMode == kInnerSquare) {
        // What covers the disc around the square.
        painter.setOpacity(1.0);
        painter.setBrush(wheel->palette().color(QPalette::Window));
    }
    painter.drawEllipse(geometry.centre, r, r);
    painter.setOpacity(1.0);
}

void ColorWheel::Private::paintFocus(QPainter& painter) const
{
    QStyleOptionFocusRect option;
    option.initFrom(wheel);
    option.state |= QStyle::State_KeyboardFocusChange;
    option.backgroundColor = wheel->palette().color(QPalette::Window);
    wheel->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, wheel);
}

void ColorWheel::Private::paintTriangle(QPainter& painter) const
{
    painter.setPen(Qt::black);
    painter.setBrush(triangleColor());
    painter.drawPolygon(triangle());
}

void ColorWheel::Private::paintCross(QPainter& painter) const
{
    const QPointF centre = measures().centre;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(crossColor());
    painter.drawLine(centre - QPointF(3, 0), centre + QPointF(3, 0));
    painter.drawLine(centre - QPointF(0, 3), centre + QPointF(0, 3));
    painter.setRenderHint(QPainter::Antialiasing);
}

void ColorWheel::Private::paintGuides(QPainter& painter) const
{
    painter.setPen(QPen(guideColor(), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    if (!guideLine().isNull())
        painter.drawLine(guideLine());
    if (!guideCircle().isNull())
        painter.drawEllipse(guideCircle());
}

void ColorWheel::Private::paintRubberBand(QPainter& painter) const
{
    if (rubberBand().isNull())
        return;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::white);
    painter.setBrush(QColor(255, 255, 255, 25));
    painter.drawRect(rubberBand());
    painter.setRenderHint(QPainter::Antialiasing);
}

void ColorWheel::Private::paintCircle(QPainter& painter) const
{
    painter.setPen(Qt::black);
    painter.setBrush(circleColor());
    painter.drawEllipse(circle());
}

}} // namespace Norvane::UI
