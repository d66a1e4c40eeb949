// How a wheel looks. All functions but updateBase() paint in wheel coordinates.

#include <ui/colour/ColorWheelPrivate.h>

#include <colour/ColorModels.h>
#include <ui/toolkit/Painting.h>

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

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

void useWheelCoordinates(QPainter& painter, const QSize& size)
{
    painter.translate(0, size.height());
    painter.scale(1, -1);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

/// Fills \a image with the part at \a corner of a square of \a side pixels: saturation from left to right,
/// value from bottom to top.
void fillSquare(QImage& image, float hue, int side, const QPoint& corner)
{
    // Saturation leads from white to the pure hue, and value from black to that, both in a straight line.
    float pure[3];
    Colour::hsvToRgb(hue, 1.0f, 1.0f, &pure[0], &pure[1], &pure[2]);
    const int left = corner.x();
    const int right = left + image.width();
    for (int y = 0; y < image.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const float white = 255.0f * (side - 1 - corner.y() - y) / side;
        const float red = white * (pure[0] - 1.0f) / side;
        const float green = white * (pure[1] - 1.0f) / side;
        const float blue = white * (pure[2] - 1.0f) / side;
        for (int x = left; x < right; ++x)
            *line++ = qRgb(int(white + red * x), int(white + green * x), int(white + blue * x));
    }
}

void paintTriangle(QPainter& painter, const QPolygonF& triangle, const QColor& color)
{
    painter.setPen(Qt::black);
    painter.setBrush(color);
    painter.drawPolygon(triangle);
}

} // namespace

void ColorWheel::paintEvent(QPaintEvent*)
{
    if (!_texture_ready)
        buildTexture();
    const WheelGeometry wheel = d->measures();
    if (!wheel.isUsable())
        return;
    QPainter painter(this);
    d->updateBase();
    painter.drawPixmap(0, 0, d->basePixmap);
    useWheelCoordinates(painter, size());
    const bool isTooSaturated = d->shown.saturation > 1.0f;
    if (d->displayMode == kValueRing)
        paintTriangle(painter, d->ringTriangle(), markColors().normal);
    else
        paintTriangle(painter, d->hueTriangle(), isTooSaturated ? markColors().warning : markColors().normal);
    if (d->displayMode == kInnerSquare) {
        d->paintMark(painter, d->squareMark());
        return;
    }
    d->paintCross(painter);
    d->paintGuides(painter);
    d->paintRubberBand(painter);
    d->paintMark(painter, d->saturationMark());
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
    if (hasOtherSquare(baseShown) || (isNew && displayMode == kInnerSquare))
        drawSquare(density);
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

void ColorWheel::Private::drawSquare(qreal density)
{
    // On whole pixels of the screen: an image that need not be scaled is painted much faster.
    const QRectF target = measures().innerSquare();
    const int side = qRound(target.width() * density);
    const QPoint place(qRound(target.left() * density),
                       qRound((wheel->height() - target.bottom()) * density));
    const QRect whole(place, QSize(side, side));
    const QRect part = whole & basePixmap.rect();
    if (squareImage.size() != part.size())
        squareImage = QImage(part.size(), QImage::Format_RGB32);
    fillSquare(squareImage, shown.hue, side, part.topLeft() - place);
    QPainter painter(&basePixmap);
    painter.scale(1.0 / density, 1.0 / density);
    painter.drawImage(part.topLeft(), squareImage);
}

void ColorWheel::Private::paintCross(QPainter& painter) const
{
    const QPointF centre = measures().centre;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(std::abs(shown.value) >= kBright ? Qt::black : Qt::white);
    painter.drawLine(centre - QPointF(3, 0), centre + QPointF(3, 0));
    painter.drawLine(centre - QPointF(0, 3), centre + QPointF(0, 3));
    painter.setRenderHint(QPainter::Antialiasing);
}

void ColorWheel::Private::paintGuides(QPainter& painter) const
{
    const QColor color = std::abs(shown.value) >= kBright ? QColor(Qt::black) : QColor(178, 178, 178);
    painter.setPen(QPen(color, 1, Qt::DashLine));
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

void ColorWheel::Private::paintMark(QPainter& painter, const QPointF& middle) const
{
    const float brightness = std::abs(shown.value);
    const MarkColors& colors = markColors();
    painter.setPen(Qt::black);
    painter.setBrush(brightness < kDark ? colors.dark : brightness > 1.0f ? colors.warning : colors.normal);
    painter.drawEllipse(circleMark(middle));
}

}} // namespace Norvane::UI
