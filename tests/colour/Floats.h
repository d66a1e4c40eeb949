#pragma once

#include <QString>

#include <cmath>
#include <cstdint>
#include <cstring>

namespace NorvaneTest {

/// Whether both are the same bits, so that a NaN equals itself and 0 differs from -0.
inline bool sameBits(float a, float b)
{
    std::uint32_t bitsOfA = 0, bitsOfB = 0;
    std::memcpy(&bitsOfA, &a, sizeof a);
    std::memcpy(&bitsOfB, &b, sizeof b);
    return bitsOfA == bitsOfB;
}

/// Whether \a value is \a expected but for a few roundings; \a magnitude is that of the largest term.
inline bool isClose(double value, double expected, double magnitude = 1.0)
{
    return std::fabs(value - expected) <= 4e-7 * std::fmax(magnitude, std::fabs(expected));
}

/// For the message of a failure: enough digits to tell any two floats apart.
inline QString told(double a, double b, double c)
{
    return QString::fromLatin1("(%1, %2, %3)").arg(a, 0, 'g', 9).arg(b, 0, 'g', 9).arg(c, 0, 'g', 9);
}

} // namespace NorvaneTest
