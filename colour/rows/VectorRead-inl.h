#if defined(NORVANE_VECTOR_READ_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef NORVANE_VECTOR_READ_INL_H
#undef NORVANE_VECTOR_READ_INL_H
#else
#define NORVANE_VECTOR_READ_INL_H
#endif

#include <colour/rows/Layouts.h>
#include <colour/rows/VectorMath-inl.h>
#include <colour/rows/VectorOrder-inl.h>

#if NORVANE_HAS_VECTORS
HWY_BEFORE_NAMESPACE();
namespace Norvane { namespace Colour { namespace Rows { namespace HWY_NAMESPACE {

using Bytes = hn::Repartition<std::uint8_t, F>;
using Words = hn::Repartition<std::uint16_t, F>;

template <int bits>
HWY_INLINE VU bitsAbove(VU v)
{
    return hn::ShiftRight<bits>(v);
}
template <int bits>
HWY_INLINE VU bitsBelow(VU v)
{
    return hn::And(v, hn::Set(U(), (1u << bits) - 1u));
}

/// The codes of kLanes pixels of 4:2:2. Chroma has Cb in the even lanes and Cr in the odd lanes.
struct PairCodes {
    VU luma, chroma;
};

/// Splits lanes that each hold two codes, luma and one of the pair's chroma, in the order of the layout.
template <class Layout, int bits>
HWY_INLINE PairCodes splitPair(VU lanes)
{
    if constexpr (Layout::luma == 0)
        return {bitsBelow<bits>(lanes), bitsAbove<bits>(lanes)};
    else
        return {bitsAbove<bits>(lanes), bitsBelow<bits>(lanes)};
}

/// Reads pairs. \a step goes from 0 to kSteps - 1, with all that belongs to a row of kSteps * kLanes pixels.
template <class Layout, class Sample = typename Layout::Sample>
struct PairReader;

template <class Layout>
struct PairReader<Layout, std::uint8_t> {
    static constexpr std::size_t kSteps = 1;
    HWY_INLINE PairCodes read(const std::uint8_t* row, std::size_t) const
    {
        const hn::Half<Bytes> bytes;
        const hn::Half<Words> words;
        return splitPair<Layout, 8>(hn::PromoteTo(U(), hn::BitCast(words, hn::LoadU(bytes, row))));
    }
};

template <class Layout>
struct PairReader<Layout, std::uint16_t> {
    static constexpr std::size_t kSteps = 1;
    HWY_INLINE PairCodes read(const std::uint16_t* row, std::size_t) const
    {
        return splitPair<Layout, 16>(hn::BitCast(U(), hn::LoadU(Words(), row)));
    }
};

/// How V210 is taken apart. Blocks of 16 bytes, at every 8 bytes or, after each third of them, at every 16,
/// have the samples of four pixels each. Three vectors of such blocks are a whole number of groups.
struct TensTables {
    static constexpr std::size_t kBlocks = kLanes / 4;

    // The start of a block in units of 8 bytes.
    static constexpr std::size_t startOf(std::size_t block) { return block + block / 3; }

    // No vector may reach beyond the groups.
    static constexpr std::size_t loadAt(std::size_t vector)
    {
        return std::min(startOf(vector * kBlocks), 4 * kBlocks - 2 * kBlocks);
    }

    constexpr TensTables()
    {
        for (std::size_t block = 0; block < 3 * kBlocks; ++block) {
            for (std::size_t i = 0; i < 4; ++i)
                lanes[block * 4 + i] = std::uint32_t(2 * (startOf(block) - loadAt(block / kBlocks)) + i);
            for (std::size_t i = 0; i < 8; ++i) {
                const std::size_t sample = block % 3 * 8 + i;
                const std::size_t byte = sample / 3 * 4 + sample % 3 - block % 3 * 8;
                bytes[block * 16 + 2 * i] = std::uint8_t(byte);
                bytes[block * 16 + 2 * i + 1] = std::uint8_t(byte + 1);
                // The sample starts at bit 0, 2 or 4 of these two bytes. This moves it to bit 6.
                factors[block * 8 + i] = std::uint16_t(64u >> 2 * (sample % 3));
            }
        }
    }

    alignas(64) std::uint32_t lanes[3 * kLanes]{};
    alignas(64) std::uint8_t bytes[3 * 4 * kLanes]{};
    alignas(64) std::uint16_t factors[3 * 2 * kLanes]{};
};

template <>
struct PairReader<V210, std::uint32_t> {
    static constexpr std::size_t kSteps = 3;
    HWY_INLINE PairCodes read(const std::uint32_t* row, std::size_t step) const
    {
        static constexpr TensTables kTables;
        VU blocks = hn::LoadU(U(), row + 2 * TensTables::loadAt(step));
        if (kLanes > 4)
            blocks = hn::TableLookupLanes(blocks, hn::SetTableIndices(U(), kTables.lanes + step * kLanes));
        const auto order = hn::Load(Bytes(), kTables.bytes + step * 4 * kLanes);
        const auto samples = hn::BitCast(Words(), hn::TableLookupBytes(hn::BitCast(Bytes(), blocks), order));
        const auto raised = hn::Mul(samples, hn::Load(Words(), kTables.factors + step * 2 * kLanes));
        return splitPair<V210, 16>(hn::BitCast(U(), hn::ShiftRight<6>(raised)));
    }
};

// The codes of kLanes pixels of 4:4:4:4 in their order in memory.

template <class Order>
HWY_INLINE FourVectors<VU> readFour(const std::uint8_t* row, const Order& order)
{
    const VU lanes = order.arranged(hn::BitCast(U(), hn::LoadU(Bytes(), row)));
    return {{bitsBelow<8>(lanes), bitsBelow<8>(bitsAbove<8>(lanes)), bitsBelow<8>(bitsAbove<16>(lanes)),
             bitsAbove<24>(lanes)}};
}

template <class Order>
HWY_INLINE FourVectors<VU> readFour(const std::uint16_t* row, const Order& order)
{
    const VU lower = hn::BitCast(U(), hn::LoadU(Words(), row));
    const VU upper = hn::BitCast(U(), hn::LoadU(Words(), row + 2 * kLanes));
    const VU first = order.arranged(hn::ConcatEven(U(), upper, lower));
    const VU second = order.arranged(hn::ConcatOdd(U(), upper, lower));
    return {{bitsBelow<16>(first), bitsAbove<16>(first), bitsBelow<16>(second), bitsAbove<16>(second)}};
}

template <class Order>
HWY_INLINE FourVectors<VU> readFour(const std::uint32_t* row, const Order& order)
{
    return loadPixels(row, order);
}

template <class Order>
HWY_INLINE FourVectors<VF> readFour(const float* row, const Order& order)
{
    return loadPixels(row, order);
}

/// Whether the codes are such that the vector rows decode them exactly: up to 16 bits.
template <class Sample>
HWY_INLINE bool areExact(const FourVectors<VU>& codes, const Sample*)
{
    if (sizeof(Sample) < 4)
        return true;
    const VU any = hn::Or(hn::Or(codes.at[0], codes.at[1]), hn::Or(codes.at[2], codes.at[3]));
    return hn::AllTrue(U(), hn::Eq(bitsAbove<16>(any), hn::Zero(U())));
}
HWY_INLINE bool areExact(const FourVectors<VF>&, const float*)
{
    return true;
}

}}}} // namespace Norvane::Colour::Rows::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();
#endif

#endif
