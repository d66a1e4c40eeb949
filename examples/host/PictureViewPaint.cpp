// How a PictureView looks.

#include "PictureView.h"

#include <ui/toolkit/Painting.h>

#include <QFontInfo>
#include <QPainter>

namespace Norvane { namespace Host {

namespace {

/// From here on the single pixels are to be seen, not a blur between them.
const qreal kPixelZoom = 2;
const int kMessageWidth = 420;

QColor backgroundOf(const QPalette& palette)
{
    const QColor& window = palette.color(QPalette::Window);
    return window.lightness() < 128 ? window.darker(150) : window.darker(110);
}

QPixmap checkerTile()
{
    const int square = 8;
    QPixmap tile(2 * square, 2 * square);
    tile.fill(QColor(0x9a, 0x9a, 0x9a));
    QPainter painter(&tile);
    painter.fillRect(0, 0, square, square, QColor(0xc4, 0xc4, 0xc4));
    painter.fillRect(square, square, square, square, QColor(0xc4, 0xc4, 0xc4));
    return tile;
}

qreal roundedTo(qreal position, qreal density)
{
    return qRound(position * density) / density;
}

} // namespace

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), backgroundOf(palette()));
    if (picture().isNull())
        paintMessage(painter);
    else
        paintPicture(painter);
}

void PictureView::paintPicture(QPainter& painter)
{
    const qreal density = UI::devicePixelRatio(this);
    Placement placed = placement();
    // On whole physical pixels, so that a picture shown one to one stays sharp.
    placed.origin = QPointF(roundedTo(placed.origin.x(), density), roundedTo(placed.origin.y(), density));
    const QRectF whole = placed.rect(picture().size());
    if (picture().hasAlphaChannel()) {
        painter.setBrushOrigin(whole.topLeft());
        painter.fillRect(whole & QRectF(rect()), QBrush(checkerTile()));
    }
    const QImage level = m_levels.levelFor(zoom());
    const QRect pixels = touchedPixels(whole, level.size(), rect());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom() < kPixelZoom);
    const QRectF place = coveredPart(whole, level.size(), pixels);
    if (m_grade.isNeutral())
        painter.drawImage(place, level, pixels);
    else
        painter.drawImage(place, gradedImage(level.copy(pixels), m_grade));
}

void PictureView::paintMessage(QPainter& painter) const
{
    QFont titleFont = font();
    titleFont.setPointSizeF(QFontInfo(titleFont).pointSizeF() * 1.25);
    const int textFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int textWidth = qMax(0, qMin(kMessageWidth, width() - 32));
    const QRect space(0, 0, textWidth, height());
    const QFontMetrics titleMetrics(titleFont);
    const QString title = titleMetrics.elidedText(m_title, Qt::ElideMiddle, textWidth);
    const int titleHeight = titleMetrics.height();
    const int gap = fontMetrics().lineSpacing() / 2;
    const int detailHeight = fontMetrics().boundingRect(space, textFlags, m_detail).height();

    const int left = (width() - textWidth) / 2;
    const int top = qMax(gap, (height() - titleHeight - gap - detailHeight) / 2);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(titleFont);
    painter.drawText(QRect(left, top, textWidth, titleHeight), Qt::AlignCenter, title);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.setFont(font());
    painter.drawText(QRect(left, top + titleHeight + gap, textWidth, detailHeight), textFlags, m_detail);
}

}} // namespace Norvane::Host
