#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

namespace Norvane { namespace UI {

/// The arithmetic of ColorWheel, without a widget. "Wheel coordinates" are pixels with the origin in the
/// widget's lower left corner and y upwards; angles are in radians, counter-clockwise from the right.

/// What a wheel's measures follow from.
struct WheelView {
    enum Kind { kPlain, kWithRing, kSmall };
    Kind kind;
    QSizeF size; ///< of the widget
    double zoom; ///< 1..6
    QPointF pan; ///< of the centre, in inner radii
};

struct WheelGeometry {
    double side;        ///< of the square in which an unzoomed wheel lies
    double radius;      ///< of the disc
    double innerRadius; ///< where saturation is 1
    double ringWidth;   ///< of the value ring around the disc, 0 without one
    QPointF centre;     ///< in wheel coordinates

    /// False in a widget too small for a wheel; everything else is meaningless then.
    bool isUsable() const { return innerRadius > 2.0; }
    /// The square that the texture fills: a bit larger than the disc.
    QRectF discSquare() const;
    /// The square that the value ring fills, with the disc.
    QRectF ringSquare() const;
    /// The square of saturation and value inside the inner radius.
    QRectF innerSquare() const;
    /// Half of the side in which a press into the square counts.
    double squareReach() const;
    /// \a distance pixels from the centre.
    QPointF pointAt(double angle, double distance) const;
    /// Where the middle of the value ring's marker is, for a value of 0..1: from the bottom clockwise.
    QPointF ringPoint(double ringValue) const;
};

WheelGeometry measureWheel(const WheelView& view);

/// \a x without its whole turns, 0..1.
double wrappedTurn(double x);
/// The hue in turns that a wheel rotated by \a rotation radians shows at \a point, relative to the centre.
double hueAt(const QPointF& point, double rotation);
/// The value that the ring shows at \a point, relative to the centre.
double ringValueAt(const QPointF& point);
/// The value that the ring's marker takes on its way from \a from to \a to: it does not pass the ends.
double ringValueHeld(double from, double to);

/// The pan with which \a fixedPoint, in radii from the centre, stays where it is when \a before becomes
/// \a after.
QPointF panKeeping(const QPointF& fixedPoint, const QPointF& pan, const WheelGeometry& before,
                   const WheelGeometry& after);

/// A triangle around \a middle that points to \a target.
QPolygonF triangleMark(const QPointF& middle, const QPointF& target);
/// A circle around \a middle.
QRectF circleMark(const QPointF& middle);

}} // namespace Norvane::UI
