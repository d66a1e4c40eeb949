#if defined(NORVANE_VECTOR_WRITE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef NORVANE_VECTOR_WRITE_INL_H
#undef NORVANE_VECTOR_WRITE_INL_H
#else
#define NORVANE_VECTOR_WRITE_INL_H
#endif

#include <colour/rows/Layouts.h>
#include <colour/rows/VectorMath-inl.h>
#include <colour/rows/VectorOrder-inl.h>

#if NORVANE_HAS_VECTORS
HWY_BEFORE_NAMESPACE();
namespace Norvane { namespace Colour { namespace Rows { namespace HWY_NAMESPACE {

using Bytes = hn::Repartition<std::uint8_t, F>;
using Words = hn::Repartition<std::uint16_t, F>;

/// Two codes in a lane, the first one in the low bits.
template <int bits>
HWY_INLINE VU joined(VU first, VU second)
{
    return hn::Or(first, hn::ShiftLeft<bits>(second));
}

/// Writes kLanes pixels of 4:2:2, given the two codes of each pixel in their order in memory.
HWY_INLINE void writePairs(VU first, VU second, std::uint8_t* row)
{
    const hn::Half<Bytes> bytes;
    const hn::Half<Words> words;
    const auto lanes = hn::BitCast(I(), joined<8>(first, second));
    hn::StoreU(hn::BitCast(bytes, hn::DemoteTo(words, lanes)), bytes, row);
}

HWY_INLINE void writePairs(VU first, VU second, std::uint16_t* row)
{
    hn::StoreU(hn::BitCast(Words(), joined<16>(first, second)), Words(), row);
}

// Writes kLanes pixels of 4:4:4:4, given their four codes in their order in memory.

template <class Order>
HWY_INLINE void writeFour(const FourVectors<VU>& codes, std::uint8_t* row, const Order& order)
{
    const VU lanes = joined<16>(joined<8>(codes.at[0], codes.at[1]), joined<8>(codes.at[2], codes.at[3]));
    hn::StoreU(hn::BitCast(Bytes(), order.restored(lanes)), Bytes(), row);
}

template <class Order>
HWY_INLINE void writeFour(const FourVectors<VU>& codes, std::uint16_t* row, const Order& order)
{
    order.storePairs(joined<16>(codes.at[0], codes.at[1]), joined<16>(codes.at[2], codes.at[3]),
                     reinterpret_cast<std::uint32_t*>(row));
}

template <class Order>
HWY_INLINE void writeFour(const FourVectors<VU>& codes, std::uint32_t* row, const Order& order)
{
    storePixels(codes, row, order);
}

template <class Order>
HWY_INLINE void writeFour(const FourVectors<VF>& values, float* row, const Order& order)
{
    storePixels(values, row, order);
}

/// Packs whole groups of V210, each from twelve codes.
inline void packTens(const std::uint16_t* codes, std::uint32_t* row, std::size_t groups)
{
    using Block = hn::CappedTag<std::uint8_t, 16>;
    const Block block;
    const hn::Repartition<std::uint16_t, Block> codesOf;
    const hn::Repartition<std::uint32_t, Block> wordsOf;
    // The first two words take codes 0 to 5 from a block that starts at code 0, the others codes 6 to 11 from
    // one that starts at code 4. 0x80 gives a zero.
    alignas(16) static constexpr std::uint8_t kFirstTwo[2][16] = {
        {0, 1, 2, 3, 6, 7, 8, 9, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80},
        {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 4, 5, 6, 7, 10, 11, 12, 13}};
    alignas(16) static constexpr std::uint8_t kThird[2][16] = {
        {4, 5, 0x80, 0x80, 10, 11, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80},
        {0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 8, 9, 0x80, 0x80, 14, 15, 0x80, 0x80}};
    const auto firstTwoLow = hn::Load(block, kFirstTwo[0]), firstTwoHigh = hn::Load(block, kFirstTwo[1]);
    const auto thirdLow = hn::Load(block, kThird[0]), thirdHigh = hn::Load(block, kThird[1]);
    for (; groups > 0; --groups, codes += 12, row += 4) {
        const auto low = hn::BitCast(block, hn::LoadU(codesOf, codes));
        const auto high = hn::BitCast(block, hn::LoadU(codesOf, codes + 4));
        const auto firstTwo =
            hn::Or(hn::TableLookupBytesOr0(low, firstTwoLow), hn::TableLookupBytesOr0(high, firstTwoHigh));
        const auto third =
            hn::Or(hn::TableLookupBytesOr0(low, thirdLow), hn::TableLookupBytesOr0(high, thirdHigh));
        const auto pairs = hn::BitCast(wordsOf, firstTwo);
        const auto words = hn::Or(
            hn::Or(hn::And(pairs, hn::Set(wordsOf, 1023u)), hn::ShiftLeft<10>(hn::ShiftRight<16>(pairs))),
            hn::ShiftLeft<20>(hn::BitCast(wordsOf, third)));
        hn::StoreU(words, wordsOf, row);
    }
}

}}}} // namespace Norvane::Colour::Rows::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();
#endif

#endif
