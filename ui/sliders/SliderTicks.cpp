#include <ui/sliders/SliderTicks.h>

#include <ui/sliders/SliderScale.h>

#include <QtGlobal>

#include <cmath>
#include <cstdlib>

namespace Norvane { namespace UI {

namespace {

/// The smallest distance in pixels between two labels of a non-linear scale.
const int kLabelSeparation = 25;

/// No range of doubles has more.
const int kMostDecades = 660;

/// \a count times ten to the \a exponent. Divided where the power is a fraction: 7 / 100 is the double
/// nearest to 0.07, 7 * 0.01 is not.
double decimal(double count, int exponent)
{
    return exponent < 0 ? count / std::pow(10.0, -exponent) : count * std::pow(10.0, exponent);
}

int floorLog10(double value)
{
    return static_cast<int>(std::floor(std::log10(value)));
}

/// Every how many ticks of a linear scale there is a label.
int labelInterval(double stepPixels)
{
    if (stepPixels >= 26)
        return 1;
    if (stepPixels >= 13)
        return 2;
    return stepPixels >= 7 ? 5 : 100;
}

/// The marks of a decade, whose pixel offsets \a at tells for 1 to 10: a run of pixels closes with a mark
/// when it is \a separation long and leaves as much before mark 10.
template <typename OffsetOf>
void selectMarks(const OffsetOf& at, int separation, const bool* allowed, bool* selected)
{
    double last = at(1);
    selected[1] = true;
    selected[10] = true;
    for (int k = 2; k < 10; ++k) {
        const bool fits = std::abs(at(k) - last) >= separation && std::abs(at(10) - at(k)) >= separation;
        selected[k] = fits && (!allowed || allowed[k]);
        if (selected[k])
            last = at(k);
    }
}

template <typename OffsetOf>
DecadeMarks marksAt(const OffsetOf& at, int separation)
{
    DecadeMarks marks;
    selectMarks(at, separation, nullptr, marks.tick);
    selectMarks(at, kLabelSeparation, marks.tick, marks.label);
    return marks;
}

/// Collects ticks that go away from the one before.
class TickRow
{
public:
    TickRow(const SliderScale& scale, int length, int separation)
        : m_scale(scale)
        , m_length(length)
        , m_separation(separation)
    {
    }

    void add(double value, bool isMajor, bool wantsLabel)
    {
        const int offset = static_cast<int>(std::floor(m_scale.position(value) * m_length));
        if (m_hasTick && std::abs(offset - m_last) < m_separation)
            return;
        const bool hasLabel =
            wantsLabel && !(m_hasLabel && std::abs(offset - m_lastLabel) < kLabelSeparation);
        m_ticks.append({offset, value, isMajor, hasLabel});
        m_hasTick = true;
        m_last = offset;
        if (hasLabel) {
            m_hasLabel = true;
            m_lastLabel = offset;
        }
    }

    void addDecade(int sign, int exponent, const DecadeMarks& marks)
    {
        for (int k = 1; k < 10; ++k) {
            const double value = sign * decimal(k, exponent);
            if (marks.tick[k] && value >= m_scale.minimum && value <= m_scale.maximum)
                add(value, k == 1, marks.label[k]);
        }
    }

