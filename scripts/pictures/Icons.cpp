#include <scripts/pictures/Icons.h>

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QRectF>

namespace Norvane { namespace Pictures {

namespace {

// About 3.5 to 1 against a light palette's window (#efefef) as well as a dark one's (#2b2b2b).
const QColor kInk(0x7e, 0x7e, 0x7e);
const QColor kTint(0x7e, 0x7e, 0x7e, 0x48);

const QRectF kFrame(1, 2, 14, 12);

void drawFrame(QPainter& painter)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addRoundedRect(kFrame, 1.5, 1.5);
    path.addRect(kFrame.adjusted(1, 1, -1, -1));
    painter.fillPath(path, kInk);
}

} // namespace

void drawHSplit(QPainter& painter)
{
    drawFrame(painter);
    painter.fillRect(QRectF(2, 7, 12, 2), kInk);
    painter.fillRect(QRectF(2, 9, 12, 4), kTint);
}

void drawVSplit(QPainter& painter)
{
    drawFrame(painter);
    painter.fillRect(QRectF(7, 3, 2, 10), kInk);
    painter.fillRect(QRectF(9, 3, 5, 10), kTint);
}

void drawPanelMenu(QPainter& painter)
{
    painter.fillRect(QRectF(1, 3, 7, 2), kInk);
    painter.fillRect(QRectF(1, 7, 7, 2), kInk);
    painter.fillRect(QRectF(1, 11, 7, 2), kInk);
    const QPolygonF triangle = QPolygonF() << QPointF(9, 7) << QPointF(15, 7) << QPointF(12, 10);
    QPainterPath path;
    path.addPolygon(triangle);
    painter.fillPath(path, kInk);
}

void drawSearchFieldCancel(QPainter& painter)
{
    QPainterPath disc;
    disc.addEllipse(QRectF(1, 1, 14, 14));
    painter.fillPath(disc, kInk);

    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(QPen(Qt::black, 1.75, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(5.25, 5.25), QPointF(10.75, 10.75));
    painter.drawLine(QPointF(5.25, 10.75), QPointF(10.75, 5.25));
}

}} // namespace Norvane::Pictures
