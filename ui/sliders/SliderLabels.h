#pragma once

#include <QFontMetrics>
#include <QRect>
#include <QString>
#include <QVector>

namespace Norvane { namespace UI {

/// \a value as sliders write it.
QString sliderNumber(double value);

/// Finds room for the numbers beside a slider: none is cut, and none comes too close to another.
class SliderLabels
{
public:
    /// \a column is where the numbers stand, within \a widget.
    SliderLabels(const QFontMetrics& metrics, Qt::Orientation orientation, const QRect& column,
                 const QRect& widget);

    /// The box of a number that begins at \a position, which is its left edge, or its bottom on a vertical
    /// slider.
    QRect boxAt(int position, const QString& text) const;
    QRect minimumBox(const QString& text) const;
    QRect maximumBox(const QString& text) const;

    /// Takes \a box for a number, unless that would be cut or come too close to another.
    bool take(const QRect& box);

private:
    QSize sizeOf(const QString& text) const;

    const QFontMetrics m_metrics;
    const bool m_isHorizontal;
    const QRect m_column;
    const QRect m_widget;
    QVector<QRect> m_taken;
};

}} // namespace Norvane::UI
