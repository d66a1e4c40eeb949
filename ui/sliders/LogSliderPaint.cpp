// How the logarithmic slider looks.

#include <ui/sliders/LogSlider.h>

#include <ui/sliders/LogSliderPrivate.h>
#include <ui/toolkit/Painting.h>

#include <QPainter>
#include <QStyleOptionSlider>

#include <cmath>
#include <cstdlib>

namespace Norvane { namespace UI {

namespace {

/// In pixels.
const int kTickDistance = 4;
const int kLabelTick = 4;
const int kPlainTick = 1;
/// Between a mark and its label, and after the label.
const int kLabelGap = 3;

} // namespace

/// One painting of the ticks.
class LogSlider::Painting
{
public:
    Painting(const LogSlider* slider, QPainter& painter);

    void paintDecade(int exponent);
    /// The mark at \a count times ten to the \a exponent.
    void paintMark(int exponent, int count, bool wantsLabel);

private:
    QString labelText(int exponent, int count) const;
    int labelWidth(int exponent, int count) const;
    bool isBehindHandle(int begin, int end) const;

    const LogSlider* const m_slider;
    QPainter& m_painter;
    QRect m_handle;
    /// Where the labels stand. The ticks reach from it to the groove, those of labels onto it.
    QRect m_column;
    /// The pixel of the lowest value, and how far it is from there to the highest: negative upwards and where
    /// values rise to the left.
    int m_start;
    int m_span;
    /// Distances from the lowest value, in pixels: where the room for labels ends but for that of the highest
    /// value, and where the last label ended.
    int m_limit;
    int m_labelEnd = -1;
};

void LogSlider::paintEvent(QPaintEvent* event)
{
    QSlider::paintEvent(event);
    if (!d->drawLogTicks || d->precision == 0)
        return;
    if (!d->expTickColor.isValid())
        d->expTickColor = palette().color(QPalette::Midlight).darker(170);
    if (!d->tickColor.isValid())
        d->tickColor = palette().color(QPalette::Midlight);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    QFont labelFont = font();
    labelFont.setPixelSize(qMax(1, d->tickTextSize));
    painter.setFont(labelFont);
    Painting painting(this, painter);
    for (int exponent = d->minExp; exponent < d->maxExp; ++exponent)
        painting.paintDecade(exponent);
    painting.paintMark(d->maxExp, 1, true);
}

LogSlider::Painting::Painting(const LogSlider* slider, QPainter& painter)
    : m_slider(slider)
    , m_painter(painter)
{
    QStyleOptionSlider option;
    slider->initStyleOption(&option);
    const auto part = [&](QStyle::SubControl control) {
        return slider->style()->subControlRect(QStyle::CC_Slider, &option, control, slider);
    };
    const QRect groove = part(QStyle::SC_SliderGroove);
    const QRect widget = slider->rect();
    m_handle = part(QStyle::SC_SliderHandle);
    if (slider->orientation() == Qt::Horizontal) {
        m_column = QRect(QPoint(groove.left(), groove.bottom() + kPlainTick + 1),
                         QPoint(groove.right(), widget.bottom()));
        // Values rise to the left on a right-to-left desktop, or where the host wants it.
        m_start = option.upsideDown ? groove.right() : groove.left();
        m_span = groove.left() + groove.right() - 2 * m_start;
    } else {
        m_column = QRect(QPoint(widget.left(), groove.top()),
                         QPoint(groove.left() - kPlainTick - 1, groove.bottom()));
        m_start = option.upsideDown ? groove.bottom() : groove.top();
        m_span = groove.top() + groove.bottom() - 2 * m_start;
    }
    m_limit = std::abs(m_span) - labelWidth(slider->d->maxExp, 1) - 2 * kLabelGap;
}

QString LogSlider::Painting::labelText(int exponent, int count) const
{
    return m_slider->locale().toString(count * powerOfTen(exponent), 'g', 6);
}

int LogSlider::Painting::labelWidth(int exponent, int count) const
{
    return textWidth(m_painter.fontMetrics(), labelText(exponent, count));
}

/// \a begin and \a end are distances from the lowest value.
bool LogSlider::Painting::isBehindHandle(int begin, int end) const
{
    const bool isHorizontal = m_slider->orientation() == Qt::Horizontal;
    const int low = isHorizontal ? m_handle.left() : m_handle.top();
    const int high = isHorizontal ? m_handle.right() : m_handle.bottom();
    const int first = m_span < 0 ? m_start - high : low - m_start;
    return begin <= first + (high - low) && end >= first;
}

void LogSlider::Painting::paintDecade(int exponent)
{
    bool ticks[10];
    bool labels[10];
    m_slider->preprocessTicks(ticks, m_span, kTickDistance);
    m_slider->preprocessTicks(labels, m_span, 3 * labelWidth(exponent, 1) + 6);
    // Mark 10 is mark 1 of the next decade.
    for (int count = 1; count < 10; ++count) {
        if (ticks[count - 1])
            paintMark(exponent, count, labels[count - 1]);
    }
}

void LogSlider::Painting::paintMark(int exponent, int count, bool wantsLabel)
{
    const LogSlider::Private& slider = *m_slider->d;
    const int position = m_slider->tickPosition(count * powerOfTen(exponent), m_start, m_span);
    const bool isLast = exponent == slider.maxExp;
    const int width = labelWidth(exponent, count);
    const int begin = std::abs(position - m_start) + (isLast ? -kLabelGap - width : kLabelGap);
    const int end = begin + width;
    // A power of ten matters more than the marks before it.
    const int nextPower =
        std::abs(m_slider->tickPosition(powerOfTen(exponent + 1), m_start, m_span) - m_start);
    const int limit = count == 1 ? m_limit : qMin(m_limit, nextPower);
    const bool hasLabel = wantsLabel && begin > m_labelEnd && (isLast || end < limit);
    if (hasLabel)
        m_labelEnd = end;
    if (m_slider->checkTick(m_handle, position))
        return;
    m_painter.setPen(count == 1 ? slider.expTickColor : slider.tickColor);
    m_slider->drawTick(m_painter, m_column, position, hasLabel);
    if (!hasLabel || isBehindHandle(begin, end))
        return;
    // On the side of greater values, but for the last, which would be cut there.
    const bool isHorizontal = m_slider->orientation() == Qt::Horizontal;
    const int towardsEnd = m_span < 0 ? -kLabelGap : kLabelGap;
    m_slider->drawText(m_painter, m_column, isLast ? position - towardsEnd : position + towardsEnd,
                       labelText(exponent, count), (isHorizontal == (m_span > 0)) != isLast);
}

int LogSlider::tickPosition(double value, int start, int span) const
{
    // An int may be too small for the whole range.
    const double first = minimum();
    return static_cast<int>((calculateSliderValue(value) - first) / (maximum() - first) * span) + start;
}

bool LogSlider::checkTick(const QRect& rect, int position) const
{
    if (orientation() == Qt::Horizontal)
        return rect.contains(position, (rect.top() + rect.bottom()) / 2);
    return rect.contains((rect.left() + rect.right()) / 2, position);
}

void LogSlider::drawTick(QPainter& painter, const QRect& rect, int position, bool exp) const
{
    const int length = exp ? kLabelTick : kPlainTick;
    if (orientation() == Qt::Horizontal)
        painter.drawLine(position, rect.top() - length, position, rect.top());
    else
        painter.drawLine(rect.right(), position, rect.right() + length, position);
}

void LogSlider::drawText(QPainter& painter, const QRect& rect, int position, const QString& text,
                         bool left) const
{
    const bool isHorizontal = orientation() == Qt::Horizontal;
    const bool startsHere = left == isHorizontal;
    painter.save();
    QRect place = rect;
    if (!isHorizontal) {
        // Text runs downwards, with the letters' feet to the left.
        place = QRect(rect.top(), rect.left(), rect.height(), rect.width());
        painter.rotate(90);
        painter.translate(0, place.top() - place.bottom() - 1);
    }
    // Numbers have nothing below their line but a comma.
    place.setBottom(place.bottom() + painter.fontMetrics().descent() - 1);
    if (startsHere)
        place.setLeft(position);
    else
        place.setRight(position);
    const Qt::Alignment side = startsHere ? Qt::AlignLeft : Qt::AlignRight;
    painter.drawText(place, int(side | Qt::AlignBottom | Qt::AlignAbsolute) | Qt::TextDontClip, text);
    painter.restore();
}

void LogSlider::preprocessTicks(bool* flags, int span, int minDistance) const
{
    int at[11];
    for (int count = 1; count <= 10; ++count)
        at[count] = tickPosition(count * powerOfTen(d->minExp), 0, span);
    const auto isFree = [&](int low, int high) { return std::abs(at[low] - at[high]) > minDistance; };
    const auto flag = [flags](int count) -> bool& { return flags[count - 1]; };
    flag(1) = true;
    flag(10) = true;
    flag(5) = isFree(1, 10);
    flag(3) = flag(5) && isFree(1, 5);
    flag(7) = flag(5) && isFree(5, 10);
    flag(2) = flag(3) && isFree(1, 3);
    flag(4) = flag(3) && isFree(3, 5);
    flag(6) = flag(7) && isFree(5, 7);
    flag(8) = flag(7) && isFree(7, 10);
    flag(9) = flag(8) && isFree(8, 10);
}

}} // namespace Norvane::UI
