#if defined(NORVANE_VECTOR_ORDER_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef NORVANE_VECTOR_ORDER_INL_H
#undef NORVANE_VECTOR_ORDER_INL_H
#else
#define NORVANE_VECTOR_ORDER_INL_H
#endif

#include <colour/rows/VectorMath-inl.h>

#if NORVANE_HAS_VECTORS
HWY_BEFORE_NAMESPACE();
namespace Norvane { namespace Colour { namespace Rows { namespace HWY_NAMESPACE {

// The order of the pixels in the lanes of a vector.

/// That of memory.
struct MemoryOrder {
    MemoryOrder() {}
    HWY_INLINE VF arranged(VF v) const { return v; }
    HWY_INLINE VU arranged(VU v) const { return v; }
    HWY_INLINE VF restored(VF v) const { return v; }
    HWY_INLINE VU restored(VU v) const { return v; }
    /// Writes the lanes of two vectors by turns.
    HWY_INLINE void storePairs(VU first, VU second, std::uint32_t* to) const
    {
        hn::StoreInterleaved2(first, second, U(), to);
    }
    /// The even ones of lanes in the order of memory, each twice; then the odd ones.
    HWY_INLINE VF arrangedEven(VF v) const { return hn::DupEven(v); }
    HWY_INLINE VF arrangedOdd(VF v) const { return hn::DupOdd(v); }
};

struct BlockOrderIndices {
    constexpr BlockOrderIndices()
    {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            const std::size_t pixel = lane % 4 * (kLanes / 4) + lane / 4;
            arrange[lane] = std::int32_t(pixel);
            arrangeEven[lane] = std::int32_t(pixel & ~std::size_t(1));
            arrangeOdd[lane] = std::int32_t(pixel | 1);
            restore[pixel] = std::int32_t(lane);
            // Of pairs interleaved within their blocks, those of each block's first half come first.
            const std::size_t pair = lane / 2;
            restorePairs[lane] = std::int32_t(pair % (kLanes / 4) * 4 + pair / (kLanes / 4) * 2 + lane % 2);
        }
    }
    alignas(64) std::int32_t arrange[kLanes]{};
    alignas(64) std::int32_t arrangeEven[kLanes]{};
    alignas(64) std::int32_t arrangeOdd[kLanes]{};
    alignas(64) std::int32_t restore[kLanes]{};
    alignas(64) std::int32_t restorePairs[kLanes]{};
};

/// That in which four vectors, one for each component, have only to be transposed within blocks of 16 bytes
/// to be interleaved pixels in the order of memory, or the other way round. Moving data between blocks costs
/// as much as the transposition, and most layouts have fewer vectors to arrange than four.
class BlockOrder
{
public:
    BlockOrder()
        : m_arrange(hn::SetTableIndices(F(), kIndices.arrange))
        , m_arrangeEven(hn::SetTableIndices(F(), kIndices.arrangeEven))
        , m_arrangeOdd(hn::SetTableIndices(F(), kIndices.arrangeOdd))
        , m_restore(hn::SetTableIndices(F(), kIndices.restore))
        , m_restorePairs(hn::SetTableIndices(F(), kIndices.restorePairs))
    {
    }
    HWY_INLINE VF arranged(VF v) const { return kLanes == 4 ? v : hn::TableLookupLanes(v, m_arrange); }
    HWY_INLINE VU arranged(VU v) const { return hn::BitCast(U(), arranged(hn::BitCast(F(), v))); }
    HWY_INLINE VF restored(VF v) const { return kLanes == 4 ? v : hn::TableLookupLanes(v, m_restore); }
    HWY_INLINE VU restored(VU v) const { return hn::BitCast(U(), restored(hn::BitCast(F(), v))); }
    HWY_INLINE void storePairs(VU first, VU second, std::uint32_t* to) const
    {
        const VU lower = hn::InterleaveLower(U(), first, second);
        const VU upper = hn::InterleaveUpper(U(), first, second);
        hn::StoreU(restoredPairs(lower), U(), to);
        hn::StoreU(restoredPairs(upper), U(), to + kLanes);
    }
    HWY_INLINE VF arrangedEven(VF v) const
    {
        return kLanes == 4 ? hn::DupEven(v) : hn::TableLookupLanes(v, m_arrangeEven);
    }
    HWY_INLINE VF arrangedOdd(VF v) const
    {
        return kLanes == 4 ? hn::DupOdd(v) : hn::TableLookupLanes(v, m_arrangeOdd);
    }

private:
    static constexpr BlockOrderIndices kIndices{};

