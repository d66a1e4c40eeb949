#include <designer/WidgetIcons.h>

#include <QConicalGradient>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace Norvane { namespace Designer {

namespace {

const int kSide = 24;

// To be seen on a light ground as well as on a dark one.
const QColor kInk(0x7e, 0x7e, 0x7e);
const QColor kAccent(0x3d, 0x7d, 0xe0);

void drawTriangle(QPainter& painter, const QPointF& first, const QPointF& second, const QPointF& third)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(kAccent);
    painter.drawPolygon(QPolygonF() << first << second << third);
}

void drawFrame(QPainter& painter, const QRectF& rect)
{
    painter.setPen(QPen(kInk, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect, 1.5, 1.5);
}

/// A slot with ticks below it at \a ticks, from left to right, and a thumb.
void drawScale(QPainter& painter, const QList<int>& ticks)
{
    painter.fillRect(QRectF(2, 8, 20, 3), kInk);
    for (const int tick : ticks)
        painter.fillRect(QRectF(tick, 15, 1, 5), kInk);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kAccent);
    painter.drawRoundedRect(QRectF(11, 4, 5, 11), 1.5, 1.5);
}

} // namespace

QIcon widgetIcon(void (*draw)(QPainter& painter))
{
    QIcon icon;
    for (int scale = 1; scale <= 2; ++scale) {
        QPixmap pixmap(kSide * scale, kSide * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        draw(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

void drawSlider(QPainter& painter)
{
    drawScale(painter, QList<int>() << 2 << 7 << 12 << 17 << 21);
}

void drawLogSlider(QPainter& painter)
{
    drawScale(painter, QList<int>() << 2 << 8 << 12 << 15 << 17 << 19 << 21);
}

void drawColorWheel(QPainter& painter)
{
    QConicalGradient hues(12, 12, 0);
    for (int sixth = 0; sixth <= 6; ++sixth)
        hues.setColorAt(sixth / 6.0, QColor::fromHsv(sixth % 6 * 60, 200, 230));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hues);
    painter.drawEllipse(QRectF(2, 2, 20, 20));
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(13, 6, 5, 5));
}

void drawSearchField(QPainter& painter)
{
    drawFrame(painter, QRectF(1.5, 5.5, 21, 13));
    painter.setPen(QPen(kAccent, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QRectF(5, 8, 5.5, 5.5));
    painter.drawLine(QPointF(10, 13), QPointF(12.5, 15.5));
}

void drawFilenameField(QPainter& painter)
{
    drawFrame(painter, QRectF(1.5, 5.5, 21, 13));
    painter.fillRect(QRectF(4, 11, 7, 2), kInk);
    painter.fillRect(QRectF(13, 9, 4, 1), kAccent);
    painter.fillRect(QRectF(13, 10, 7, 5), kAccent);
}

void drawFlatButton(QPainter& painter)
{
    const QPolygonF star = QPolygonF()
                           << QPointF(12, 4) << QPointF(14.5, 9.5) << QPointF(20, 12) << QPointF(14.5, 14.5)
                           << QPointF(12, 20) << QPointF(9.5, 14.5) << QPointF(4, 12) << QPointF(9.5, 9.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kAccent);
    painter.drawPolygon(star);
}

void drawDisclosureButton(QPainter& painter)
{
    drawTriangle(painter, QPointF(2, 5), QPointF(10, 5), QPointF(6, 11));
    painter.fillRect(QRectF(12, 7, 10, 2), kInk);
    painter.fillRect(QRectF(12, 13, 10, 2), kInk);
    painter.fillRect(QRectF(12, 18, 7, 2), kInk);
}

void drawDropAcceptingListWidget(QPainter& painter)
{
    drawFrame(painter, QRectF(2.5, 2.5, 19, 19));
    for (int line = 0; line < 3; ++line)
        painter.fillRect(QRectF(5, 6 + line * 5, 6, 2), kInk);
    painter.fillRect(QRectF(15, 6, 2, 7), kAccent);
    drawTriangle(painter, QPointF(12.5, 12), QPointF(19.5, 12), QPointF(16, 17));
}

}} // namespace Norvane::Designer
