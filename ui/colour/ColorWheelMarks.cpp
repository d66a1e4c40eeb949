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
const double kPiece = 100.0;
/// From here on, a colour is bright enough for black lines.
const float kBright = 0.6f;
/// Below this, a colour is nearly black.
const float kDark = 0.1f;

struct MarkColors {
    QColor normal;
    QColor dark;
    QColor warning;
};

const MarkColors& markColors()
{
    static const MarkColors colors = {Qt::white, QColor(102, 178, 255), QColor(255, 51, 51)};
    return colors;
}

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

QRegion ColorWheel::Private::changedRegion(const Shown& other) const
{
    if (isShadedOtherwise(other))
        return wheel->rect();
    return displayMode == kInnerSquare && shown.hue != other.hue ? placeOf(measures().innerSquare())
                                                                 : QRect();
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

QPolygonF ColorWheel::Private::triangle() const
{
    const WheelGeometry geometry = measures();
    const QPointF middle = displayMode == kValueRing ? geometry.ringPoint(shown.ringValue) : hueMark();
    return triangleMark(middle, geometry.centre);
}

QRectF ColorWheel::Private::circle() const
{
    return circleMark(displayMode == kInnerSquare ? squareMark() : saturationMark());
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

QColor ColorWheel::Private::triangleColor() const
{
    const bool warns = displayMode != kValueRing && shown.saturation > 1.0f;
    return warns ? markColors().warning : markColors().normal;
}

QColor ColorWheel::Private::circleColor() const
{
    const float brightness = std::abs(shown.value);
    const MarkColors& colors = markColors();
    return brightness < kDark ? colors.dark : brightness > 1.0f ? colors.warning : colors.normal;
}

QColor ColorWheel::Private::crossColor() const
{
    return std::abs(shown.value) >= kBright ? Qt::black : Qt::white;
}

QColor ColorWheel::Private::guideColor() const
{
    return std::abs(shown.value) >= kBright ? QColor(Qt::black) : QColor(178, 178, 178);
}

QRect ColorWheel::Private::placeOf(const QRectF& mark) const
{
    const double height = wheel->height();
    // Wheel coordinates are counted from the bottom.
    const QRectF flipped(mark.left(), height - mark.bottom(), mark.width(), mark.height());
    const QRectF painted = flipped.adjusted(-kMargin, -kMargin, kMargin, kMargin);
    // Of a saturation without bounds, the mark may be farther away than an integer can tell.
    return (painted & QRectF(wheel->rect())).toAlignedRect();
}

// Lines are made of pieces: together these are much smaller than the rectangle around all.
QRegion ColorWheel::Private::placeOfLine(const QLineF& line) const
{
    QRegion region;
    const int pieces = line.isNull() ? 0 : 1 + int(line.length() / kPiece);
    for (int i = 0; i < pieces; ++i) {
        const QPointF from = line.pointAt(i / double(pieces));
        region |= placeOf(QRectF(from, line.pointAt((i + 1) / double(pieces))).normalized());
    }
    return region;
}

QRegion ColorWheel::Private::placeOfCircle(const QRectF& circle) const
{
    QRegion region;
    const double radius = circle.width() / 2.0;
    const int pieces = circle.isNull() ? 0 : std::clamp(int(kTurn * radius / kPiece), 8, 64);
    // Half of what the arc bulges from its chord: the chords lie around the arc.
    const double bulge = radius * (1.0 - std::cos(kTurn / std::max(pieces, 1) / 2.0)) / 2.0;
    const QPointF middle = circle.center();
    QPointF from = middle + QPointF(radius + bulge, 0.0);
    for (int i = 1; i <= pieces; ++i) {
        const double angle = i * kTurn / pieces;
        const QPointF to = middle + (radius + bulge) * QPointF(std::cos(angle), std::sin(angle));
        region |= placeOf(QRectF(from, to).normalized().adjusted(-bulge, -bulge, bulge, bulge));
        from = to;
    }
    return region;
}

QVector<ColorWheel::Private::Mark> ColorWheel::Private::marks() const
{
    QVector<Mark> marks;
    const WheelGeometry geometry = measures();
    if (!geometry.isUsable())
        return marks;
    const auto add = [&](const QRectF& shape, const QColor& color) {
        marks.append({shape, shape.isNull() ? QRect() : placeOf(shape), color});
    };
    const QLineF line = guideLine();
    add(triangle().boundingRect(), triangleColor());
    add(circle(), circleColor());
    add(circleMark(geometry.centre), crossColor());
    add(rubberBand(), Qt::white);
    marks.append({QRectF(line.p1(), line.p2()), placeOfLine(line), guideColor()});
    marks.append({guideCircle(), placeOfCircle(guideCircle()), guideColor()});
    return marks;
}

QRegion ColorWheel::Private::changedMarks(const QVector<Mark>& before) const
{
    const QVector<Mark> after = marks();
    QRegion changed;
    for (int i = 0; i < after.size(); ++i) {
        if (after[i] == before[i])
            continue;
        const QRegion both = before[i].place | after[i].place;
        // One rectangle is painted faster than the three of two that overlap.
        const bool areNear = before[i].place.rectCount() == 1 && before[i].place.intersects(after[i].place);
        changed |= areNear ? QRegion(both.boundingRect()) : both;
    }
    return changed;
}

}} // namespace Norvane::UI
