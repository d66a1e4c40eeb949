#include <colour/rows/VectorRows.h>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "colour/rows/EncodeVectors.cpp"
#include <colour/rows/VectorTargets.h>
#include <hwy/foreach_target.h>

#include <colour/rows/VectorMath-inl.h>
#include <colour/rows/VectorWrite-inl.h>

HWY_BEFORE_NAMESPACE();
namespace Norvane { namespace Colour { namespace Rows { namespace HWY_NAMESPACE {

#if NORVANE_HAS_VECTORS

struct VectorColour {
    VF r, g, b, a;
};

/// Planes; without one for alpha it is 1.
struct PlanarLoad {
    using Order = MemoryOrder;
    explicit PlanarLoad(const ConstPlanes& from)
        : planes(from)
    {
    }
    HWY_INLINE VectorColour operator()(std::size_t pixel) const
    {
        prefetchAfter(planes.x + pixel);
        prefetchAfter(planes.y + pixel);
        prefetchAfter(planes.z + pixel);
        return {hn::LoadU(F(), planes.x + pixel), hn::LoadU(F(), planes.y + pixel),
                hn::LoadU(F(), planes.z + pixel),
                planes.alpha ? hn::LoadU(F(), planes.alpha + pixel) : all(1.0f)};
    }
    const ConstPlanes planes;
    const Order order;
};

struct InterleavedLoad {
    using Order = BlockOrder;
    explicit InterleavedLoad(const ConstPlanes& from)
        : first(from.x)
    {
    }
    HWY_INLINE VectorColour operator()(std::size_t pixel) const
    {
        for (std::size_t i = 0; i < 4; ++i)
            prefetchAfter(first + 4 * pixel + i * kLanes);
        const FourVectors<VF> v = loadPixels(first + 4 * pixel, order);
        return {v.at[0], v.at[1], v.at[2], v.at[3]};
    }
    const float* const first;
    const Order order;
};

/// What another one loads, from a later pixel on.
template <class Load>
struct Ahead {
    explicit Ahead(const Load& other, std::size_t pixel)
        : load(other)
        , first(pixel)
        , order(other.order)
    {
    }
    HWY_INLINE VectorColour operator()(std::size_t pixel) const { return load(first + pixel); }
    const Load& load;
    const std::size_t first;
    const typename Load::Order& order;
};

struct VectorYCbCr {
    VF y, cb, cr;
};

struct VectorToYCbCr {
    explicit VectorToYCbCr(const ForwardMatrix& k)
    {
        for (int i = 0; i < 9; ++i)
            m[i] = all(k.m[i]);
    }
    HWY_INLINE VectorYCbCr operator()(const VectorColour& c) const
    {
        return {row(0, c), row(3, c), row(6, c)};
    }
    HWY_INLINE VF row(int first, const VectorColour& c) const
    {
        return hn::Add(hn::Add(hn::Mul(m[first], c.r), hn::Mul(m[first + 1], c.g)),
                       hn::Mul(m[first + 2], c.b));
    }
    VF m[9];
};

template <class Order>
HWY_INLINE VectorYCbCr inMemoryOrder(const VectorYCbCr& c, const Order& order)
{
    return {order.restored(c.y), order.restored(c.cb), order.restored(c.cr)};
}

/// The means of the pairs, Cb in the even lanes and Cr in the odd lanes.
HWY_INLINE VF meanChroma(const VectorYCbCr& c)
{
    const VF first = alternate(c.cb, hn::DupEven(c.cr));
    const VF second = alternate(hn::DupOdd(c.cb), c.cr);
    return hn::Mul(hn::Add(first, second), all(0.5f));
}

template <class Layout, class Load>
std::size_t writePairRow(const Load& load, typename Layout::Sample* row, std::size_t pixels,
                         const ForwardMatrix& matrix)
{
    const VectorToYCbCr toYCbCr(matrix);
    const auto luma = vectorOf(Layout::encode.luma);
    const auto chroma = vectorOf(Layout::encode.cb, Layout::encode.cr);
    std::size_t pixel = 0;
    for (; pixels - pixel >= kLanes; pixel += kLanes) {
        const VectorYCbCr c = inMemoryOrder(toYCbCr(load(pixel)), load.order);
        const VU y = luma.coded(c.y);
        const VU cbcr = chroma.coded(meanChroma(c));
        if (Layout::luma == 0)
            writePairs(y, cbcr, row + 2 * pixel);
        else
            writePairs(cbcr, y, row + 2 * pixel);
    }
    return pixel;
}

/// The codes of V210, one in an element.
struct UnpackedV210 : CbYCrYOrder, Array<std::uint16_t>, Video10 {
};

template <class Load>
std::size_t writePackedRow(const Load& load, std::uint32_t* row, std::size_t pixels,
                           const ForwardMatrix& matrix)
{
    // As many pixels as stay in the first cache, in whole groups and whole vectors of any size.
    constexpr std::size_t kPart = 768;
    static_assert(kPart % 6 == 0 && kPart % kLanes == 0, "");
    alignas(64) std::uint16_t codes[2 * kPart];
    std::size_t pixel = 0;
    while (pixels - pixel >= 6) {
        const std::size_t part = std::min(kPart, pixels - pixel);
        const std::size_t groups =
            writePairRow<UnpackedV210>(Ahead<Load>(load, pixel), codes, part, matrix) / 6;
        if (groups == 0)
            break;
        packTens(codes, row + bytesOf<V210>(int(pixel)) / sizeof *row, groups);
        pixel += 6 * groups;
    }
    return pixel;
}

template <class Layout, class Load>
std::size_t writeSingleRow(const Load& load, typename Layout::Sample* row, std::size_t pixels,
                           const ForwardMatrix& matrix)
{
    const VectorToYCbCr toYCbCr(matrix);
    const auto luma = vectorOf(Layout::encode.luma);
    const auto cb = vectorOf(Layout::encode.cb);
    const auto cr = vectorOf(Layout::encode.cr);
    const auto alpha = vectorOf(Layout::encode.alpha);
    std::size_t pixel = 0;
    for (; pixels - pixel >= kLanes; pixel += kLanes) {
        const VectorColour colour = load(pixel);
        const VectorYCbCr c = toYCbCr(colour);
        FourVectors<decltype(luma.coded(c.y))> codes;
        codes.at[Layout::luma] = luma.coded(c.y);
        codes.at[Layout::cb] = cb.coded(c.cb);
        codes.at[Layout::cr] = cr.coded(c.cr);
        codes.at[Layout::alpha] = alpha.coded(colour.a);
        writeFour(codes, row + 4 * pixel, load.order);
    }
    return pixel;
}

template <class Layout, class Load>
std::size_t writeRow(const Load& load, typename Layout::Sample* row, std::size_t pixels,
                     const ForwardMatrix& matrix)
{
    if constexpr (kIsPacked<Layout>)
        return writePackedRow(load, row, pixels, matrix);
    else if constexpr (Layout::hasAlpha)
        return writeSingleRow<Layout>(load, row, pixels, matrix);
    else
        return writePairRow<Layout>(load, row, pixels, matrix);
}

template <class Layout>
std::size_t encodeRow(const ConstPlanes& planes, typename Layout::Sample* row, std::size_t pixels,
                      const ForwardMatrix& matrix)
{
    if (planes.isPlanar())
        return writeRow<Layout>(PlanarLoad(planes), row, pixels, matrix);
    if (planes.isInterleaved())
        return writeRow<Layout>(InterleavedLoad(planes), row, pixels, matrix);
    return 0;
}

template <class... Layouts>
constexpr Table<EncodeFunctions, Layouts...> makeTable(const Table<EncodeFunctions, Layouts...>*)
{
    return {EncodeFunctions<Layouts>{encodeRow<Layouts>}...};
}

const EncodeTable* targetEncodeTable()
{
    static constexpr EncodeTable kTable = makeTable(static_cast<const EncodeTable*>(nullptr));
    return &kTable;
}

#else

const EncodeTable* targetEncodeTable()
{
    return nullptr;
}

#endif

}}}} // namespace Norvane::Colour::Rows::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Norvane { namespace Colour { namespace Rows {

HWY_EXPORT(targetEncodeTable);

const EncodeTable* encodeTable()
{
    return HWY_DYNAMIC_DISPATCH(targetEncodeTable)();
}

}}} // namespace Norvane::Colour::Rows
#endif
