#include <colour/rows/VectorRows.h>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "colour/rows/DecodeVectors.cpp"
#include <colour/rows/VectorTargets.h>
#include <hwy/foreach_target.h>

#include <colour/rows/VectorMath-inl.h>
#include <colour/rows/VectorRead-inl.h>

HWY_BEFORE_NAMESPACE();
namespace Norvane { namespace Colour { namespace Rows { namespace HWY_NAMESPACE {

#if NORVANE_HAS_VECTORS

struct VectorPixels {
    VF x, y, z;
};

struct VectorToRgb {
    explicit VectorToRgb(const InverseCoefficients& k)
        : crToRed(all(k.c[0]))
        , crToGreen(all(k.c[1]))
        , cbToGreen(all(k.c[2]))
        , cbToBlue(all(k.c[3]))
    {
    }
    HWY_INLINE VectorPixels operator()(VF y, VF cb, VF cr) const
    {
        return {hn::Add(y, hn::Mul(crToRed, cr)),
                hn::Add(hn::Add(y, hn::Mul(crToGreen, cr)), hn::Mul(cbToGreen, cb)),
                hn::Add(y, hn::Mul(cbToBlue, cb))};
    }
    VF crToRed, crToGreen, cbToGreen, cbToBlue;
};

struct VectorUnchanged {
    HWY_INLINE VectorPixels operator()(VF y, VF cb, VF cr) const { return {y, cb, cr}; }
};

struct Decoding {
    template <class Layout>
    static constexpr auto kCoding = split(Layout::decode);
};

struct Unpacking {
    template <class Layout>
    static constexpr auto kCoding = split(Layout::unpack);
};

/// Three planes, or four.
struct PlanarStore {
    using Order = MemoryOrder;
    explicit PlanarStore(const Planes& to)
        : planes(to)
    {
    }
    HWY_INLINE void operator()(std::size_t pixel, const VectorPixels& pixels, VF alpha) const
    {
        prefetchAfter(planes.x + pixel);
        prefetchAfter(planes.y + pixel);
        prefetchAfter(planes.z + pixel);
        hn::StoreU(pixels.x, F(), planes.x + pixel);
        hn::StoreU(pixels.y, F(), planes.y + pixel);
        hn::StoreU(pixels.z, F(), planes.z + pixel);
        if (planes.alpha)
            hn::StoreU(alpha, F(), planes.alpha + pixel);
    }
    const Planes planes;
    const Order order;
};

struct InterleavedStore {
    using Order = BlockOrder;
    explicit InterleavedStore(const Planes& to)
        : first(to.x)
    {
    }
    HWY_INLINE void operator()(std::size_t pixel, const VectorPixels& pixels, VF alpha) const
    {
        for (std::size_t i = 0; i < 4; ++i)
            prefetchAfter(first + 4 * pixel + i * kLanes);
        storePixels(FourVectors<VF>{{pixels.x, pixels.y, pixels.z, alpha}}, first + 4 * pixel, order);
    }
    float* const first;
    const Order order;
};

template <class Layout, class Purpose, class Transform, class Store>
std::size_t readPairs(const typename Layout::Sample* row, const Store& store, std::size_t pixels,
                      const Transform& transform)
{
    const PairReader<Layout> reader;
    constexpr std::size_t kStride = reader.kSteps * kLanes;
    constexpr auto coding = Purpose::template kCoding<Layout>;
    const auto luma = vectorOf(coding.luma);
    const auto chroma = vectorOf(coding.cb, coding.cr);
    std::size_t pixel = 0;
    for (; pixels - pixel >= kStride; row += bytesOf<Layout>(kStride) / sizeof *row) {
        for (std::size_t step = 0; step < reader.kSteps; ++step, pixel += kLanes) {
            const PairCodes codes = reader.read(row, step);
            const VF c = chroma.decoded(toFloat(codes.chroma));
            const VF y = luma.decoded(toFloat(codes.luma));
            const VectorPixels result =
                transform(store.order.arranged(y), store.order.arrangedEven(c), store.order.arrangedOdd(c));
            store(pixel, result, all(1.0f));
        }
    }
    return pixel;
}

template <class Layout, class Purpose, class Transform, class Store>
std::size_t readSingles(const typename Layout::Sample* row, const Store& store, std::size_t pixels,
                        const Transform& transform)
{
    constexpr auto coding = Purpose::template kCoding<Layout>;
    const auto luma = vectorOf(coding.luma);
    const auto cb = vectorOf(coding.cb);
    const auto cr = vectorOf(coding.cr);
    const auto alpha = vectorOf(coding.alpha);
    std::size_t pixel = 0;
    for (; pixels - pixel >= kLanes; pixel += kLanes) {
        const auto codes = readFour(row + 4 * pixel, store.order);
        if (!areExact(codes, row))
            break;
        const VectorPixels result =
            transform(luma.decoded(toFloat(codes.at[Layout::luma])),
                      cb.decoded(toFloat(codes.at[Layout::cb])), cr.decoded(toFloat(codes.at[Layout::cr])));
        store(pixel, result, alpha.decoded(toFloat(codes.at[Layout::alpha])));
    }
    return pixel;
}

template <class Layout, class Purpose, class Transform, class Store>
std::size_t readPixels(const typename Layout::Sample* row, const Store& store, std::size_t pixels,
                       const Transform& transform)
{
    if constexpr (Layout::hasAlpha)
        return readSingles<Layout, Purpose>(row, store, pixels, transform);
    else
        return readPairs<Layout, Purpose>(row, store, pixels, transform);
}

template <class Layout, class Purpose, class Transform>
std::size_t readRow(const typename Layout::Sample* row, const Planes& planes, std::size_t pixels,
                    const Transform& transform)
{
    if (planes.isPlanar())
        return readPixels<Layout, Purpose>(row, PlanarStore(planes), pixels, transform);
    if (planes.isInterleaved())
        return readPixels<Layout, Purpose>(row, InterleavedStore(planes), pixels, transform);
    return 0;
}

template <class Layout>
std::size_t decodeRow(const typename Layout::Sample* row, const Planes& planes, std::size_t pixels,
                      const InverseCoefficients& coefficients)
{
    return readRow<Layout, Decoding>(row, planes, pixels, VectorToRgb(coefficients));
}

template <class Layout>
std::size_t unpackRow(const typename Layout::Sample* row, const Planes& planes, std::size_t pixels)
{
    return readRow<Layout, Unpacking>(row, planes, pixels, VectorUnchanged());
}

template <class... Layouts>
constexpr Table<DecodeFunctions, Layouts...> makeTable(const Table<DecodeFunctions, Layouts...>*)
{
    return {DecodeFunctions<Layouts>{decodeRow<Layouts>, unpackRow<Layouts>}...};
}

const DecodeTable* targetDecodeTable()
{
    static constexpr DecodeTable kTable = makeTable(static_cast<const DecodeTable*>(nullptr));
    return &kTable;
}

#else

const DecodeTable* targetDecodeTable()
{
    return nullptr;
}

#endif

}}}} // namespace Norvane::Colour::Rows::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Norvane { namespace Colour { namespace Rows {

HWY_EXPORT(targetDecodeTable);

const DecodeTable* decodeTable()
{
    return HWY_DYNAMIC_DISPATCH(targetDecodeTable)();
}

}}} // namespace Norvane::Colour::Rows
#endif
