#include <ui/sliders/SliderNumbers.h>

#include <ui/toolkit/Painting.h>

#include <QFontInfo>
#include <QPainter>

namespace Norvane { namespace UI {

namespace {

const int kPoints = 6;

/// More than fit on a slider: those of former ranges are among them.
const int kMostNumbers = 500;

} // namespace

QString SliderNumbers::textOf(double value)
{
    // Adding nothing makes 0 of -0.
    return QString::number(value + 0.0, 'g', 6);
}

QFont SliderNumbers::smallFont(const QFont& font, int room)
{
    if (room == m_room && font == m_font)
        return m_smallFont;
    m_font = font;
    m_room = room;
    m_smallFont = font;
    m_smallFont.setPointSize(kPoints);
    // Where a desktop has made all fonts larger, and sliders not.
    const int ascent = QFontMetrics(m_smallFont).ascent();
    if (ascent > room && room > 0)
        m_smallFont.setPixelSize(qMax(1, QFontInfo(m_smallFont).pixelSize() * room / ascent));
    return m_smallFont;
}

QSize SliderNumbers::sizeOf(const QPainter& painter, double value)
{
    return numberOf(painter, value).size;
}

void SliderNumbers::draw(QPainter& painter, const QPoint& topLeft, double value)
{
    painter.drawStaticText(topLeft, numberOf(painter, value).text);
}

const SliderNumbers::Number& SliderNumbers::numberOf(const QPainter& painter, double value)
{
    if (painter.font() != m_numbersFont || m_numbers.size() > kMostNumbers) {
        m_numbers.clear();
        m_numbersFont = painter.font();
    }
    Number& number = m_numbers[value];
    if (number.size.isEmpty()) {
        const QFontMetrics metrics = painter.fontMetrics();
        const QString text = textOf(value);
        number.size = QSize(textWidth(metrics, text), metrics.height());
        number.text.setTextFormat(Qt::PlainText);
        number.text.setText(text);
        number.text.prepare(painter.transform(), painter.font());
    }
    return number;
}

}} // namespace Norvane::UI
