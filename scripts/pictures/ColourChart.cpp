#include <scripts/pictures/Samples.h>

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace Norvane { namespace Pictures {

namespace {

const int kColumns = 12;
const int kRows = 5;
const int kCell = 74;
const int kPatch = 66;
const int kMargin = 40;

QRectF patchAt(int column, int row)
{
    return QRectF(kMargin + column * kCell, kMargin + row * kCell, kPatch, kPatch);
}

/// Pale colours in the top row, full ones in the middle, dark ones at the bottom.
QColor patchColour(int column, int row)
{
    const double saturation[kRows] = {0.28, 0.58, 0.92, 0.92, 0.85};
    const double value[kRows] = {0.96, 0.93, 0.90, 0.62, 0.34};
    return QColor::fromHsvF(double(column) / kColumns, saturation[row], value[row]);
}

void drawPatches(QPainter& painter)
{
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            painter.setBrush(patchColour(column, row));
            painter.drawRoundedRect(patchAt(column, row), 4, 4);
        }
    }
}

void drawGreySteps(QPainter& painter)
{
    for (int column = 0; column < kColumns; ++column) {
        const int level = 255 * column / (kColumns - 1);
        painter.setBrush(QColor(level, level, level));
        painter.drawRoundedRect(patchAt(column, kRows), 4, 4);
    }
}

void drawRamp(QPainter& painter, int row, const QColor& from, const QColor& to)
{
    const double height = (kPatch - 8) / 2.0;
    const QRectF area(kMargin, kMargin + 6 * kCell + row * (height + 8), 11 * kCell + kPatch, height);
    QLinearGradient ramp(area.topLeft(), area.topRight());
    ramp.setColorAt(0, from);
    ramp.setColorAt(1, to);
    painter.setBrush(ramp);
    painter.drawRoundedRect(area, 4, 4);
}

} // namespace

QImage drawColourChart()
{
    QImage image(2 * kMargin + 11 * kCell + kPatch, 2 * kMargin + 7 * kCell + kPatch, QImage::Format_RGB32);
    image.fill(QColor(58, 58, 61).rgb());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    drawPatches(painter);
    drawGreySteps(painter);
    drawRamp(painter, 0, Qt::black, Qt::white);
    drawRamp(painter, 1, Qt::black, Qt::red);
    drawRamp(painter, 2, Qt::black, Qt::green);
    drawRamp(painter, 3, Qt::black, Qt::blue);
    return image;
}

}} // namespace Norvane::Pictures
