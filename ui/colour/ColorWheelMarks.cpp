// Where the marks of a wheel are.

#include <ui/colour/ColorWheelPrivate.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Norvane { namespace UI {

namespace {

const double kTurn = 2.0 * 3.14159265358979323846;
/// Around a mark: half of a pen, and what antialiasing adds.
const int kMargin = 2;
/// Of a line, in pixels. Many small rectangles take longer to paint than a few that are larger.
const double kPiece = 64.0;

/// Collects where something is painted in a widget.
class PaintedRegion
{
public:
    explicit PaintedRegion(const QSize& size)
        : m_size(size)
    {
    }
    void add(const QRectF& mark)
    {
        // Wheel coordinates are counted from the bottom.
        const QRectF flipped(mark.left(), m_size.height() - mark.bottom(), mark.width(), mark.height());
        const QRectF painted = flipped.adjusted(-kMargin, -kMargin, kMargin, kMargin);
        // Of a saturation without bounds, the mark may be farther away than an integer can tell.
        m_region |= (painted & QRectF(QPointF(), m_size)).toAlignedRect();
    }
    /// Lines are added piece by piece: together the pieces are much smaller than the rectangle around all.
    void addLine(const QLineF& line)
    {
        const int pieces = 1 + int(line.length() / kPiece);
        for (int i = 0; i < pieces; ++i)
            addPiece(line.pointAt(i / double(pieces)), line.pointAt((i + 1) / double(pieces)), 0.0);
    }
    void addCircle(const QRectF& circle)
    {
        const double radius = circle.width() / 2.0;
        const int pieces = std::clamp(int(kTurn * radius / kPiece), 8, 64);
        // Half of what the arc bulges from its chord: the chords lie around the arc.
        const double bulge = radius * (1.0 - std::cos(kTurn / pieces / 2.0)) / 2.0;
        const double outer = radius + bulge;
        QPointF from = circle.center() + QPointF(outer, 0.0);
        for (int i = 1; i <= pieces; ++i) {
            const double angle = i * kTurn / pieces;
            const QPointF to = circle.center() + outer * QPointF(std::cos(angle), std::sin(angle));
            addPiece(from, to, bulge);
            from = to;
        }
    }
    QRegion region() const { return m_region; }

private:
    void addPiece(const QPointF& from, const QPointF& to, double bulge)
    {
        add(QRectF(from, to).normalized().adjusted(-bulge, -bulge, bulge, bulge));
    }

    QSizeF m_size;
    QRegion m_region;
};

} // namespace

WheelGeometry ColorWheel::Private::measures() const
{
    WheelView view;
    view.kind = displayMode == kValueRing  ? WheelView::kWithRing
                : displayMode == kEmbedded ? WheelView::kSmall
                                           : WheelView::kPlain;
    view.size = wheel->size();
    view.zoom = zoom;
    view.pan = pan;
    return measureWheel(view);
}

double ColorWheel::Private::angleOf(float hue) const
{
    return kTurn * hue + hueRotation;
}

bool ColorWheel::Private::isShadedOtherwise(const Shown& other) const
{
    switch (displayMode) {
    case kInnerSquare:
        return (shown.value < 0.0f) != (other.value < 0.0f);
    case kValueRing:
        return false;
    default:
        return shown.value != other.value;
    }
}

bool ColorWheel::Private::hasOtherSquare(const Shown& other) const
{
    return displayMode == kInnerSquare && (shown.hue != other.hue || isShadedOtherwise(other));
}

QRegion ColorWheel::Private::changedRegion(const Shown& other) const
{
    if (isShadedOtherwise(other))
        return wheel->rect();
    PaintedRegion painted(wheel->size());
    if (hasOtherSquare(other))
        painted.add(measures().innerSquare());
    return painted.region();
}

QPointF ColorWheel::Private::hueMark() const
{
    const WheelGeometry geometry = measures();
    return geometry.pointAt(angleOf(shown.hue), geometry.radius);
}

QPointF ColorWheel::Private::saturationMark() const
{
    const WheelGeometry geometry = measures();
    return geometry.pointAt(angleOf(shown.hue), shown.saturation * geometry.innerRadius);
}

QPointF ColorWheel::Private::squareMark() const
{
    const QRectF square = measures().innerSquare();
    return square.topLeft() + QPointF(std::clamp(shown.saturation, 0.0f, 1.0f) * square.width(),
                                      std::clamp(shown.value, 0.0f, 1.0f) * square.height());
}

QPolygonF ColorWheel::Private::hueTriangle() const
{
    return triangleMark(hueMark(), measures().centre);
}

QPolygonF ColorWheel::Private::ringTriangle() const
{
    const WheelGeometry geometry = measures();
    return triangleMark(geometry.ringPoint(shown.ringValue), geometry.centre);
}

QLineF ColorWheel::Private::guideLine() const
{
    const WheelGeometry geometry = measures();
    if (displayMode == kInnerSquare || !drag.has(kSaturationDrag))
        return QLineF();
    return QLineF(geometry.centre, geometry.pointAt(angleOf(shown.hue), geometry.innerRadius));
}

QRectF ColorWheel::Private::guideCircle() const
{
    const WheelGeometry geometry = measures();
    const double radius = shown.saturation * geometry.innerRadius;
    // A circle that no pixel of the widget can see would be dashed without end.
    const QPointF middle(wheel->width() / 2.0, wheel->height() / 2.0);
    const double seen = QLineF(geometry.centre, middle).length() + QLineF(QPointF(), middle).length();
    if (displayMode == kInnerSquare || !drag.has(kHueDrag) || radius > seen ||
        radius <= std::numeric_limits<float>::epsilon())
        return QRectF();
    const QPointF reach(radius, radius);
    return QRectF(geometry.centre - reach, geometry.centre + reach);
}

QRectF ColorWheel::Private::rubberBand() const
{
    if (displayMode == kInnerSquare || !drag.has(kBoxZoomDrag))
        return QRectF();
    const QPointF centre = measures().centre;
    return QRectF(centre + drag.anchor, centre + drag.current).normalized();
}

QRegion ColorWheel::Private::markRegion() const
{
    const WheelGeometry geometry = measures();
    if (!geometry.isUsable())
        return QRegion();
    const QPointF mark = displayMode == kInnerSquare ? squareMark() : saturationMark();
    const QPolygonF triangle = displayMode == kValueRing ? ringTriangle() : hueTriangle();
    PaintedRegion painted(wheel->size());
    painted.add(circleMark(mark));
    painted.add(triangle.boundingRect());
    if (displayMode == kValueRing)
        painted.add(circleMark(geometry.centre)); // the cross
    if (!guideLine().isNull())
        painted.addLine(guideLine());
    if (!guideCircle().isNull())
        painted.addCircle(guideCircle());
    if (!rubberBand().isNull())
        painted.add(rubberBand());
    return painted.region();
}

}} // namespace Norvane::UI
