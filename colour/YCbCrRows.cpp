#include <colour/YCbCrRows.h>

#include <colour/rows/PlainRows.h>
#include <colour/rows/VectorRows.h>

namespace Norvane { namespace Colour {

namespace {

using namespace Rows;

template <class Layout>
using SampleOf = typename Layout::Sample;

template <class Layout>
void decode(const SampleOf<Layout>* source, const Planes& planes, int count,
            const InverseCoefficients& coefficients)
{
    const int pixels = pixelsIn<Layout>(count);
    if (pixels <= 0)
        return;
    std::size_t done = 0;
    if (const DecodeFunctions<Layout>* const vectors = decodeTable())
        done = vectors->decode(source, planes, pixels, coefficients);
    readPixels<Layout>(source, planes, done, pixels, Layout::decode, ToRgb{coefficients});
}

template <class Layout>
void unpack(const SampleOf<Layout>* source, const Planes& planes, int count)
{
    const int pixels = pixelsIn<Layout>(count);
    if (pixels <= 0)
        return;
    std::size_t done = 0;
    if (const DecodeFunctions<Layout>* const vectors = decodeTable())
        done = vectors->unpack(source, planes, pixels);
    readPixels<Layout>(source, planes, done, pixels, Layout::unpack, Unchanged{});
}

template <class Layout>
void encode(const ConstPlanes& planes, SampleOf<Layout>* destination, int count, const ForwardMatrix& matrix)
{
    if (count <= 0)
        return;
    std::size_t done = 0;
    if (const EncodeFunctions<Layout>* const vectors = encodeTable())
        done = vectors->encode(planes, destination, count, matrix);
    writePixels<Layout>(planes, destination, done, count, matrix);
}

} // namespace

#define NORVANE_DEFINE_DECODER(LAYOUT, MATRIX)                                                               \
    void decode##LAYOUT(const SampleOf<Rows::LAYOUT>* source, float* alpha, float* red, float* green,        \
                        float* blue, std::ptrdiff_t stride, int count,                                       \
                        const InverseCoefficients& coefficients)                                             \
    {                                                                                                        \
        decode<Rows::LAYOUT>(source, {alpha, red, green, blue, stride}, count, coefficients);                \
    }                                                                                                        \
    void decode##LAYOUT(const SampleOf<Rows::LAYOUT>* source, float* alpha, float* red, float* green,        \
                        float* blue, std::ptrdiff_t stride, int count)                                       \
    {                                                                                                        \
        decode##LAYOUT(source, alpha, red, green, blue, stride, count, inverseCoefficients(MATRIX));         \
    }                                                                                                        \
    void unpack##LAYOUT(const SampleOf<Rows::LAYOUT>* source, float* alpha, float* y, float* cb, float* cr,  \
                        std::ptrdiff_t stride, int count)                                                    \
    {                                                                                                        \
        unpack<Rows::LAYOUT>(source, {alpha, y, cb, cr, stride}, count);                                     \
    }

#define NORVANE_DEFINE_ENCODER(LAYOUT)                                                                       \
    void encode##LAYOUT(const float* alpha, const float* red, const float* green, const float* blue,         \
                        std::ptrdiff_t stride, SampleOf<Rows::LAYOUT>* destination, int count,               \
                        const ForwardMatrix& matrix)                                                         \
    {                                                                                                        \
        encode<Rows::LAYOUT>({alpha, red, green, blue, stride}, destination, count, matrix);                 \
    }                                                                                                        \
    void encode##LAYOUT(const float* alpha, const float* red, const float* green, const float* blue,         \
                        std::ptrdiff_t stride, SampleOf<Rows::LAYOUT>* destination, int count)               \
    {                                                                                                        \
        encode##LAYOUT(alpha, red, green, blue, stride, destination, count, forwardMatrix(kRec601));         \
    }

NORVANE_DEFINE_DECODER(CbYCrY8, kMoskLegacy)
NORVANE_DEFINE_DECODER(CbYCrY8MPEG, kMoskLegacyMPEG)
NORVANE_DEFINE_DECODER(YCbYCr8, kMoskLegacy)
NORVANE_DEFINE_DECODER(AYCbCr8, kMoskLegacy)
NORVANE_DEFINE_DECODER(CbYCrA8, kMoskLegacy)
NORVANE_DEFINE_DECODER(AYCbCrF, kMoskLegacy)
NORVANE_DEFINE_DECODER(V210, kMoskLegacy)
NORVANE_DEFINE_DECODER(CbYCrY16, kMoskLegacy)
NORVANE_DEFINE_DECODER(AYCbCr16, kMoskLegacy)
NORVANE_DEFINE_DECODER(AYCbCr32, kMoskLegacy)

NORVANE_DEFINE_ENCODER(CbYCrY8)
NORVANE_DEFINE_ENCODER(CbYCrY8MPEG)
NORVANE_DEFINE_ENCODER(YCbYCr8)
NORVANE_DEFINE_ENCODER(AYCbCr8)
NORVANE_DEFINE_ENCODER(CbYCrA8)
NORVANE_DEFINE_ENCODER(AYCbCrF)
NORVANE_DEFINE_ENCODER(V210)
NORVANE_DEFINE_ENCODER(CbYCrY16)
NORVANE_DEFINE_ENCODER(AYCbCr16)
NORVANE_DEFINE_ENCODER(AYCbCr32)
NORVANE_DEFINE_ENCODER(AYCbCr8In16)

}} // namespace Norvane::Colour
