#include <benchmarks/RowImage.h>

#ifdef NORVANE_BENCHMARK_ZIMG

#include <zimg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace Norvane { namespace Benchmarks {

namespace {

/// zimg knows planes only. Those of samples are its own; what it would cost to pack and unpack them is left
/// out.
class ZimgRows
{
public:
    ZimgRows(const RowImage& image, bool decoding)
        : m_image(image)
        , m_decoding(decoding)
        , m_tens(image.layout().sampleType == Colour::kSample10)
    {
        zimg_image_format samples = format(), floats = format();
        samples.pixel_type = m_tens ? ZIMG_PIXEL_WORD : ZIMG_PIXEL_BYTE;
        samples.depth = m_tens ? 10 : 8;
        samples.subsample_w = 1;
        samples.color_family = ZIMG_COLOR_YUV;
        samples.matrix_coefficients = ZIMG_MATRIX_BT709;
        samples.pixel_range = ZIMG_RANGE_LIMITED;
        samples.chroma_location = ZIMG_CHROMA_CENTER;
        floats.pixel_type = ZIMG_PIXEL_FLOAT;
        floats.color_family = ZIMG_COLOR_RGB;
        floats.matrix_coefficients = ZIMG_MATRIX_RGB;
        zimg_graph_builder_params parameters;
        zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
        // Twice the same chroma one way; the other way, pixels are averaged as they are in the rows.
        parameters.resample_filter_uv = decoding ? ZIMG_RESIZE_POINT : ZIMG_RESIZE_BILINEAR;
        m_graph.reset(decoding ? zimg_filter_graph_build(&samples, &floats, &parameters)
                               : zimg_filter_graph_build(&floats, &samples, &parameters));
        std::size_t scratch = 0;
        if (m_graph)
            zimg_filter_graph_get_tmp_size(m_graph.get(), &scratch);
        m_scratch.reset(allocate(scratch));
        for (int i = 0; i < 3; ++i)
            m_samples[i].reset(allocate(static_cast<std::size_t>(sampleStride(i) * image.height())));
        splitSamples(true);
    }

    void run()
    {
        zimg_image_buffer_const from = {ZIMG_API_VERSION, {}};
        zimg_image_buffer to = {ZIMG_API_VERSION, {}};
        const std::ptrdiff_t floatStride = m_image.width() * static_cast<std::ptrdiff_t>(sizeof(float));
        for (int i = 0; i < 3; ++i) {
            void* const samples = m_samples[i].get();
            void* const floats = m_image.plane(i, 0);
            from.plane[i] = {m_decoding ? samples : floats, m_decoding ? sampleStride(i) : floatStride,
                             ZIMG_BUFFER_MAX};
            to.plane[i] = {m_decoding ? floats : samples, m_decoding ? floatStride : sampleStride(i),
                           ZIMG_BUFFER_MAX};
        }
        zimg_filter_graph_process(m_graph.get(), &from, &to, m_scratch.get(), nullptr, nullptr, nullptr,
                                  nullptr);
    }

    /// Of encoding: the greatest difference between samples.
    double error() { return splitSamples(false); }

private:
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
        void operator()(zimg_filter_graph* graph) const { zimg_filter_graph_free(graph); }
    };

    static unsigned char* allocate(std::size_t size)
    {
        return static_cast<unsigned char*>(std::aligned_alloc(64, (size + 64) / 64 * 64));
    }

    zimg_image_format format() const
    {
        zimg_image_format result;
        zimg_image_format_default(&result, ZIMG_API_VERSION);
        result.width = static_cast<unsigned>(m_image.width());
        result.height = static_cast<unsigned>(m_image.height());
        return result;
    }

    std::ptrdiff_t sampleStride(int i) const { return m_image.width() * (m_tens ? 2 : 1) / (i == 0 ? 1 : 2); }

    /// Copies the packed samples to the planes or compares them with those.
    int splitSamples(bool copy)
    {
        int difference = 0;
        for (int y = 0; y < m_image.height(); ++y) {
            for (int i = 0; i < m_image.width() * 2; ++i) {
                const int plane = i % 2 == 1 ? 0 : i % 4 == 0 ? 1 : 2;
                const int code = codeAt(y, i);
                unsigned char* const row = m_samples[plane].get() + sampleStride(plane) * y;
                const int x = plane == 0 ? i / 2 : i / 4;
                if (copy && m_tens)
                    reinterpret_cast<std::uint16_t*>(row)[x] = static_cast<std::uint16_t>(code);
                else if (copy)
                    row[x] = static_cast<unsigned char>(code);
                const int made = m_tens ? reinterpret_cast<std::uint16_t*>(row)[x] : row[x];
                difference = std::max(difference, std::abs(made - code));
            }
        }
        return difference;
    }

    int codeAt(int y, int i) const
    {
        if (!m_tens)
            return m_image.packed(y)[i];
        std::uint32_t word;
        std::memcpy(&word, m_image.packed(y) + i / 3 * 4, 4);
        return static_cast<int>(word >> (i % 3 * 10) & 1023);
    }

    const RowImage& m_image;
    bool m_decoding;
    bool m_tens;
    std::unique_ptr<zimg_filter_graph, Free> m_graph;
    std::unique_ptr<unsigned char, Free> m_scratch;
    std::unique_ptr<unsigned char, Free> m_samples[3];
};

} // namespace

Work zimgWork(const RowImage& image, bool decoding)
{
    const std::string name = image.layout().name;
    if (name != "CbYCrY8" && name != "V210")
        return Work();
    const auto rows = std::make_shared<ZimgRows>(image, decoding);
    Work work;
    work.rows = image.height();
    work.run = [rows] { rows->run(); };
    if (decoding)
        work.error = [&image] { return image.decodingError(image.height()); };
    else
        work.error = [rows] { return rows->error(); };
    // Another rounding, and its filter for chroma sees two pixels more.
    work.tolerance = decoding ? 1e-6 : 1;
    return work;
}

}} // namespace Norvane::Benchmarks

#else

namespace Norvane { namespace Benchmarks {

Work zimgWork(const RowImage&, bool)
{
    return Work();
}

}} // namespace Norvane::Benchmarks

#endif
