#include <ui/sliders/SliderScale.h>

#include <cmath>

namespace Norvane { namespace UI {

namespace {

// A range so small that its ends have the same logarithm is no range.
double ratio(double part, double whole)
{
    return whole == 0 ? 0 : part / whole;
}

double nonLinearPosition(double value, double low, double high)
{
    if (low > 0)
        return value <= low ? 0 : ratio(std::log(value) - std::log(low), std::log(high) - std::log(low));
    if (low == 0)
        return value <= 0 ? 0 : std::sqrt(value / high);
    const double below = std::sqrt(-low);
    const double above = std::sqrt(high);
    if (value < 0)
        return (1 - std::sqrt(value / low)) * below / (below + above);
    return (std::sqrt(value / high) * above + below) / (below + above);
}

double nonLinearValue(double position, double low, double high)
{
    if (low > 0)
        return std::exp(std::log(low) + (std::log(high) - std::log(low)) * position);
    if (low == 0)
        return position * position * high;
    const double below = std::sqrt(-low);
    const double above = std::sqrt(high);
    if (below / (below + above) > position) {
        const double root = 1 - (below + above) * position / below;
        return root * root * low;
    }
    const double root = ((below + above) * position - below) / above;
    return root * root * high;
}

/// The scale of a range that lies below zero is that of the range mirrored at zero, read from its other end.
bool isMirrored(const SliderScale& scale)
{
    return scale.maximum <= 0;
}

SliderScale mirrored(const SliderScale& scale)
{
    SliderScale mirror = scale;
    mirror.minimum = -scale.maximum;
    mirror.maximum = -scale.minimum;
    return mirror;
}

double uprightPosition(const SliderScale& scale, double value)
{
    const double wanted = scale.isInteger ? std::round(value) : value;
    if (scale.isNonLinear)
        return nonLinearPosition(wanted, scale.minimum, scale.maximum);
    return (wanted - scale.minimum) / (scale.maximum - scale.minimum);
}

double uprightValue(const SliderScale& scale, double position)
{
    const double value = scale.isNonLinear ? nonLinearValue(position, scale.minimum, scale.maximum)
                                           : scale.minimum + (scale.maximum - scale.minimum) * position;
    return scale.isInteger ? std::round(value) : value;
}

} // namespace

double SliderScale::position(double value) const
{
    if (maximum == minimum)
        return 0;
    return isMirrored(*this) ? 1 - uprightPosition(mirrored(*this), -value) : uprightPosition(*this, value);
}

double SliderScale::value(double position) const
{
    if (!(position > 0))
        return minimum;
    if (position >= 1)
        return maximum;
    return isMirrored(*this) ? -uprightValue(mirrored(*this), 1 - position) : uprightValue(*this, position);
}

double SliderScale::snapped(double value, double change) const
{
    const bool isRaised = isInteger && change < 1;
    if (!isRaised && !(change > 1e-9 && change < 1e9))
        return value;
    const double exponent = isRaised ? 0 : std::log10(change);
    const double power = std::ceil(exponent);
    // Multiplied and divided by whole numbers: a multiple of 0.1 is then the number nearest to it.
    const double up = power > 0 ? std::pow(10.0, power) : 1;
    double down = power < 0 ? std::pow(10.0, -power) : 1;
    if (power - exponent > 0.69897) // log10(5)
        down *= 5;
    else if (power - exponent > 0.30103) // log10(2)
        down *= 2;
    return std::floor(down * value / up + 0.5) * up / down;
}

}} // namespace Norvane::UI
