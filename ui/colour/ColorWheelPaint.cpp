// How a wheel looks. All functions but paintDisc() paint in wheel coordinates.

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
const int kMostSquarePixels = 512;

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
    d->paintDisc(painter);
    useWheelCoordinates(painter, size());
    if (d->displayMode == kValueRing)
        paintTriangle(painter, d->ringTriangle(), markColors().normal);
    d->paintShade(painter);
    if (d->displayMode == kInnerSquare)
        d->paintSquare(painter);
    const bool isTooSaturated = d->shown.saturation > 1.0f;
    if (d->displayMode != kValueRing)
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

void ColorWheel::Private::paintDisc(QPainter& painter)
{
    const qreal density = UI::devicePixelRatio(wheel);
    const DiscKey key = {displayMode,
                         wheel->size(),
                         zoom,
                         pan,
                         hueRotation,
                         density,
                         wheel->palette().color(QPalette::Window).rgba()};
    if (discPixmap.isNull() || !(key == discKey)) {
        discKey = key;
        discPixmap = QPixmap((QSizeF(wheel->size()) * density).toSize());
        discPixmap.fill(Qt::transparent);
        setDevicePixelRatio(discPixmap, density);
        QPainter discPainter(&discPixmap);
        useWheelCoordinates(discPainter, wheel->size());
        drawDisc(discPainter);
    }
    painter.drawPixmap(0, 0, discPixmap);
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

void ColorWheel::Private::paintShade(QPainter& painter) const
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
    // Around the square, another disc covers it.
    if (darkness > 0.0 && displayMode != kInnerSquare)
        painter.drawEllipse(geometry.centre, r, r);
    painter.setOpacity(1.0);
}

void ColorWheel::Private::paintSquare(QPainter& painter)
{
    const WheelGeometry geometry = measures();
    painter.setPen(Qt::NoPen);
    painter.setBrush(wheel->palette().color(QPalette::Window));
    painter.drawEllipse(geometry.centre, geometry.innerRadius, geometry.innerRadius);
    const QRectF target = geometry.innerSquare();
    // Half as many pixels are enough for a picture without edges, and some hundred for any size of it.
    const int half = qRound(target.width() * UI::devicePixelRatio(wheel) / 2.0);
    const int side = std::clamp(half, 1, kMostSquarePixels);
    if (squareImage.width() != side || squareHue != shown.hue)
        drawSquare(side);
    painter.drawImage(target, squareImage);
}

void ColorWheel::Private::drawSquare(int side)
{
    if (squareImage.width() != side)
        squareImage = QImage(side, side, QImage::Format_RGB32);
    squareHue = shown.hue;
    for (int y = 0; y < side; ++y) {
        QRgb* const line = reinterpret_cast<QRgb*>(squareImage.scanLine(y));
        for (int x = 0; x < side; ++x) {
            float r = 0.0f, g = 0.0f, b = 0.0f;
            Colour::hsvToRgb(shown.hue, float(x) / side, float(y) / side, &r, &g, &b);
            line[x] = qRgb(int(r * 255.0f), int(g * 255.0f), int(b * 255.0f));
        }
    }
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
