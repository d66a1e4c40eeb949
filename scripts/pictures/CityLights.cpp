#include <scripts/pictures/Random.h>
#include <scripts/pictures/Samples.h>

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace Norvane { namespace Pictures {

namespace {

const int kWidth = 1280;
const int kHeight = 720;
const int kShore = 500;

void drawSky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, kShore);
    sky.setColorAt(0.0, QColor(8, 11, 30));
    sky.setColorAt(0.35, QColor(32, 32, 78));
    sky.setColorAt(0.7, QColor(104, 58, 104));
    sky.setColorAt(1.0, QColor(196, 104, 98));
    painter.fillRect(0, 0, kWidth, kShore, sky);
}

QColor lampColour(Random& random)
{
    const QColor lamps[] = {QColor(255, 196, 104), QColor(255, 226, 170), QColor(255, 160, 80),
                            QColor(180, 214, 255), QColor(255, 120, 130), QColor(120, 226, 214)};
    return lamps[int(random.between(0, 6))];
}

void drawWindows(QPainter& painter, Random& random, const QRect& building, double lit)
{
    for (int y = building.top() + 8; y < kShore - 8; y += 10) {
        for (int x = building.left() + 6; x + 8 <= building.right(); x += 9) {
            if (random.between(0, 1) < lit)
                painter.fillRect(x, y, 4, 5, lampColour(random).darker(int(random.between(100, 190))));
        }
    }
}

/// Buildings side by side over the whole width.
void drawRow(QPainter& painter, Random& random, int lowest, int highest, const QColor& wall, double lit)
{
    int left = -10;
    while (left < kWidth) {
        const int width = int(random.between(46, 104));
        const int height = int(random.between(lowest, highest));
        const QRect building(left, kShore - height, width, height);
        QLinearGradient shade(building.topLeft(), building.bottomLeft());
        shade.setColorAt(0, wall);
        shade.setColorAt(1, wall.lighter(150));
        painter.fillRect(building, shade);
        drawWindows(painter, random, building, lit);
        left += width + int(random.between(-8, 12));
    }
}

/// The town stands on its head in the water, in rows that are shifted as by waves.
void drawWater(QPainter& painter, const QImage& town, Random& random)
{
    for (int y = kShore; y < kHeight; y += 2) {
        const int depth = y - kShore;
        const int source = kShore - 2 - depth * 3 / 2;
        const int shift = int(random.between(-1, 1) * (1 + depth / 12.0));
        painter.drawImage(shift, y, town, 0, qMax(source, 0), kWidth, 2);
    }
    QLinearGradient dusk(0, kShore, 0, kHeight);
    dusk.setColorAt(0, QColor(6, 8, 24, 110));
    dusk.setColorAt(1, QColor(6, 8, 24, 215));
    painter.fillRect(0, kShore, kWidth, kHeight - kShore, dusk);
}

/// A lamp out of focus: an even disc with a brighter rim.
void drawDisc(QPainter& painter, const QPointF& center, double radius, QColor colour, double strength)
{
    QRadialGradient disc(center, radius);
    colour.setAlphaF(strength * 0.6);
    disc.setColorAt(0, colour);
    disc.setColorAt(0.86, colour);
    colour.setAlphaF(strength);
    disc.setColorAt(0.94, colour);
    colour.setAlphaF(0);
    disc.setColorAt(1, colour);
    painter.setBrush(disc);
    painter.drawEllipse(center, radius, radius);
}

void drawDiscs(QPainter& painter, Random& random)
{
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    for (int disc = 0; disc < 46; ++disc) {
        const double radius = random.between(12, 58);
        const QPointF center(random.between(0, kWidth),
                             kHeight - 10 - random.between(0, 1) * random.between(0, 260));
        drawDisc(painter, center, radius, lampColour(random), random.between(0.25, 0.7));
    }
}

} // namespace

QImage drawCityLights()
{
    Random random(20260211);
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    drawSky(painter);
    drawRow(painter, random, 150, 390, QColor(50, 42, 86), 0.12);
    drawRow(painter, random, 100, 290, QColor(30, 27, 62), 0.25);
    drawRow(painter, random, 40, 170, QColor(14, 15, 36), 0.42);
    drawWater(painter, image.copy(), random);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    drawDiscs(painter, random);
    return image;
}

}} // namespace Norvane::Pictures
