#include <benchmarks/RowImage.h>

#ifdef NORVANE_BENCHMARK_OCIO

#include <OpenColorIO/OpenColorIO.h>

#include <memory>

namespace Norvane { namespace Benchmarks {

namespace OCIO = OCIO_NAMESPACE;

namespace {

/// A, Y, Cb and Cr, taken for four channels of a picture, become R, G, B and A through one matrix.
OCIO::ConstCPUProcessorRcPtr makeProcessor()
{
    const float* const c = Colour::inverseCoefficients(Colour::kRec709).c;
    const double luma = 255 / 219.0, chroma = 255 / 224.0, middle = -128 / 224.0;
    const double matrix[16] = {0,
                               luma,
                               0,
                               chroma * c[0], //
                               0,
                               luma,
                               chroma * c[2],
                               chroma * c[1], //
                               0,
                               luma,
                               chroma * c[3],
                               0, //
                               1,
                               0,
                               0,
                               0};
    const double offset[4] = {middle * c[0], middle * (c[1] + c[2]), middle * c[3], 0};
    const OCIO::MatrixTransformRcPtr transform = OCIO::MatrixTransform::Create();
    transform->setMatrix(matrix);
    transform->setOffset(offset);
    const OCIO::ConstProcessorRcPtr processor = OCIO::Config::CreateRaw()->getProcessor(transform);
    return processor->getOptimizedCPUProcessor(OCIO::BIT_DEPTH_UINT8, OCIO::BIT_DEPTH_F32,
                                               OCIO::OPTIMIZATION_DEFAULT);
}

} // namespace

Work ocioWork(const RowImage& image, bool decoding)
{
    if (!decoding || std::string(image.layout().name) != "AYCbCr8")
        return Work();
    const OCIO::ConstCPUProcessorRcPtr processor = makeProcessor();
    const std::ptrdiff_t width = image.width();
    const auto source = std::make_shared<OCIO::PackedImageDesc>(image.packed(0), width, image.height(), 4,
                                                                OCIO::BIT_DEPTH_UINT8, 1, 4, 4 * width);
    const auto destination = std::make_shared<OCIO::PackedImageDesc>(
        image.plane(0, 0), width, image.height(), 4, OCIO::BIT_DEPTH_F32, 4, 16, 16 * width);
    Work work;
    work.rows = image.height();
    work.run = [=] { processor->apply(*source, *destination); };
    work.error = [&image] { return image.decodingError(image.height()); };
    work.tolerance = 1e-6;
    return work;
}

}} // namespace Norvane::Benchmarks

#else

namespace Norvane { namespace Benchmarks {

Work ocioWork(const RowImage&, bool)
{
    return Work();
}

}} // namespace Norvane::Benchmarks

#endif
