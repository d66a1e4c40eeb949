#include <benchmarks/RowImage.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Norvane { namespace Benchmarks {

using namespace Colour;

namespace {

const std::size_t kMostPixels = 3840 * 2160;
// Planes a whole number of pages apart would compete for the same places in the caches.
const std::size_t kBetweenPlanes = 80;

struct alignas(64) Line {
    unsigned char bytes[64];
};

unsigned char* packedMemory()
{
    static std::vector<Line> memory(kMostPixels * 16 / sizeof(Line) + 2);
    return memory[0].bytes;
}

float* floatMemory()
{
    static std::vector<Line> memory((kMostPixels + kBetweenPlanes) * 16 / sizeof(Line) + 2);
    return reinterpret_cast<float*>(memory[0].bytes);
}

} // namespace

// A slow gradient in all directions: libraries that interpolate chroma have to come close to those that do
// not.
RowImage::RowImage(int layout, int width, int height)
    : m_layout(layout)
    , m_width(width)
    , m_height(height)
{
    const std::ptrdiff_t stride = pixelStride();
    for (int y = 0; y < height; ++y) {
        const float down = static_cast<float>(y) / static_cast<float>(height);
        float* const pixels[] = {plane(0, y), plane(1, y), plane(2, y), plane(3, y)};
        for (int x = 0; x < width; ++x) {
            const float across = static_cast<float>(x) / static_cast<float>(width);
            pixels[0][x * stride] = across;
            pixels[1][x * stride] = 1 - across;
            pixels[2][x * stride] = 0.25f + down / 2;
            if (pixels[3])
                pixels[3][x * stride] = 1;
        }
        encodeRow(this->layout(), y);
    }
}

bool RowImage::isInterleaved() const
{
    return std::strchr(layout().name, 'A') != nullptr;
}

std::size_t RowImage::packedStride() const
{
    return layout().bytes(m_width);
}

unsigned char* RowImage::packed(int y) const
{
    return packedMemory() + packedStride() * static_cast<std::size_t>(y);
}

float* RowImage::plane(int channel, int y) const
{
    const std::size_t pixel = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(y);
    const std::size_t size =
        static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height) + kBetweenPlanes;
    const std::size_t number = static_cast<std::size_t>(channel);
    if (isInterleaved())
        return floatMemory() + 4 * pixel + number;
    return channel == 3 ? nullptr : floatMemory() + size * number + pixel;
}

std::size_t RowImage::floatsInPiece() const
{
    return static_cast<std::size_t>(m_width) * (isInterleaved() ? 4 : 1);
}

void RowImage::decodeRow(const RowLayout& functions, int y) const
{
    const int count = functions.countsBytes ? static_cast<int>(packedStride()) : m_width;
    functions.decode(packed(y), plane(3, y), plane(0, y), plane(1, y), plane(2, y), pixelStride(), count,
                     inverseCoefficients(kRec709));
}

void RowImage::encodeRow(const RowLayout& functions, int y) const
{
    functions.encode(plane(3, y), plane(0, y), plane(1, y), plane(2, y), pixelStride(), packed(y), m_width,
                     forwardMatrix(kRec709));
}

double RowImage::decodingError(int rows) const
{
    float error = 0;
    for (const int y : {0, rows / 2, rows - 1}) {
        std::vector<float> made;
        for (int i = 0; i < pieces(); ++i)
            made.insert(made.end(), plane(i, y), plane(i, y) + floatsInPiece());
        decodeRow(plainRowLayouts()[static_cast<std::size_t>(m_layout)], y);
        for (std::size_t i = 0; i < made.size(); ++i) {
            const float expected = plane(static_cast<int>(i / floatsInPiece()), y)[i % floatsInPiece()];
            const float distance = std::fabs(made[i] - expected);
            error = distance <= error ? error : distance;
        }
    }
    return static_cast<double>(error);
}

double RowImage::encodingError(int rows) const
{
    int different = 0;
    for (const int y : {0, rows / 2, rows - 1}) {
        const std::vector<unsigned char> made(packed(y), packed(y) + packedStride());
        encodeRow(plainRowLayouts()[static_cast<std::size_t>(m_layout)], y);
        different += std::equal(made.begin(), made.end(), packed(y)) ? 0 : 1;
    }
    return different;
}

}} // namespace Norvane::Benchmarks
