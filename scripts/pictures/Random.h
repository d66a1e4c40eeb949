#pragma once

#include <cstdint>

namespace Norvane { namespace Pictures {

/// A sequence of numbers that is the same on every machine, so that a picture drawn anew is the same picture.
class Random
{
public:
    explicit Random(std::uint32_t seed)
        : m_state(seed)
    {
    }

    /// From \a low up to, but not including, \a high.
    double between(double low, double high)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return low + (high - low) * (m_state >> 8) / double(1 << 24);
    }

private:
    std::uint32_t m_state;
};

}} // namespace Norvane::Pictures
