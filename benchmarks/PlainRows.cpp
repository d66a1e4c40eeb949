#include <benchmarks/RowImage.h>

#include <colour/rows/PlainRows.h>

// Compiled with the options of a common release build, -O2, whatever the rest is compiled with.

namespace Norvane { namespace Benchmarks {

using namespace Colour;

namespace {

template <class Layout>
void decode(const void* source, float* alpha, float* red, float* green, float* blue, std::ptrdiff_t stride,
            int count, const InverseCoefficients& coefficients)
{
    Rows::readPixels<Layout>(
        static_cast<const typename Layout::Sample*>(source), {alpha, red, green, blue, stride}, 0,
        static_cast<std::size_t>(Rows::pixelsIn<Layout>(count)), Layout::decode, Rows::ToRgb{coefficients});
}

template <class Layout>
void encode(const float* alpha, const float* red, const float* green, const float* blue,
            std::ptrdiff_t stride, void* destination, int count, const ForwardMatrix& matrix)
{
    Rows::writePixels<Layout>({alpha, red, green, blue, stride},
                              static_cast<typename Layout::Sample*>(destination), 0,
                              static_cast<std::size_t>(count), matrix);
}

template <class Layout>
RowLayout plain(RowLayout layout)
{
    layout.decode = decode<Layout>;
    layout.encode = encode<Layout>;
    return layout;
}

} // namespace

const std::vector<RowLayout>& plainRowLayouts()
{
    const auto& all = rowLayouts();
    static const std::vector<RowLayout> layouts = {
        plain<Rows::CbYCrY8>(all[0]), plain<Rows::CbYCrY8MPEG>(all[1]), plain<Rows::YCbYCr8>(all[2]),
        plain<Rows::AYCbCr8>(all[3]), plain<Rows::CbYCrA8>(all[4]),     plain<Rows::AYCbCrF>(all[5]),
        plain<Rows::V210>(all[6]),    plain<Rows::CbYCrY16>(all[7]),    plain<Rows::AYCbCr16>(all[8]),
        plain<Rows::AYCbCr32>(all[9])};
    return layouts;
}

}} // namespace Norvane::Benchmarks
