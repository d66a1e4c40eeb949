#pragma once

#include <QRect>
#include <QVector>

namespace Norvane { namespace UI {

/// Finds room for the numbers beside a slider: none is cut, and none comes too close to another.
class SliderLabels
{
public:
    /// \a column is where the numbers stand, within \a widget.
    SliderLabels(Qt::Orientation orientation, const QRect& column, const QRect& widget);

    /// The box of a number of \a size that begins at \a position, which is its left edge, or its bottom on a
    /// vertical slider.
    QRect boxAt(int position, const QSize& size) const;
    QRect minimumBox(const QSize& size) const;
    QRect maximumBox(const QSize& size) const;

    /// Takes \a box for a number, unless that would be cut or come too close to another.
    bool take(const QRect& box);

private:
    const bool m_isHorizontal;
    const QRect m_column;
    const QRect m_widget;
    QVector<QRect> m_taken;
};

}} // namespace Norvane::UI
