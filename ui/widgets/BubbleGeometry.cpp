#include <ui/widgets/BubbleGeometry.h>

namespace Norvane { namespace UI {

namespace {

const Qt::AlignmentFlag kSides[] = {Qt::AlignTop, Qt::AlignBottom, Qt::AlignLeft, Qt::AlignRight};

bool isVertical(Qt::Alignment side)
{
    return side == Qt::AlignTop || side == Qt::AlignBottom;
}

Qt::Alignment oppositeOf(Qt::Alignment side)
{
    switch (int(side)) {
    case Qt::AlignTop:
        return Qt::AlignBottom;
    case Qt::AlignBottom:
        return Qt::AlignTop;
    case Qt::AlignLeft:
        return Qt::AlignRight;
    case Qt::AlignRight:
        return Qt::AlignLeft;
    default:
        return Qt::Alignment();
    }
}

/// Whether a bubble with its pin on \a side has room on the other side of that pin.
bool fits(Qt::Alignment side, const QRect& target, const QRect& available, const QSize& size)
{
    switch (int(side)) {
    case Qt::AlignTop:
        return available.bottom() - target.bottom() >= size.height();
    case Qt::AlignBottom:
        return target.top() - available.top() >= size.height();
    case Qt::AlignLeft:
        return available.right() - target.right() >= size.width();
    case Qt::AlignRight:
        return target.left() - available.left() >= size.width();
    default:
        return false;
    }
}

QPoint unclampedTopLeft(Qt::Alignment side, const QRect& target, const QSize& size)
{
    const QPoint centre = centreOf(target);
    switch (int(side)) {
    case Qt::AlignTop:
        return QPoint(centre.x() - size.width() / 2, target.bottom());
    case Qt::AlignBottom:
        return QPoint(centre.x() - size.width() / 2, target.top() - size.height());
    case Qt::AlignLeft:
        return QPoint(target.right(), centre.y() - size.height() / 2);
    case Qt::AlignRight:
        return QPoint(target.left() - size.width(), centre.y() - size.height() / 2);
    default:
        return centre;
    }
}

QRectF withoutPin(QRectF rect, Qt::Alignment side, int pinHeight)
{
    if (side == Qt::AlignTop)
        rect.setTop(rect.top() + pinHeight);
    else if (side == Qt::AlignBottom)
        rect.setBottom(rect.bottom() - pinHeight);
    else if (side == Qt::AlignLeft)
        rect.setLeft(rect.left() + pinHeight);
    else if (side == Qt::AlignRight)
        rect.setRight(rect.right() - pinHeight);
    return rect;
}

/// Draws the outline of a body clockwise.
class OutlinePen
{
public:
    OutlinePen(const QRectF& body, Qt::Alignment side, const BubbleShape& shape)
        : m_body(body)
        , m_side(side)
        , m_radius(qMax(0, shape.cornerRadius))
        , m_halfPin(shape.pinWidth / 2)
    {
        const qreal length = isVertical(side) ? body.width() : body.height();
        const qreal nearest = m_radius + m_halfPin;
        const qreal middle = qMax(nearest, qMin(shape.pinOffset + length * 0.5, length - nearest));
        m_pinStart = middle - m_halfPin;
    }

    QPainterPath draw()
    {
        addCorner(m_body.topLeft(), QPointF(0, 0), 180);
        addPin(Qt::AlignTop, m_body.topLeft(), QPointF(1, 0), QPointF(0, -1));
        addCorner(m_body.topRight(), QPointF(1, 0), 90);
        addPin(Qt::AlignRight, m_body.topRight(), QPointF(0, 1), QPointF(1, 0));
        addCorner(m_body.bottomRight(), QPointF(1, 1), 0);
        addPin(Qt::AlignBottom, m_body.bottomLeft(), QPointF(1, 0), QPointF(0, 1));
        addCorner(m_body.bottomLeft(), QPointF(0, 1), 270);
        addPin(Qt::AlignLeft, m_body.topLeft(), QPointF(0, 1), QPointF(-1, 0));
        m_path.closeSubpath();
        return m_path;
    }

private:
    /// \a inset is the part of the corner's square that lies left of and above \a corner.
    void addCorner(const QPointF& corner, const QPointF& inset, qreal startAngle)
    {
        const QRectF square(corner - inset * m_radius, QSizeF(m_radius, m_radius));
        const bool isFirst = m_path.elementCount() == 0;
        if (m_radius == 0 && isFirst)
            m_path.moveTo(corner);
        else if (m_radius == 0)
            m_path.lineTo(corner);
        else {
            if (isFirst)
                m_path.arcMoveTo(square, startAngle);
            m_path.arcTo(square, startAngle, -90);
        }
    }

    /// \a along leads from \a start, the left or upper end of the side, to its other end.
    void addPin(Qt::Alignment side, const QPointF& start, const QPointF& along, const QPointF& outwards)
    {
        if (side != m_side)
            return;
        const QPointF first = start + along * m_pinStart;
        const QPointF tip = first + along * m_halfPin + outwards * m_halfPin;
        const QPointF last = first + along * (2 * m_halfPin);
        const bool clockwise = side == Qt::AlignTop || side == Qt::AlignRight;
        m_path.lineTo(clockwise ? first : last);
        m_path.lineTo(tip);
        m_path.lineTo(clockwise ? last : first);
    }

    QPainterPath m_path;
    const QRectF m_body;
    const Qt::Alignment m_side;
    const qreal m_radius;
    const int m_halfPin;
    qreal m_pinStart;
};

} // namespace

Qt::Alignment sideOf(Qt::Alignment alignment)
{
    for (const Qt::AlignmentFlag side : kSides) {
        if (alignment & side)
            return side;
    }
    return Qt::Alignment();
}

QPoint centreOf(const QRect& rect)
{
    return QPoint((rect.left() + rect.right()) / 2, (rect.top() + rect.bottom()) / 2);
}

Qt::Alignment choosePinSide(Qt::Alignment current, const QRect& target, const QRect& available,
                            const QSize& size)
{
    const Qt::Alignment side = sideOf(current);
    for (const Qt::Alignment candidate : {side, oppositeOf(side)}) {
        if (fits(candidate, target, available, size))
            return candidate;
    }
    for (const Qt::Alignment candidate : kSides) {
        if (fits(candidate, target, available, size))
            return candidate;
    }
    return Qt::Alignment();
}

BubblePlacement placeBubble(Qt::Alignment side, const QRect& target, const QRect& available,
                            const QSize& size)
{
    const QPoint wanted = unclampedTopLeft(side, target, size);
    const QPoint topLeft(qMin(qMax(wanted.x(), available.left()), available.right() - size.width()),
                         qMin(qMax(wanted.y(), available.top()), available.bottom() - size.height()));
    const QPoint push = wanted - topLeft;
    if (!sideOf(side))
        return {topLeft, 0};
    return {topLeft, isVertical(side) ? push.x() : push.y()};
}

QPainterPath bubbleOutline(const QRectF& rect, Qt::Alignment side, const BubbleShape& shape)
{
    return OutlinePen(withoutPin(rect, side, shape.pinHeight), side, shape).draw();
}

}} // namespace Norvane::UI
