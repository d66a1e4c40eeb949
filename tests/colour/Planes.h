#pragma once

#include <tests/colour/GuardedMemory.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace NorvaneTest {

/// Where a caller keeps its pixels: places of red, green, blue and alpha from the start of a pixel, or a
/// plane for each.
struct Arrangement {
    const char* name;
    std::ptrdiff_t stride;
    bool separate;
    int places[4];
    bool hasAlpha;
};

const Arrangement kArrangements[] = {
    {"planes", 1, true, {0, 0, 0, 0}, true},
    {"planes without alpha", 1, true, {0, 0, 0, 0}, false},
    {"RGBA", 4, false, {0, 1, 2, 3}, true},
    {"RGB of RGBA", 4, false, {0, 1, 2, 3}, false},
    {"ARGB", 4, false, {1, 2, 3, 0}, true},
    {"BGRA", 4, false, {2, 1, 0, 3}, true},
    {"RGB", 3, false, {0, 1, 2, 0}, false},
    {"every third of four planes", 3, true, {0, 0, 0, 0}, true},
    {"every fourth of four planes", 4, true, {0, 0, 0, 0}, true},
    {"RGBA and one more", 5, false, {0, 1, 2, 3}, true},
    {"RGB and two more", 5, false, {0, 1, 2, 0}, false},
    {"planes, right to left", -1, true, {0, 0, 0, 0}, true},
    {"planes without alpha, right to left", -1, true, {0, 0, 0, 0}, false},
    {"RGBA, right to left", -4, false, {0, 1, 2, 3}, true},
    {"RGB, right to left", -3, false, {0, 1, 2, 0}, false},
};

/// Four planes in guarded memory, each as close to a forbidden page as its pixels allow.
class Planes
{
public:
    Planes(const Arrangement& arrangement, int mostPixels)
        : m_arrangement(arrangement)
        , m_channels(arrangement.hasAlpha ? 4 : 3)
    {
        const std::size_t floats = static_cast<std::size_t>(mostPixels * std::abs(arrangement.stride));
        for (int i = 0; i < (arrangement.separate ? m_channels : 1); ++i)
            m_memories.emplace_back(new GuardedMemory(floats * sizeof(float)));
        m_expected.resize(m_memories.size());
    }

    void place(int pixels, bool atEnd)
    {
        const std::ptrdiff_t length = std::max(pixels - 1, 0) * m_arrangement.stride;
        const auto range = std::minmax_element(m_arrangement.places, m_arrangement.places + m_channels);
        const std::ptrdiff_t first = *range.first + std::min<std::ptrdiff_t>(length, 0);
        const std::ptrdiff_t end = *range.second + std::max<std::ptrdiff_t>(length, 0) + (pixels > 0 ? 1 : 0);
        for (int channel = 0; channel < m_channels; ++channel) {
            float* const base =
                reinterpret_cast<float*>(memory(channel).place(0, atEnd)) - (atEnd ? end : first);
            m_planes[channel] = base + m_arrangement.places[channel];
        }
        for (const auto& one : m_memories)
            one->fill();
    }

    /// Red, green, blue, alpha; null for an alpha that is not there.
    float* operator[](int channel) const { return m_planes[channel]; }
    std::ptrdiff_t stride() const { return m_arrangement.stride; }
    float& at(int channel, int pixel) const { return m_planes[channel][pixel * m_arrangement.stride]; }

    void set(int pixel, const float rgba[4])
    {
        for (int channel = 0; channel < m_channels; ++channel)
            at(channel, pixel) = rgba[channel];
    }

    /// Takes what is there now for what is expected, and puts guard values in its place.
    void expectThis()
    {
        for (std::size_t i = 0; i < m_memories.size(); ++i) {
            m_expected[i].assign(m_memories[i]->begin(), m_memories[i]->end());
            m_memories[i]->fill();
        }
    }

    /// Whether everything, guard values included, is as expected.
    bool isAsExpected() const
    {
        for (std::size_t i = 0; i < m_memories.size(); ++i) {
            if (std::memcmp(m_memories[i]->begin(), m_expected[i].data(), m_expected[i].size()) != 0)
                return false;
        }
        return true;
    }

private:
    GuardedMemory& memory(int channel)
    {
        return *m_memories[m_arrangement.separate ? static_cast<std::size_t>(channel) : 0];
    }

    const Arrangement& m_arrangement;
    int m_channels;
    std::vector<std::unique_ptr<GuardedMemory>> m_memories;
    std::vector<std::vector<unsigned char>> m_expected;
    float* m_planes[4] = {};
};

} // namespace NorvaneTest
