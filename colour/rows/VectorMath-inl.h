#if defined(NORVANE_VECTOR_MATH_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef NORVANE_VECTOR_MATH_INL_H
#undef NORVANE_VECTOR_MATH_INL_H
#else
#define NORVANE_VECTOR_MATH_INL_H
#endif

#include <colour/rows/SplitRatio.h>
#include <colour/rows/VectorTargets.h>

#include <hwy/cache_control.h>
#include <hwy/highway.h>

#if NORVANE_HAS_VECTORS
HWY_BEFORE_NAMESPACE();
namespace Norvane { namespace Colour { namespace Rows { namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// A vector holds one float a pixel. The operations and their order are those of the plain rows, so that both
// give the same bits. A multiplication is fused with an addition only where its product is exact by itself.
using F = hn::CappedTag<float, 16>;
using I = hn::RebindToSigned<F>;
using U = hn::RebindToUnsigned<F>;
using VF = hn::Vec<F>;
using VU = hn::Vec<U>;
constexpr std::size_t kLanes = hn::MaxLanes(F());

/// Asks for the memory 2 KiB after \a pixels, be it to read or to write. That may be beyond the row, where
/// most often the next one is. Frames that are in no cache take a fifth less time with it, rows in the first
/// cache 3 % more.
HWY_INLINE void prefetchAfter(const float* pixels)
{
    hwy::Prefetch(pixels + 512);
}

HWY_INLINE VF all(float value)
{
    return hn::Set(F(), value);
}

/// Takes even lanes from one vector and odd lanes from the other.
HWY_INLINE VF alternate(VF even, VF odd)
{
    return hn::OddEven(odd, even);
}
HWY_INLINE VF alternate(float even, float odd)
{
    return even == odd ? all(even) : alternate(all(even), all(odd));
}

HWY_INLINE VF toFloat(VU code)
{
    return hn::ConvertTo(F(), hn::BitCast(I(), code));
}
HWY_INLINE VF toFloat(VF value)
{
    return value;
}

/// A coding of Codings.h in vectors. One that is made from two codings has the first one's constants in its
/// even lanes and the second one's in its odd lanes: for Cb and Cr by turns.
template <class Coding>
struct InVectors;

template <>
struct InVectors<SplitRatio> {
    explicit HWY_INLINE InVectors(SplitRatio c)
        : InVectors(c, c)
    {
    }
    HWY_INLINE InVectors(SplitRatio even, SplitRatio odd)
        : zero(alternate(even.zero, odd.zero))
        , high(alternate(even.high, odd.high))
        , low(alternate(even.low, odd.low))
    {
    }
    HWY_INLINE VF decoded(VF code) const
    {
        const VF distance = hn::Sub(code, zero);
        return hn::MulAdd(distance, high, hn::Mul(distance, low));
    }
    VF zero, high, low;
};

template <>
struct InVectors<Product> {
    explicit HWY_INLINE InVectors(Product c)
        : zero(all(c.zero))
        , factor(all(c.factor))
    {
    }
    HWY_INLINE VF decoded(VF code) const { return hn::Mul(hn::Sub(code, zero), factor); }
    VF zero, factor;
};

template <>
struct InVectors<CentredRatio> {
    explicit HWY_INLINE InVectors(CentredRatio c)
        : zero(all(c.zero))
        , range(all(c.range))
        , centre(all(c.centre))
    {
    }
    HWY_INLINE VF decoded(VF value) const { return hn::Sub(hn::Div(hn::Sub(value, zero), range), centre); }
    VF zero, range, centre;
};

template <>
struct InVectors<Copy> {
    explicit HWY_INLINE InVectors(Copy) {}
    HWY_INLINE VF decoded(VF value) const { return value; }
    HWY_INLINE VF coded(VF value) const { return value; }
};

#if HWY_ARCH_X86
// Here the maximum with not-a-number is the second operand, and a code within its range needs none of the
// instructions that give other numbers a defined integer. With them an encoder takes a third longer.
HWY_INLINE VF keptAbove(VF code, VF low)
{
    return hn::Max(code, low);
}
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE VU integerOf(VF code)
{
    return VU{_mm512_cvttps_epi32(code.raw)};
}
#elif HWY_TARGET == HWY_AVX2
HWY_INLINE VU integerOf(VF code)
{
    return VU{_mm256_cvttps_epi32(code.raw)};
}
#else
HWY_INLINE VU integerOf(VF code)
{
    return VU{_mm_cvttps_epi32(code.raw)};
}
#endif
#else
HWY_INLINE VF keptAbove(VF code, VF low)
{
    return hn::IfThenElse(hn::Gt(code, low), code, low);
}
HWY_INLINE VU integerOf(VF code)
{
    return hn::BitCast(U(), hn::ConvertTo(I(), code));
}
#endif

HWY_INLINE VU truncated(VF code, VF low, VF high)
{
    return integerOf(hn::Min(keptAbove(code, low), high));
}

template <>
struct InVectors<Quantiser> {
    explicit HWY_INLINE InVectors(Quantiser c)
        : InVectors(c, c)
    {
    }
    HWY_INLINE InVectors(Quantiser even, Quantiser odd)
        : scale(alternate(even.scale, odd.scale))
        , offset(alternate(even.offset, odd.offset))
        , low(alternate(even.low, odd.low))
        , high(alternate(even.high, odd.high))
    {
    }
    HWY_INLINE VU coded(VF value) const
    {
        const VF code = hn::Add(hn::Add(hn::Mul(value, scale), offset), all(0.5f));
        return truncated(code, low, high);
    }
    VF scale, offset, low, high;
};

template <>
struct InVectors<GainQuantiser> {
    explicit HWY_INLINE InVectors(GainQuantiser c)
        : scale(all(c.scale))
        , offset(all(c.offset))
        , gain(all(c.gain))
        , low(all(c.low))
        , high(all(c.high))
    {
    }
    HWY_INLINE VU coded(VF value) const
    {
        const VF code = hn::Add(hn::Mul(hn::Add(hn::Mul(value, scale), offset), gain), all(0.5f));
        return truncated(code, low, high);
    }
    VF scale, offset, gain, low, high;
};

template <>
struct InVectors<Quotient> {
    explicit HWY_INLINE InVectors(Quotient c)
        : factor(all(c.factor))
    {
    }
    HWY_INLINE VF coded(VF value) const { return hn::Div(value, factor); }
    VF factor;
};

template <>
struct InVectors<CentredProduct> {
    explicit HWY_INLINE InVectors(CentredProduct c)
        : centre(all(c.centre))
        , range(all(c.range))
        , zero(all(c.zero))
    {
    }
    HWY_INLINE VF coded(VF value) const { return hn::Add(hn::Mul(hn::Add(value, centre), range), zero); }
    VF centre, range, zero;
};

template <class Coding>
HWY_INLINE InVectors<Coding> vectorOf(Coding all)
{
    return InVectors<Coding>(all);
}
template <class Coding>
HWY_INLINE InVectors<Coding> vectorOf(Coding even, Coding odd)
{
    return InVectors<Coding>(even, odd);
}

}}}} // namespace Norvane::Colour::Rows::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();
#endif

#endif
