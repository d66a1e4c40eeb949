#include <benchmarks/RowImage.h>

#ifdef NORVANE_BENCHMARK_FFMPEG

extern "C" {
#include <libavcodec/avcodec.h>
#include <libswscale/swscale.h>
}

#include <memory>

namespace Norvane { namespace Benchmarks {

namespace {

/// libswscale for UYVY; for v210, libavcodec before it.
class FFmpegRows
{
public:
    explicit FFmpegRows(const RowImage& image)
        : m_image(image)
        , m_tens(image.layout().sampleType == Colour::kSample10)
        , m_frame(av_frame_alloc())
        , m_packet(av_packet_alloc())
    {
        const int flags = SWS_POINT;
        m_scaler.reset(sws_getContext(image.width(), image.height(),
                                      m_tens ? AV_PIX_FMT_YUV422P10 : AV_PIX_FMT_UYVY422, image.width(),
                                      image.height(), AV_PIX_FMT_GBRPF32, flags, nullptr, nullptr, nullptr));
        const int* const matrix = sws_getCoefficients(SWS_CS_ITU709);
        sws_setColorspaceDetails(m_scaler.get(), matrix, 0, matrix, 1, 0, 1 << 16, 1 << 16);
        if (!m_tens)
            return;
        const AVCodec* const codec = avcodec_find_decoder(AV_CODEC_ID_V210);
        m_decoder.reset(avcodec_alloc_context3(codec));
        m_decoder->width = image.width();
        m_decoder->height = image.height();
        m_decoder->thread_count = 1;
        avcodec_open2(m_decoder.get(), codec, nullptr);
        // A packet without a buffer of its own would be copied.
        const std::size_t size = image.packedStride() * static_cast<std::size_t>(image.height());
        m_packet->buf = av_buffer_create(
            image.packed(0), size, [](void*, std::uint8_t*) {}, nullptr, 0);
        m_packet->data = image.packed(0);
        m_packet->size = static_cast<int>(size);
    }

    void run()
    {
        if (!m_tens) {
            const std::uint8_t* const source[4] = {m_image.packed(0)};
            const int stride[4] = {static_cast<int>(m_image.packedStride())};
            scale(source, stride);
            return;
        }
        avcodec_send_packet(m_decoder.get(), m_packet.get());
        if (avcodec_receive_frame(m_decoder.get(), m_frame.get()) == 0)
            scale(m_frame->data, m_frame->linesize);
    }

private:
    struct Free {
        void operator()(SwsContext* context) const { sws_freeContext(context); }
        void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
        void operator()(AVFrame* frame) const { av_frame_free(&frame); }
        void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    };

    void scale(const std::uint8_t* const source[], const int stride[])
    {
        std::uint8_t* planes[4] = {};
        const int channels[] = {1, 2, 0};
        for (int i = 0; i < 3; ++i)
            planes[i] = reinterpret_cast<std::uint8_t*>(m_image.plane(channels[i], 0));
        const int floats = m_image.width() * static_cast<int>(sizeof(float));
        const int strides[4] = {floats, floats, floats, 0};
        sws_scale(m_scaler.get(), source, stride, 0, m_image.height(), planes, strides);
    }

    const RowImage& m_image;
    bool m_tens;
    std::unique_ptr<SwsContext, Free> m_scaler;
    std::unique_ptr<AVCodecContext, Free> m_decoder;
    std::unique_ptr<AVFrame, Free> m_frame;
    std::unique_ptr<AVPacket, Free> m_packet;
};

} // namespace

Work ffmpegWork(const RowImage& image, bool decoding)
{
    const std::string name = image.layout().name;
    if (!decoding || (name != "CbYCrY8" && name != "V210"))
        return Work();
    av_log_set_level(AV_LOG_ERROR);
    const auto rows = std::make_shared<FFmpegRows>(image);
    Work work;
    work.rows = image.height();
    work.run = [rows] { rows->run(); };
    work.error = [&image] { return image.decodingError(image.height()); };
    // Its arithmetic is that of integers, and it clamps what is outside 0..1.
    work.tolerance = 0.02;
    return work;
}

}} // namespace Norvane::Benchmarks

#else

namespace Norvane { namespace Benchmarks {

Work ffmpegWork(const RowImage&, bool)
{
    return Work();
}

}} // namespace Norvane::Benchmarks

#endif
