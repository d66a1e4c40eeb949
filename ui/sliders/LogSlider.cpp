#include <ui/sliders/LogSlider.h>

#include <ui/sliders/LogSliderPrivate.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace Norvane { namespace UI {

double powerOfTen(int exponent)
{
    double power = 1;
    double square = 10;
    for (unsigned rest = static_cast<unsigned>(std::abs(exponent)); rest > 0; rest /= 2) {
        if (rest % 2 == 1)
            power *= square;
        square *= square;
    }
    return exponent < 0 ? 1 / power : power;
}

LogSlider::LogSlider(QWidget* parent)
    : QSlider(parent)
    , d(new Private)
{
    Private::installAccessible();
}

LogSlider::LogSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
    , d(new Private)
{
    Private::installAccessible();
}

LogSlider::~LogSlider() = default;

void LogSlider::setRealRange(int minExp, int maxExp, int precision)
{
    if (precision < 1)
        throw std::invalid_argument("precision argument should be > 0");
    if (minExp == maxExp)
        throw std::invalid_argument("minExp cannot be equal to maxExp");
    d->precision = precision;
    d->minExp = qMin(minExp, maxExp);
    d->maxExp = qMax(minExp, maxExp);
    d->minReal = powerOfTen(d->minExp);
    d->maxReal = powerOfTen(d->maxExp);
    setRange(d->position(d->minExp), d->position(d->maxExp));
    update();
}

int LogSlider::minimumExponent() const
{
    return d->minExp;
}

void LogSlider::pushMinimumExponent(int exponent)
{
    setRealRange(exponent, qMax(exponent + 1, d->maxExp), qMax(1, d->precision));
}

int LogSlider::maximumExponent() const
{
    return d->maxExp;
}

void LogSlider::pushMaximumExponent(int exponent)
{
    setRealRange(qMin(d->minExp, exponent - 1), exponent, qMax(1, d->precision));
}

int LogSlider::precision() const
{
    return d->precision;
}

void LogSlider::refine(int precision)
{
    setRealRange(d->minExp, qMax(d->minExp + 1, d->maxExp), qMax(1, precision));
}

double LogSlider::realValue() const
{
    d->requireRange();
    return calculateRealValue(value());
}

void LogSlider::setRealValue(double value)
{
    d->requireRange();
    if (!std::isnan(value))
        setValue(calculateSliderValue(value));
}

// Where an int is too small for all positions, the outermost cannot be reached.
int LogSlider::Private::position(double exponent) const
{
    const double most = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(-most, exponent * precision, most));
}

void LogSlider::Private::requireRange() const
{
    if (precision == 0)
        throw std::logic_error("Call setRealRange method first");
}

double LogSlider::calculateRealValue(int sliderValue) const
{
    return std::pow(10.0, static_cast<double>(sliderValue) / d->precision);
}

int LogSlider::calculateSliderValue(double realValue) const
{
    return d->position(std::log10(qBound(d->minReal, realValue, d->maxReal)));
}

bool LogSlider::drawLogTicks() const
{
    return d->drawLogTicks;
}

void LogSlider::setDrawLogTicks(bool on)
{
    d->drawLogTicks = on;
}

int LogSlider::tickTextSize() const
{
    return d->tickTextSize;
}

void LogSlider::setTickTextSize(int pixels)
{
    d->tickTextSize = pixels;
}

QColor LogSlider::tickColor() const
{
    return d->tickColor;
}

void LogSlider::setTickColor(const QColor& color)
{
    d->tickColor = color;
}

QColor LogSlider::expTickColor() const
{
    return d->expTickColor;
}

void LogSlider::setExpTickColor(const QColor& color)
{
    d->expTickColor = color;
}

QSize LogSlider::sizeHint() const
{
    QSize size = QSlider::sizeHint();
    if (!d->drawLogTicks)
        return size;
    if (orientation() == Qt::Horizontal)
        size.rheight() += d->tickTextSize;
    else
        size.rwidth() += d->tickTextSize;
    return size;
}

QSize LogSlider::minimumSizeHint() const
{
    // QSlider makes it of sizeHint(), in which there is room for the labels already.
    return QSlider::minimumSizeHint();
}

}} // namespace Norvane::UI
