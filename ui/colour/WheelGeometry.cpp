#include <ui/colour/WheelGeometry.h>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

const double kPi = 3.14159265358979323846;
const double kTurn = 2.0 * kPi;
const double kRingWidth = 16.0;
const double kInnerPart = 0.9;
const double kSmallInnerPart = 0.83;
/// Of the disc's half side, to get from there to the square inside: 1 - 1/sqrt(2), rounded up.
const double kSquareInset = 0.293;
const double kTriangleRadius = 7.5;
const double kCircleRadius = 4.0;

QRectF squareAround(const QPointF& centre, double half)
{
    return QRectF(centre.x() - half, centre.y() - half, 2.0 * half, 2.0 * half);
}

} // namespace

QRectF WheelGeometry::discSquare() const
{
    return squareAround(centre, radius + 2.0);
}

QRectF WheelGeometry::ringSquare() const
{
    return squareAround(centre, radius + 2.0 + ringWidth);
}

QRectF WheelGeometry::innerSquare() const
{
    return squareAround(centre, innerRadius * (1.0 - kSquareInset));
}

double WheelGeometry::squareReach() const
{
    return (innerRadius - 2.0) / std::sqrt(2.0);
}

QPointF WheelGeometry::pointAt(double angle, double distance) const
{
    return centre + distance * QPointF(std::cos(angle), std::sin(angle));
}

QPointF WheelGeometry::ringPoint(double ringValue) const
{
    return pointAt(-kTurn * (ringValue + 0.25), radius + ringWidth / 2.0 + 1.0);
}

WheelGeometry measureWheel(const WheelView& view)
{
    const bool hasRing = view.kind == WheelView::kWithRing;
    WheelGeometry wheel;
    wheel.side = std::min(view.size.width(), view.size.height()) - 2.0;
    wheel.ringWidth = hasRing ? kRingWidth * view.zoom : 0.0;
    wheel.radius = view.zoom * wheel.side / 2.0 - 2.0 - wheel.ringWidth;
    wheel.innerRadius = wheel.radius;
    if (!hasRing)
        wheel.innerRadius *= view.kind == WheelView::kSmall ? kSmallInnerPart : kInnerPart;
    wheel.centre = QPointF(view.size.width(), view.size.height()) / 2.0 + view.pan * wheel.innerRadius;
    return wheel;
}

double wrappedTurn(double x)
{
    return x - std::floor(x);
}

double hueAt(const QPointF& point, double rotation)
{
    return wrappedTurn((std::atan2(point.y(), point.x()) - rotation) / kTurn);
}

double ringValueAt(const QPointF& point)
{
    const double value = 1.0 - (wrappedTurn(std::atan2(point.y(), point.x()) / kTurn) + 0.25);
    return value < 0.0 ? value + 1.0 : value;
}

double ringValueHeld(double from, double to)
{
    if (from > 0.9 && to < 0.1)
        return 1.0;
    if (from < 0.1 && to > 0.9)
        return 0.0;
    return to;
}

QPointF panKeeping(const QPointF& fixedPoint, const QPointF& pan, const WheelGeometry& before,
                   const WheelGeometry& after)
{
    const QPointF shift = pan * before.innerRadius + fixedPoint * (before.radius - after.radius);
    return shift / after.innerRadius;
}

QPolygonF triangleMark(const QPointF& middle, const QPointF& target)
{
    const double angle = std::atan2(target.y() - middle.y(), target.x() - middle.x());
    QPolygonF triangle;
    for (int corner = 0; corner < 3; ++corner) {
        const double direction = angle + corner * kTurn / 3.0;
        triangle.append(middle + kTriangleRadius * QPointF(std::cos(direction), std::sin(direction)));
    }
    return triangle;
}

QRectF circleMark(const QPointF& middle)
{
    return squareAround(middle, kCircleRadius);
}

}} // namespace Norvane::UI