    const QVector<SliderTick>& ticks() const { return m_ticks; }

private:
    const SliderScale& m_scale;
    const int m_length;
    const int m_separation;
    QVector<SliderTick> m_ticks;
    bool m_hasTick = false;
    bool m_hasLabel = false;
    int m_last = 0;
    int m_lastLabel = 0;
};

/// The first decade on one side of zero whose marks do not all fall together.
int firstDecadeFromZero(const SliderScale& scale, int length, int separation, int sign, int last)
{
    const double zero = scale.position(0);
    int exponent = last;
    while (last - exponent < kMostDecades &&
           std::abs(scale.position(sign * decimal(1, exponent)) - zero) * length >= separation)
        --exponent;
    return scale.isInteger ? qMax(0, exponent) : exponent;
}

QVector<SliderTick> sideOfZero(const SliderScale& scale, int length, int separation, int sign)
{
    TickRow row(scale, length, separation);
    row.add(0, true, true);
    const double farEnd = sign > 0 ? scale.maximum : -scale.minimum;
    if (!(farEnd > 0))
        return row.ticks();
    const int last = floorLog10(farEnd);
    for (int e = firstDecadeFromZero(scale, length, separation, sign, last); e <= last; ++e) {
        const auto at = [&](int k) { return scale.position(sign * decimal(k, e)) * length; };
        row.addDecade(sign, e, marksAt(at, separation));
    }
    return row.ticks();
}

} // namespace

QVector<SliderTick> SliderTicks::linear(const SliderScale& scale, int length, int separation)
{
    QVector<SliderTick> ticks;
    const double range = scale.maximum - scale.minimum;
    const double perUnit = length / range;
    if (!(range > 0) || !(perUnit > 0) || !std::isfinite(perUnit))
        return ticks;
    int exponent = floorLog10(separation / perUnit) + 1;
    if (scale.isInteger)
        exponent = qMax(0, exponent);
    const double stepPixels = std::floor(decimal(1, exponent) * perUnit);
    if (!(stepPixels >= 1))
        return ticks;

    const int interval = labelInterval(stepPixels);
    const double offset = -scale.minimum * perUnit;
    // A tick exactly at the minimum counts, also when the division misses it by a rounding error.
    const double first = std::ceil(scale.minimum / decimal(1, exponent) - 1e-6);
    // Counted by pixels: where doubles are too coarse for the step, adding it would never reach the end.
    const int most = static_cast<int>(length / stepPixels) + 2;
    for (int i = 0; i < most; ++i) {
        const double count = first + i;
        const double value = decimal(count, exponent);
        const double position = value * perUnit + offset;
        if (position > length + 0.5 * separation)
            break;
        const bool isMajor = std::fmod(count, 10) == 0;
        const bool hasLabel = isMajor || std::fmod(count, interval) == 0;
        ticks.append({qMax(0, static_cast<int>(std::floor(position))), value, isMajor, hasLabel});
    }
    return ticks;
}

DecadeMarks SliderTicks::decadeMarks(const SliderScale& scale, int length, int separation)
{
    const double decade =
        length / std::abs(std::log10(std::abs(scale.maximum)) - std::log10(std::abs(scale.minimum)));
    return marksAt([decade](int k) { return std::log10(double(k)) * decade; }, separation);
}

QVector<SliderTick> SliderTicks::logarithmic(const SliderScale& scale, int length, int separation,
                                             const DecadeMarks& marks)
{
    TickRow row(scale, length, separation);
    if (!(scale.maximum > scale.minimum))
        return row.ticks();
    const bool isBelowZero = scale.maximum < 0;
    const int first = floorLog10(isBelowZero ? -scale.maximum : scale.minimum);
    const int last = floorLog10(isBelowZero ? -scale.minimum : scale.maximum);
    for (int e = scale.isInteger ? qMax(0, first) : first; e <= last; ++e)
        row.addDecade(isBelowZero ? -1 : 1, e, marks);
    return row.ticks();
}

QVector<SliderTick> SliderTicks::squareRoot(const SliderScale& scale, int length, int separation)
{
    if (scale.maximum < 0)
        return logarithmic(scale, length, separation, decadeMarks(scale, length, separation));
    QVector<SliderTick> ticks = sideOfZero(scale, length, separation, 1);
    const QVector<SliderTick> below = sideOfZero(scale, length, separation, -1);
    // Both sides begin with zero.
    for (int i = 1; i < below.size(); ++i)
        ticks.append(below[i]);
    return ticks;
}

}} // namespace Norvane::UI
