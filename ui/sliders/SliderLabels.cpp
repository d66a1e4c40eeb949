#include <ui/sliders/SliderLabels.h>

namespace Norvane { namespace UI {

namespace {

/// Between two numbers in a row, in pixels.
const int kGap = 3;

} // namespace

SliderLabels::SliderLabels(Qt::Orientation orientation, const QRect& column, const QRect& widget)
    : m_isHorizontal(orientation == Qt::Horizontal)
    , m_column(column)
    , m_widget(widget)
{
}

QRect SliderLabels::boxAt(int position, const QSize& size) const
{
    QRect box(QPoint(), size);
    if (m_isHorizontal)
        box.moveBottomLeft(QPoint(position, m_column.bottom()));
    else
        box.moveBottomLeft(QPoint(m_column.left(), position));
    return box;
}

QRect SliderLabels::minimumBox(const QSize& size) const
{
    QRect box(QPoint(), size);
    box.moveBottomLeft(m_column.bottomLeft());
    return box;
}

QRect SliderLabels::maximumBox(const QSize& size) const
{
    QRect box(QPoint(), size);
    if (m_isHorizontal)
        box.moveBottomRight(m_column.bottomRight());
    else
        box.moveTopLeft(m_column.topLeft());
    return box;
}

bool SliderLabels::take(const QRect& box)
{
    // Along a horizontal slider the column is as high as it is; large digits may stand out of it.
    const bool isCut = m_isHorizontal ? box.left() < m_widget.left() || box.right() > m_widget.right()
                                      : box.right() > m_column.right() || box.top() < m_widget.top();
    if (isCut)
        return false;
    const QRect around = m_isHorizontal ? box.adjusted(-kGap, 0, kGap, 0) : box;
    for (const QRect& other : m_taken) {
        if (other.intersects(around))
            return false;
    }
    m_taken.append(box);
    return true;
}

}} // namespace Norvane::UI
