#pragma once

#include <QFont>
#include <QMap>
#include <QSize>
#include <QStaticText>
#include <QString>

class QPainter;

namespace Norvane { namespace UI {

/// The numbers beside a slider, laid out once: painting a text anew costs more than the rest of the slider.
/// They are those of one font, forgotten when a painter comes with another.
class SliderNumbers
{
public:
    /// \a value as sliders write it.
    static QString textOf(double value);

    /// \a font in the size of numbers.
    QFont smallFont(const QFont& font);

    QSize sizeOf(const QPainter& painter, double value);
    void draw(QPainter& painter, const QPoint& topLeft, double value);

private:
    struct Number {
        QStaticText text;
        QSize size;
    };
    const Number& numberOf(const QPainter& painter, double value);

    QFont m_font;
    QFont m_smallFont;
    QFont m_numbersFont;
    QMap<double, Number> m_numbers;
};

}} // namespace Norvane::UI
