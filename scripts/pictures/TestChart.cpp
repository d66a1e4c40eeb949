#include <scripts/pictures/Samples.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace Norvane { namespace Pictures {

namespace {

const int kWidth = 1024;
const int kHeight = 576;
const double kPi = 3.14159265358979323846;
const QColor kGround(118, 118, 118);
const QColor kDark(24, 24, 24);
const QColor kLight(232, 232, 232);

/// Rings whose frequency grows with the distance from the middle, to half a cycle a pixel at the rim.
QImage zonePlate(int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    const double radius = size / 2.0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double dx = x + 0.5 - radius;
            const double dy = y + 0.5 - radius;
            const double squared = dx * dx + dy * dy;
            const int level = int(128.5 + 104 * std::cos(kPi * squared / size));
            image.setPixel(x, y, squared > radius * radius ? 0 : qRgb(level, level, level));
        }
    }
    return image;
}

void drawGrid(QPainter& painter)
{
    painter.setPen(QColor(138, 138, 138));
    for (int x = 32; x < kWidth; x += 64)
        painter.drawLine(x, 0, x, kHeight);
    for (int y = 32; y < kHeight; y += 64)
        painter.drawLine(0, y, kWidth, y);
    painter.setPen(Qt::NoPen);
}

/// Wedges that meet in the middle: where they blur into grey, the detail is lost.
void drawStar(QPainter& painter, const QPointF& center, double radius)
{
    const int wedges = 36;
    const double angle = 360.0 / (2 * wedges);
    const QRectF circle(center - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    painter.setBrush(kLight);
    painter.drawEllipse(circle);
    painter.setBrush(kDark);
    for (int wedge = 0; wedge < wedges; ++wedge) {
        QPainterPath path(center);
        path.arcTo(circle, 2 * wedge * angle, angle);
        path.closeSubpath();
        painter.drawPath(path);
    }
}

/// Fields of upright or level lines, each line as many pixels wide as the gap beside it.
void drawGratings(QPainter& painter, const QPoint& corner, Qt::Orientation lines)
{
    const int widths[] = {1, 2, 3, 4, 6};
    QRect field(corner, QSize(48, 48));
    for (int width : widths) {
        painter.fillRect(field, kLight);
        for (int at = 0; at < field.width(); at += 2 * width) {
            const bool upright = lines == Qt::Vertical;
            painter.fillRect(field.x() + (upright ? at : 0), field.y() + (upright ? 0 : at),
                             upright ? width : field.width(), upright ? field.height() : width, kDark);
        }
        field.translate(0, 56);
    }
}

void drawSteps(QPainter& painter, const QRect& area)
{
    const int steps = 16;
    for (int step = 0; step < steps; ++step) {
        const int left = area.x() + area.width() * step / steps;
        const int right = area.x() + area.width() * (step + 1) / steps;
        const int level = 255 * step / (steps - 1);
        painter.fillRect(left, area.y(), right - left, area.height(), QColor(level, level, level));
    }
}

void drawBars(QPainter& painter, const QRect& area)
{
    const QColor bars[] = {QColor(192, 192, 192), QColor(192, 192, 0), QColor(0, 192, 192), QColor(0, 192, 0),
                           QColor(192, 0, 192),   QColor(192, 0, 0),   QColor(0, 0, 192),   QColor(0, 0, 0)};
    const int width = area.width() / 8;
    for (int bar = 0; bar < 8; ++bar)
        painter.fillRect(area.x() + bar * width, area.y(), width, area.height(), bars[bar]);
}

/// Marks along the rim show at a glance whether the picture is cut off.
void drawRim(QPainter& painter)
{
    for (int x = 0; x < kWidth; x += 64) {
        painter.fillRect(x, 0, 32, 6, kLight);
        painter.fillRect(x + 32, kHeight - 6, 32, 6, kLight);
    }
    for (int y = 0; y < kHeight; y += 64) {
        painter.fillRect(0, y, 6, 32, kLight);
        painter.fillRect(kWidth - 6, y + 32, 6, 32, kLight);
    }
}

} // namespace

QImage drawTestChart()
{
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(kGround.rgb());
    QPainter painter(&image);
    drawGrid(painter);
    drawRim(painter);
    drawSteps(painter, QRect(256, 24, 512, 40));
    drawBars(painter, QRect(256, 512, 512, 40));
    drawGratings(painter, QPoint(260, 152), Qt::Vertical);
    drawGratings(painter, QPoint(716, 152), Qt::Horizontal);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const QPointF& center : {QPointF(128, 128), QPointF(896, 128), QPointF(128, 448), QPointF(896, 448)})
        drawStar(painter, center, 88);
    painter.setBrush(kLight);
    painter.drawEllipse(QPointF(512, 288), 174, 174);
    painter.drawImage(344, 120, zonePlate(336));
    return image;
}

}} // namespace Norvane::Pictures