    using VI = decltype(hn::SetTableIndices(F(), static_cast<const std::int32_t*>(nullptr)));
    HWY_INLINE VU restoredPairs(VU v) const
    {
        return kLanes == 4 ? v : hn::BitCast(U(), hn::TableLookupLanes(hn::BitCast(F(), v), m_restorePairs));
    }

    const VI m_arrange, m_arrangeEven, m_arrangeOdd, m_restore, m_restorePairs;
};

/// Four vectors, transposed within their blocks.
template <class V>
struct FourVectors {
    V at[4];
};

template <class V>
HWY_INLINE FourVectors<V> transposed(const FourVectors<V>& v)
{
    const hn::DFromV<V> d;
    const hn::RepartitionToWide<decltype(d)> wide;
    const auto lower01 = hn::BitCast(wide, hn::InterleaveLower(d, v.at[0], v.at[1]));
    const auto lower23 = hn::BitCast(wide, hn::InterleaveLower(d, v.at[2], v.at[3]));
    const auto upper01 = hn::BitCast(wide, hn::InterleaveUpper(d, v.at[0], v.at[1]));
    const auto upper23 = hn::BitCast(wide, hn::InterleaveUpper(d, v.at[2], v.at[3]));
    return {{hn::BitCast(d, hn::InterleaveLower(wide, lower01, lower23)),
             hn::BitCast(d, hn::InterleaveUpper(wide, lower01, lower23)),
             hn::BitCast(d, hn::InterleaveLower(wide, upper01, upper23)),
             hn::BitCast(d, hn::InterleaveUpper(wide, upper01, upper23))}};
}

/// Interleaved pixels of four elements of 32 bits, into a vector for each element and back.
template <class T>
HWY_INLINE auto loadPixels(const T* from, const MemoryOrder&)
{
    const hn::Rebind<T, F> d;
    hn::Vec<decltype(d)> first, second, third, fourth;
    hn::LoadInterleaved4(d, from, first, second, third, fourth);
    return FourVectors<hn::Vec<decltype(d)>>{{first, second, third, fourth}};
}

template <class T>
HWY_INLINE auto loadPixels(const T* from, const BlockOrder&)
{
    const hn::Rebind<T, F> d;
    return transposed(FourVectors<hn::Vec<decltype(d)>>{{hn::LoadU(d, from), hn::LoadU(d, from + kLanes),
                                                         hn::LoadU(d, from + 2 * kLanes),
                                                         hn::LoadU(d, from + 3 * kLanes)}});
}

template <class V, class T>
HWY_INLINE void storePixels(const FourVectors<V>& v, T* to, const MemoryOrder&)
{
    hn::StoreInterleaved4(v.at[0], v.at[1], v.at[2], v.at[3], hn::Rebind<T, F>(), to);
}

template <class V, class T>
HWY_INLINE void storePixels(const FourVectors<V>& v, T* to, const BlockOrder&)
{
    const hn::Rebind<T, F> d;
    const FourVectors<V> pixels = transposed(v);
    hn::StoreU(pixels.at[0], d, to);
    hn::StoreU(pixels.at[1], d, to + kLanes);
    hn::StoreU(pixels.at[2], d, to + 2 * kLanes);
    hn::StoreU(pixels.at[3], d, to + 3 * kLanes);
}

}}}} // namespace Norvane::Colour::Rows::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();
#endif

#endif
