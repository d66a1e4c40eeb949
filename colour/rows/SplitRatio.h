#pragma once

#include <colour/rows/Codings.h>

namespace Norvane { namespace Colour { namespace Rows {

/// A Ratio for vectors: (code - zero) * high + (code - zero) * low. A division costs several times as much,
/// and one multiplication by 1/range is not exact. With 1/range in two parts, the first one so short that its
/// product with a code is exact, the result is that of the division for every code of 8, 10 and 16 bits.
struct SplitRatio {
    float zero;
    float high;
    float low;
};

template <class Coding>
constexpr Coding split(Coding c)
{
    return c;
}

constexpr SplitRatio split(Ratio c)
{
    double unit = 1.0;
    while (unit * c.range > 1.0)
        unit /= 2.0;
    const double eightBits = static_cast<int>(128.0 / (c.range * unit) + 0.5) / 128.0 * unit;
    return {c.zero, static_cast<float>(eightBits), static_cast<float>(1.0 / c.range - eightBits)};
}

/// Splits the ratios among the channels.
template <class Luma, class Cb, class Cr, class Alpha>
constexpr auto split(const Channels<Luma, Cb, Cr, Alpha>& c)
{
    return Channels{split(c.luma), split(c.cb), split(c.cr), split(c.alpha)};
}

}}} // namespace Norvane::Colour::Rows
