// The square of saturation (from left to right) and value (from bottom to top) inside a wheel: the pure
// colour of its hue, below a veil that is the same for every hue. A drag of the hue is painted by the
// toolkit's fastest loops.

#include <ui/colour/ColorWheelPrivate.h>

#include <colour/ColorModels.h>

#include <QPainter>

namespace Norvane { namespace UI {

namespace {

QColor pureColor(float hue)
{
    float red, green, blue;
    Colour::hsvToRgb(hue, 1.0f, 1.0f, &red, &green, &blue);
    return QColor::fromRgbF(qreal(red), qreal(green), qreal(blue));
}

} // namespace

QRect ColorWheel::Private::squarePixels() const
{
    const qreal density = discKey.density;
    const QRectF square = measures().innerSquare();
    const QPointF corner(square.left(), wheel->height() - square.bottom());
    const int side = qRound(square.width() * density);
    return QRect((corner * density).toPoint(), QSize(side, side));
}

void ColorWheel::Private::drawVeil()
{
    const QRect square = squarePixels();
    const QRect part = (square & basePixmap.rect()).translated(-square.topLeft());
    veil = QImage(part.size(), QImage::Format_ARGB32_Premultiplied);
    const float side = float(square.width());
    for (int y = part.top(); y <= part.bottom(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(veil.scanLine(y - part.top()));
        const float value = 255.0f * (side - 1.0f - float(y)) / side;
        for (int x = part.left(); x <= part.right(); ++x) {
            // Of a colour, value * saturation is the pure colour, the rest of the value white.
            const float pure = value * float(x) / side;
            const int white = qRound(value - pure);
            *line++ = qRgba(white, white, white, qRound(255.0f - pure));
        }
    }
}

void ColorWheel::Private::paintWithSquare(QPainter& painter, const QRect& dirty) const
{
    const qreal density = discKey.density;
    const QRect whole = basePixmap.rect();
    const QRect square = squarePixels() & whole;
    const QRectF dirtyPixels(QPointF(dirty.topLeft()) * density, QSizeF(dirty.size()) * density);
    const QRect part = dirtyPixels.toAlignedRect() & square;
    painter.save();
    // On whole pixels of the screen: what need not be scaled is painted much faster.
    painter.scale(1.0 / density, 1.0 / density);
    painter.fillRect(part, pureColor(shown.hue));
    painter.drawImage(part.topLeft(), veil, part.translated(-square.topLeft()));
    if (part != dirtyPixels) {
        painter.setClipRegion(QRegion(whole) - square);
        painter.drawPixmap(whole, basePixmap);
    }
    painter.restore();
}

}} // namespace Norvane::UI
