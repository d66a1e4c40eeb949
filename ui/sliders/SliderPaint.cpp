// How the slider looks.

#include <ui/sliders/Slider.h>

#include <ui/sliders/SliderColors.h>
#include <ui/sliders/SliderLabels.h>
#include <ui/sliders/SliderPrivate.h>

#include <QLine>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <cstdlib>

namespace Norvane { namespace UI {

namespace {

/// How far the base of the triangle lies from the thumb, in pixels.
const int kTriangleReach = 8;

QRect rectBetween(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

void Slider::figureThumbSlot(QRect& thumbSlot)
{
    const QRect area = rect();
    int start = 0;
    int end = 0;
    slotSize(start, end);
    const int third = area.height() / 3;
    if (d->orientation == Qt::Horizontal)
        thumbSlot = rectBetween(start, third, end, area.bottom() / 2 + third - 1);
    else
        thumbSlot = rectBetween(area.right() / 2 - 2, end, area.right() - 1, start);
}

void Slider::figureTickSlots(QRect& tickRect, QRect& labelRect)
{
    const QRect area = rect();
    int start = 0;
    int end = 0;
    slotSize(start, end);
    if (d->orientation == Qt::Horizontal) {
        const int middle = area.bottom() / 2;
        tickRect = rectBetween(start, area.top() - 1, end, middle - 2);
        labelRect = rectBetween(start, middle + 1, end, area.bottom() + 1);
    } else {
        const int left = area.right() / 2 + 2;
        tickRect = rectBetween(left, end, area.right(), start);
        labelRect = rectBetween(area.left() + 1, end, left - 3, start);
    }
}

void Slider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintBackground(painter);
    paintTicks(painter);
    paintThumb(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void Slider::paintBackground(QPainter& painter)
{
    QRect ticks;
    QRect labels;
    figureTickSlots(ticks, labels);
    const bool isHorizontal = d->orientation == Qt::Horizontal;
    const auto lineAt = [&](int distance) {
        return isHorizontal ? rectBetween(ticks.left(), ticks.bottom() + distance, ticks.right(),
                                          ticks.bottom() + distance)
                            : rectBetween(ticks.left() - distance, ticks.top(), ticks.left() - distance,
                                          ticks.bottom());
    };
    const QColor edge = palette().color(QPalette::Shadow);
    painter.fillRect(lineAt(1), edge);
    painter.fillRect(lineAt(3), edge);
    painter.fillRect(lineAt(2), d->useGradient ? QBrush(d->gradient) : QBrush(d->color));
}

void Slider::paintTick(QVector<QLine>& lines, const QRect& tickRect, int position, int length)
{
    if (d->orientation == Qt::Horizontal)
        lines.append(QLine(position, tickRect.bottom(), position, tickRect.bottom() - length));
    else
        lines.append(QLine(tickRect.left(), position, tickRect.left() + length, position));
}

void Slider::paintLabel(QPainter& painter, const QRect* labelRect, int position, double value)
{
    if (!labelRect)
        return;
    const QRect box =
        SliderLabels(d->orientation, *labelRect, rect()).boxAt(position, d->numbers.sizeOf(painter, value));
    if (!d->labels || d->labels->take(box))
        d->numbers.draw(painter, box.topLeft(), value);
}

void Slider::Private::paint(QPainter& painter, const QRect& tickRect, const QRect* labelRect,
                            const QVector<SliderTick>& ticks)
{
    int start = 0;
    int end = 0;
    q->slotSize(start, end);
    const bool isHorizontal = orientation == Qt::Horizontal;
    const int majorLength = (isHorizontal ? tickRect.height() : tickRect.width()) + 1;
    const QPen tickPen(tickColor(q->palette()));
    const QPen labelPen(numberColor(q->palette()));

    QVector<QLine> lines;
    lines.reserve(ticks.size());
    painter.setPen(tickPen);
    for (const SliderTick& tick : ticks) {
        const int position = end >= start ? start + tick.offset : start - tick.offset;
        q->paintTick(lines, tickRect, position, tick.isMajor ? majorLength : majorLength / 2);
        if (!tick.hasLabel || !labelRect)
            continue;
        painter.setPen(labelPen);
        q->paintLabel(painter, labelRect, position, tick.value);
        painter.setPen(tickPen);
    }
    painter.drawLines(lines);
}

void Slider::paintLinearTicks(QPainter& painter, const QRect& tickRect, const QRect* labelRect)
{
    d->paint(painter, tickRect, labelRect,
             SliderTicks::linear(d->scale(), d->slotLength(), d->minTickSeparation));
}

void Slider::paintLogTicks(QPainter& painter, const QRect& tickRect, const QRect* labelRect)
{
    if (!d->tickCacheValid) {
        d->marks = SliderTicks::decadeMarks(d->scale(), d->slotLength(), d->minTickSeparation);
        d->tickCacheValid = true;
    }
    d->paint(painter, tickRect, labelRect,
             SliderTicks::logarithmic(d->scale(), d->slotLength(), d->minTickSeparation, d->marks));
}

void Slider::paintSquareTicks(QPainter& painter, const QRect& tickRect, const QRect* labelRect)
{
    d->paint(painter, tickRect, labelRect,
             SliderTicks::squareRoot(d->scale(), d->slotLength(), d->minTickSeparation));
}

int Slider::Private::slotLength() const
{
    int start = 0;
    int end = 0;
    q->slotSize(start, end);
    return std::abs(end - start);
}

void Slider::paintTicks(QPainter& painter)
{
    QRect tickRect;
    QRect labelRect;
    figureTickSlots(tickRect, labelRect);
    const bool isHorizontal = d->orientation == Qt::Horizontal;
    const QFont before = painter.font();
    painter.setFont(d->numbers.smallFont(before, isHorizontal ? labelRect.height() : height()));

    SliderLabels labels(d->orientation, labelRect, rect());
    const QRect minimumBox = labels.minimumBox(d->numbers.sizeOf(painter, d->minimum));
    const QRect maximumBox = labels.maximumBox(d->numbers.sizeOf(painter, d->maximum));
    const bool showsMinimum = labels.take(minimumBox);
    const bool showsMaximum = labels.take(maximumBox);

    d->labels = &labels;
    if (d->mode == LinearMode)
        paintLinearTicks(painter, tickRect, &labelRect);
    else if (d->minimum > 0)
        paintLogTicks(painter, tickRect, &labelRect);
    else
        paintSquareTicks(painter, tickRect, &labelRect);
    d->labels = nullptr;

    painter.setPen(numberColor(palette()));
    if (showsMinimum)
        d->numbers.draw(painter, minimumBox.topLeft(), d->minimum);
    if (showsMaximum)
        d->numbers.draw(painter, maximumBox.topLeft(), d->maximum);
    painter.setFont(before);
}

QColor Slider::thumbColor()
{
    return isEnabled() ? QColor(98, 82, 39) : QColor(74, 71, 63);
}

void Slider::paintThumb(QPainter& painter)
{
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(thumbColor());
    QRect area;
    figureThumbSlot(area);
    const float position = static_cast<float>(valueToPosition(d->value, true));
    const bool isHorizontal = d->orientation == Qt::Horizontal;
    QRect thumb = area;
    if (isHorizontal) {
        const int x = static_cast<int>((1 - position) * area.left() + position * area.right() - 2.0f);
        thumb = rectBetween(x, area.top(), x + 3, area.bottom());
    } else {
        const int y = static_cast<int>((1 - position) * area.bottom() + position * area.top() - 2.0f);
        thumb = rectBetween(area.left(), y, area.right(), y + 3);
    }
    if (d->value < d->minimum)
        paintOutOfRangeThumb(painter, thumb, isHorizontal ? 0 : 2);
    else if (d->value > d->maximum)
        paintOutOfRangeThumb(painter, thumb, isHorizontal ? 1 : 3);
    else
        painter.drawRect(thumb);
}

void Slider::paintOutOfRangeThumb(QPainter& painter, const QRect& thumb, int direction) const
{
    const qreal middleX = (thumb.left() + thumb.right()) * 0.5;
    const qreal middleY = (thumb.top() + thumb.bottom()) * 0.5;
    QPolygonF triangle;
    if (direction < 2) {
        const bool toLeft = direction == 0;
        const int base = toLeft ? thumb.right() + kTriangleReach : thumb.left() - kTriangleReach;
        triangle << QPointF(toLeft ? thumb.left() : thumb.right(), middleY) << QPointF(base, thumb.top())
                 << QPointF(base, thumb.bottom());
    } else {
        const bool down = direction == 2;
        const int base = down ? thumb.top() - kTriangleReach : thumb.bottom() + kTriangleReach;
        triangle << QPointF(middleX, down ? thumb.bottom() : thumb.top()) << QPointF(thumb.left(), base)
                 << QPointF(thumb.right(), base);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPolygon(triangle);
    painter.restore();
}

}} // namespace Norvane::UI
