#include <colour/YCbCrRows.h>

#include <colour/rows/Layouts.h>

namespace Norvane { namespace Colour {

namespace {

template <class Sample>
using Decode = void (*)(const Sample*, float*, float*, float*, float*, std::ptrdiff_t, int,
                        const InverseCoefficients&);
template <class Sample>
using Unpack = void (*)(const Sample*, float*, float*, float*, float*, std::ptrdiff_t, int);
template <class Sample>
using Encode = void (*)(const float*, const float*, const float*, const float*, std::ptrdiff_t, Sample*, int,
                        const ForwardMatrix&);

template <class Sample, Decode<Sample> function>
void decodeAny(const void* source, float* alpha, float* red, float* green, float* blue, std::ptrdiff_t stride,
               int count, const InverseCoefficients& coefficients)
{
    function(static_cast<const Sample*>(source), alpha, red, green, blue, stride, count, coefficients);
}

template <class Sample, Unpack<Sample> function>
void unpackAny(const void* source, float* alpha, float* y, float* cb, float* cr, std::ptrdiff_t stride,
               int count)
{
    function(static_cast<const Sample*>(source), alpha, y, cb, cr, stride, count);
}

template <class Sample, Encode<Sample> function>
void encodeAny(const float* alpha, const float* red, const float* green, const float* blue,
               std::ptrdiff_t stride, void* destination, int count, const ForwardMatrix& matrix)
{
    function(alpha, red, green, blue, stride, static_cast<Sample*>(destination), count, matrix);
}

template <class Layout, Decode<typename Layout::Sample> decode, Unpack<typename Layout::Sample> unpack,
          Encode<typename Layout::Sample> encode>
constexpr RowLayout describe(const char* name, SampleType type)
{
    using Sample = typename Layout::Sample;
    return {name,
            type,
            Rows::kCountsBytes<Layout>,
            Rows::bytesOf<Layout>,
            decodeAny<Sample, decode>,
            unpackAny<Sample, unpack>,
            encodeAny<Sample, encode>};
}

#define NORVANE_DESCRIBE(LAYOUT, TYPE)                                                                       \
    describe<Rows::LAYOUT, decode##LAYOUT, unpack##LAYOUT, encode##LAYOUT>(#LAYOUT, TYPE)

const std::array<RowLayout, 10> kLayouts = {{
    NORVANE_DESCRIBE(CbYCrY8, kSample8),
    NORVANE_DESCRIBE(CbYCrY8MPEG, kSample8),
    NORVANE_DESCRIBE(YCbYCr8, kSample8),
    NORVANE_DESCRIBE(AYCbCr8, kSample8),
    NORVANE_DESCRIBE(CbYCrA8, kSample8),
    NORVANE_DESCRIBE(AYCbCrF, kSampleFloat),
    NORVANE_DESCRIBE(V210, kSample10),
    NORVANE_DESCRIBE(CbYCrY16, kSample16),
    NORVANE_DESCRIBE(AYCbCr16, kSample16),
    NORVANE_DESCRIBE(AYCbCr32, kSample32),
}};

} // namespace

const std::array<RowLayout, 10>& rowLayouts()
{
    return kLayouts;
}

}} // namespace Norvane::Colour
