#include <ui/sliders/Slider.h>

#include <ui/sliders/SliderPrivate.h>
#include <ui/toolkit/AccessibleValue.h>

#include <cmath>

namespace Norvane { namespace UI {

namespace {

const int kThickness = 20;
const int kShortestLength = 30;

// Infinite bounds, and those whose distance no double holds, leave nothing to compute positions with.
bool isRange(double minimum, double maximum)
{
    return std::isfinite(maximum - minimum);
}

} // namespace

Slider::Slider(ValueType type, SliderMode mode, Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent)
    , d(new Private(this))
{
    Private::installAccessible();
    const bool isInteger = type == IntegerValue;
    d->value = isInteger ? 0.0 : 0.5;
    d->maximum = isInteger ? 100.0 : 1.0;
    d->step = isInteger ? 1.0 : 0.01;
    d->type = type;
    d->mode = mode;
    d->color = palette().color(QPalette::Light);
    setOrientation(orientation);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
}

Slider::Slider(QWidget* parent)
    : Slider(RealValue, LinearMode, Qt::Horizontal, parent)
{
}

Slider::~Slider() = default;

Slider::ValueType Slider::type() const
{
    return d->type;
}

Slider::SliderMode Slider::mode() const
{
    return d->mode;
}

Qt::Orientation Slider::orientation() const
{
    return d->orientation;
}

double Slider::minimum() const
{
    return d->minimum;
}

double Slider::maximum() const
{
    return d->maximum;
}

double Slider::rangeDelta() const
{
    return d->maximum - d->minimum;
}

double Slider::step() const
{
    return d->step;
}

double Slider::value() const
{
    return d->value;
}

void Slider::setStep(double step)
{
    if (std::isfinite(step))
        d->step = step;
}

void Slider::setColor(QColor color)
{
    if (!d->useGradient && color == d->color)
        return;
    d->color = color;
    d->useGradient = false;
    update();
}

void Slider::setColor(QGradient gradient)
{
    // Colour sliders set it whenever they are painted: what is the same must not lead to another painting.
    if (d->useGradient && gradient == d->gradient)
        return;
    d->gradient = gradient;
    d->useGradient = true;
    update();
}

QSize Slider::sizeHint() const
{
    return d->orientation == Qt::Horizontal ? QSize(kShortestLength, kThickness)
                                            : QSize(kThickness, kShortestLength);
}

void Slider::setOrientation(Qt::Orientation orientation)
{
    d->orientation = orientation;
    d->tickCacheValid = false;
    if (orientation == Qt::Horizontal)
        setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::MinimumExpanding);
    setMinimumSize(sizeHint());
    update();
}

void Slider::setValue(double value)
{
    const double wanted = d->type == IntegerValue ? std::round(value) : value;
    if (wanted == d->value || !std::isfinite(wanted))
        return;
    d->value = wanted;
    update();
    reportAccessibleValue(this, wanted);
}

void Slider::setMode(SliderMode mode)
{
    if (mode == d->mode)
        return;
    d->mode = mode;
    d->rangeHasChanged();
}

void Slider::setType(ValueType type)
{
    if (type == d->type)
        return;
    d->type = type;
    d->rangeHasChanged();
}

void Slider::setRange(double minimum, double maximum)
{
    if (!isRange(minimum, maximum))
        return;
    const double lower = qMin(minimum, maximum);
    const double upper = qMax(minimum, maximum);
    if (lower == d->minimum && upper == d->maximum)
        return;
    d->minimum = lower;
    d->maximum = upper;
    d->rangeHasChanged();
}

void Slider::setMinimum(double minimum)
{
    setRange(minimum, d->maximum);
}

void Slider::setMaximum(double maximum)
{
    setRange(d->minimum, maximum);
}

void Slider::pushMinimum(double minimum)
{
    setRange(minimum, qMax(minimum, d->maximum));
}

void Slider::pushMaximum(double maximum)
{
    setRange(qMin(d->minimum, maximum), maximum);
}

void Slider::setMinTickSeparation(int pixels)
{
    const int separation = qMax(1, pixels);
    if (separation == d->minTickSeparation)
        return;
    d->minTickSeparation = separation;
    d->rangeHasChanged();
}

void Slider::Private::rangeHasChanged()
{
    tickCacheValid = false;
    q->update();
}

SliderScale Slider::Private::scale() const
{
    SliderScale scale;
    scale.minimum = minimum;
    scale.maximum = maximum;
    scale.isInteger = type == IntegerValue;
    scale.isNonLinear = mode == LogMode;
    return scale;
}

bool Slider::isLog() const
{
    return d->mode == LogMode && (d->minimum > 0 || d->maximum < 0);
}

double Slider::valueToPosition(double value, bool clamp) const
{
    const double position = d->scale().position(value);
    return clamp ? qBound(0.0, position, 1.0) : position;
}

double Slider::positionToValue(double position) const
{
    return d->scale().value(position);
}

}} // namespace Norvane::UI
