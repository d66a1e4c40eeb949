#pragma once

#include <colour/rows/Layouts.h>
#include <colour/rows/Planes.h>
#include <colour/YCbCrMatrix.h>

// The definition of every conversion, one pixel after the other. The vector rows give the same bits.

namespace Norvane { namespace Colour { namespace Rows {

inline float decoded(Ratio c, float code)
{
    return (code - c.zero) / c.range;
}
inline float decoded(Product c, float code)
{
    return (code - c.zero) * c.factor;
}
inline float decoded(CentredRatio c, float code)
{
    return (code - c.zero) / c.range - c.centre;
}
inline float decoded(Copy, float code)
{
    return code;
}

/// Truncates \a code, kept to \a low..\a high. Not-a-number fails the comparison and becomes the lowest code.
inline std::uint32_t truncated(float code, float low, float high)
{
    return static_cast<std::uint32_t>(code > low ? std::min(code, high) : low);
}

inline std::uint32_t coded(Quantiser c, float value)
{
    return truncated(value * c.scale + c.offset + 0.5f, c.low, c.high);
}
inline std::uint32_t coded(GainQuantiser c, float value)
{
    return truncated((value * c.scale + c.offset) * c.gain + 0.5f, c.low, c.high);
}
inline float coded(Quotient c, float value)
{
    return value / c.factor;
}
inline float coded(CentredProduct c, float value)
{
    return (value + c.centre) * c.range + c.zero;
}
inline float coded(Copy, float value)
{
    return value;
}

struct Triple {
    float x, y, z;
};

struct ToRgb {
    const InverseCoefficients& k;
    Triple operator()(float y, float cb, float cr) const
    {
        return {y + k.c[0] * cr, y + k.c[1] * cr + k.c[2] * cb, y + k.c[3] * cb};
    }
};

struct Unchanged {
    Triple operator()(float y, float cb, float cr) const { return {y, cb, cr}; }
};

inline Triple toYCbCr(const ForwardMatrix& k, float r, float g, float b)
{
    const float* const m = k.m;
    return {m[0] * r + m[1] * g + m[2] * b, m[3] * r + m[4] * g + m[5] * b, m[6] * r + m[7] * g + m[8] * b};
}

/// Calls \a convert for every pixel, four in a turn of the loop.
template <class Convert>
void forPixels(std::size_t begin, std::size_t end, const Convert& convert)
{
    std::size_t pixel = begin;
    for (; pixel + 4 <= end; pixel += 4) {
        convert(pixel);
        convert(pixel + 1);
        convert(pixel + 2);
        convert(pixel + 3);
    }
    for (; pixel < end; ++pixel)
        convert(pixel);
}

/// Decodes or unpacks the pixels from \a begin to \a end of a row.
template <class Layout, class Coding, class Transform>
void readPixels(const typename Layout::Sample* row, const Planes& planes, std::size_t begin, std::size_t end,
                const Coding& coding, const Transform& transform)
{
    forPixels(begin, end, [&](std::size_t pixel) {
        const std::size_t group = pixel / Layout::pixels * 4;
        const auto code = [&](std::size_t position) {
            return static_cast<float>(Layout::read(row, group + position));
        };
        const float luma = decoded(coding.luma, code(Layout::luma + pixel % Layout::pixels * 2));
        const Triple result =
            transform(luma, decoded(coding.cb, code(Layout::cb)), decoded(coding.cr, code(Layout::cr)));
        const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(pixel) * planes.stride;
        planes.x[at] = result.x;
        planes.y[at] = result.y;
        planes.z[at] = result.z;
        if (!planes.alpha)
            return;
        if constexpr (Layout::hasAlpha)
            planes.alpha[at] = decoded(coding.alpha, code(Layout::alpha));
        else
            planes.alpha[at] = 1.0f;
    });
}

/// Encodes the pixels from \a begin, which starts a group, to \a end.
template <class Layout>
void writePixels(const ConstPlanes& planes, typename Layout::Sample* row, std::size_t begin, std::size_t end,
                 const ForwardMatrix& matrix)
{
    const auto pixelAt = [&](std::size_t pixel) {
        const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(pixel) * planes.stride;
        return toYCbCr(matrix, planes.x[at], planes.y[at], planes.z[at]);
    };
    constexpr const auto& coding = Layout::encode;
    Layout::clear(row, begin, end);
    for (std::size_t pixel = begin; pixel < end; pixel += Layout::pixels) {
        const std::size_t group = pixel / Layout::pixels * 4;
        const Triple first = pixelAt(pixel);
        float cb = first.y, cr = first.z;
        Layout::write(row, group + Layout::luma, coded(coding.luma, first.x));
        if (Layout::pixels == 2 && pixel + 1 < end) {
            const Triple second = pixelAt(pixel + 1);
            Layout::write(row, group + Layout::luma + 2, coded(coding.luma, second.x));
            cb = (cb + second.y) / 2.0f;
            cr = (cr + second.z) / 2.0f;
        }
        Layout::write(row, group + Layout::cb, coded(coding.cb, cb));
        Layout::write(row, group + Layout::cr, coded(coding.cr, cr));
        if constexpr (Layout::hasAlpha) {
            const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(pixel) * planes.stride;
            Layout::write(row, group + Layout::alpha,
                          coded(coding.alpha, planes.alpha ? planes.alpha[at] : 1.0f));
        }
    }
}

}}} // namespace Norvane::Colour::Rows
