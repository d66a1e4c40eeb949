#pragma once

#include <QPainterPath>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace Norvane { namespace UI {

/// Where a speech bubble goes and what its outline is. Sides are Qt::AlignTop, AlignBottom, AlignLeft,
/// AlignRight, or none of them.

/// The first of top, bottom, left and right that is set in \a alignment.
Qt::Alignment sideOf(Qt::Alignment alignment);

/// The middle of \a rect, rounded towards zero.
QPoint centreOf(const QRect& rect);

/// The side for the pin of a bubble of \a size that points at \a target on a screen that is \a available: \a
/// current if the bubble fits there, or else the opposite side, or the first one that fits; none if none
/// does.
Qt::Alignment choosePinSide(Qt::Alignment current, const QRect& target, const QRect& available,
                            const QSize& size);

struct BubblePlacement {
    QPoint topLeft;
    /// By how much the bubble was pushed back onto the screen, along the side of its pin.
    int pinOffset;
};

BubblePlacement placeBubble(Qt::Alignment side, const QRect& target, const QRect& available,
                            const QSize& size);

struct BubbleShape {
    /// The side of the square in which each corner's arc is drawn.
    int cornerRadius;
    int pinWidth;
    /// The room that is kept free for the pin. The pin itself is half as high as it is wide.
    int pinHeight;
    /// Of the pin's tip from the middle of its side.
    int pinOffset;
};

/// The closed outline of a bubble that fills \a rect.
QPainterPath bubbleOutline(const QRectF& rect, Qt::Alignment side, const BubbleShape& shape);

}} // namespace Norvane::UI
