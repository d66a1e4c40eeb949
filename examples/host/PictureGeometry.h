#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

/// Where a picture lies in a view, as functions of numbers. View coordinates are the widget's pixels, picture
/// coordinates those of the picture, whose top-left pixel covers (0, 0) to (1, 1).
namespace Norvane { namespace Host {

struct Placement {
    /// View pixels for one of the picture.
    qreal scale = 1;
    /// The view position of the picture's top-left corner.
    QPointF origin;

    QPointF toPicture(const QPointF& viewPoint) const;
    QPointF toView(const QPointF& picturePoint) const;
    QRectF rect(const QSize& picture) const;
};

/// The scale at which the whole \a picture just fits into \a view; 1 where one of them is empty.
qreal fitScale(const QSize& picture, const QSize& view);

/// Places the picture so that \a center, a picture point, comes to the middle of the view. A picture smaller
/// than the view is centred, a larger one leaves no gap at its edges; both for each direction by itself.
Placement placePicture(const QSize& picture, const QSize& view, qreal scale, const QPointF& center);

/// The picture point in the middle of the view once the scale has become \a scale while the picture point
/// under \a viewPoint stayed where it is.
QPointF centerAfterZoom(const Placement& before, const QSize& view, const QPointF& viewPoint, qreal scale);

/// The pixels, of an image of \a size drawn over \a whole, that \a view touches.
QRect touchedPixels(const QRectF& whole, const QSize& size, const QRectF& view);

/// The part of \a whole that \a pixels of an image of \a size cover.
QRectF coveredPart(const QRectF& whole, const QSize& size, const QRect& pixels);

}} // namespace Norvane::Host
