#pragma once

#include <colour/rows/Codings.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace Norvane { namespace Colour { namespace Rows {

// Where the samples of the first pixel lie in a group of four. The second pixel of a pair has its luma two
// further on and shares the chroma.

struct CbYCrYOrder {
    static constexpr int pixels = 2, luma = 1, cb = 0, cr = 2;
    static constexpr bool hasAlpha = false;
};
struct YCbYCrOrder {
    static constexpr int pixels = 2, luma = 0, cb = 1, cr = 3;
    static constexpr bool hasAlpha = false;
};
struct AYCbCrOrder {
    static constexpr int pixels = 1, alpha = 0, luma = 1, cb = 2, cr = 3;
    static constexpr bool hasAlpha = true;
};
struct CbYCrAOrder {
    static constexpr int pixels = 1, alpha = 3, luma = 1, cb = 0, cr = 2;
    static constexpr bool hasAlpha = true;
};

/// One sample, one element.
template <class S>
struct Array {
    using Sample = S;
    static S read(const S* row, std::size_t index) { return row[index]; }
    template <class Code>
    static void write(S* row, std::size_t index, Code code)
    {
        row[index] = static_cast<S>(code);
    }
    static void clear(S*, std::size_t, std::size_t) {}
};

/// Three samples of ten bits in a word, from its low bits up; words in the machine's byte order, which is
/// little endian wherever this library runs.
struct PackedTens {
    using Sample = std::uint32_t;
    static unsigned read(const std::uint32_t* row, std::size_t index)
    {
        return row[index / 3] >> 10 * (index % 3) & 1023u;
    }
    static void write(std::uint32_t* row, std::size_t index, std::uint32_t code)
    {
        row[index / 3] |= code << 10 * (index % 3);
    }
    /// write() adds to words that must be 0 before.
    static void clear(std::uint32_t* row, std::size_t firstPixel, std::size_t endPixel)
    {
        std::fill(row + firstPixel / 6 * 4, row + (endPixel + 5) / 6 * 4, 0u);
    }
};

struct CbYCrY8 : CbYCrYOrder, Array<std::uint8_t>, Video8 {
};
struct CbYCrY8MPEG : CbYCrYOrder, Array<std::uint8_t>, Mpeg8 {
};
struct YCbYCr8 : YCbYCrOrder, Array<std::uint8_t>, Yuvs8 {
};
struct AYCbCr8 : AYCbCrOrder, Array<std::uint8_t>, NoOffset8 {
};
struct CbYCrA8 : CbYCrAOrder, Array<std::uint8_t>, VideoAlpha8 {
};
struct AYCbCrF : AYCbCrOrder, Array<float>, VideoFloat {
};
struct V210 : CbYCrYOrder, PackedTens, Video10 {
};
struct CbYCrY16 : CbYCrYOrder, Array<std::uint16_t>, Video16 {
};
struct AYCbCr16 : AYCbCrOrder, Array<std::uint16_t>, Video16 {
};
struct AYCbCr32 : AYCbCrOrder, Array<std::uint32_t>, Video16 {
};
/// Encoded only.
struct AYCbCr8In16 : AYCbCrOrder, Array<std::uint16_t>, Video8In16 {
};

template <class Layout>
constexpr bool kIsPacked = std::is_base_of<PackedTens, Layout>::value;

/// Whether a row to be decoded is counted in bytes.
template <class Layout>
constexpr bool kCountsBytes = sizeof(typename Layout::Sample) == 1 && Layout::pixels == 2;

/// The samples that a first pixel without a second one needs.
template <class Layout>
constexpr int kSamplesOfOne = std::max({Layout::luma, Layout::cb, Layout::cr}) + 1;

/// The pixels that a row to be decoded gives.
template <class Layout>
int pixelsIn(int count)
{
    if constexpr (kCountsBytes<Layout>)
        return count / 4 * 2 + (count % 4 >= kSamplesOfOne<Layout> ? 1 : 0);
    return count;
}

template <class Layout>
std::size_t bytesOf(int pixels)
{
    const std::size_t n = static_cast<std::size_t>(std::max(pixels, 0));
    if constexpr (kIsPacked<Layout>)
        return (n + 5) / 6 * 16;
    const std::size_t odd = n % Layout::pixels ? kSamplesOfOne<Layout> : 0;
    return (n / Layout::pixels * 4 + odd) * sizeof(typename Layout::Sample);
}

}}} // namespace Norvane::Colour::Rows
