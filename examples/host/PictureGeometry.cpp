#include "PictureGeometry.h"

#include <cmath>

namespace Norvane { namespace Host {

namespace {

qreal placeAlongAxis(qreal pictureExtent, qreal viewExtent, qreal wanted)
{
    if (pictureExtent <= viewExtent)
        return (viewExtent - pictureExtent) / 2;
    return qBound(viewExtent - pictureExtent, wanted, qreal(0));
}

} // namespace

QPointF Placement::toPicture(const QPointF& viewPoint) const
{
    return (viewPoint - origin) / scale;
}

QPointF Placement::toView(const QPointF& picturePoint) const
{
    return picturePoint * scale + origin;
}

QRectF Placement::rect(const QSize& picture) const
{
    return QRectF(origin, QSizeF(picture) * scale);
}

qreal fitScale(const QSize& picture, const QSize& view)
{
    if (picture.isEmpty() || view.isEmpty())
        return 1;
    return qMin(view.width() / qreal(picture.width()), view.height() / qreal(picture.height()));
}

Placement placePicture(const QSize& picture, const QSize& view, qreal scale, const QPointF& center)
{
    const QPointF wanted = QPointF(view.width(), view.height()) / 2 - center * scale;
    Placement placement;
    placement.scale = scale;
    placement.origin = QPointF(placeAlongAxis(picture.width() * scale, view.width(), wanted.x()),
                               placeAlongAxis(picture.height() * scale, view.height(), wanted.y()));
    return placement;
}

QPointF centerAfterZoom(const Placement& before, const QSize& view, const QPointF& viewPoint, qreal scale)
{
    const QPointF middle = QPointF(view.width(), view.height()) / 2;
    return before.toPicture(viewPoint) + (middle - viewPoint) / scale;
}

QRect touchedPixels(const QRectF& whole, const QSize& size, const QRectF& view)
{
    const QRectF shared = whole & view;
    if (shared.isEmpty())
        return QRect();
    const qreal xScale = size.width() / whole.width();
    const qreal yScale = size.height() / whole.height();
    const int left = int(std::floor((shared.left() - whole.left()) * xScale));
    const int top = int(std::floor((shared.top() - whole.top()) * yScale));
    const int right = int(std::ceil((shared.right() - whole.left()) * xScale));
    const int bottom = int(std::ceil((shared.bottom() - whole.top()) * yScale));
    return QRect(left, top, right - left, bottom - top) & QRect(QPoint(0, 0), size);
}

QRectF coveredPart(const QRectF& whole, const QSize& size, const QRect& pixels)
{
    const qreal xScale = whole.width() / size.width();
    const qreal yScale = whole.height() / size.height();
    return QRectF(whole.left() + pixels.left() * xScale, whole.top() + pixels.top() * yScale,
                  pixels.width() * xScale, pixels.height() * yScale);
}

}} // namespace Norvane::Host
