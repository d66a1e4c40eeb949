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

    /// \a font in the size of numbers, which are at most \a room pixels high.
    QFont smallFont(const QFont& font, int room);

    QSize sizeOf(const QPainter& painter, double value);
    void draw(QPainter& painter, const QPoint& topLeft, double value);

private:
    struct Number {
        QStaticText text;
        QSize size;
    };
    const Number& numberOf(const QPainter& painter, double value);

    QFont m_font;
    int m_room = -1;
    QFont m_smallFont;
    QFont m_numbersFont;
    QMap<double, Number> m_numbers;
};

}} // namespace Norvane::UI
