#include <tests/colour/RowChecks.h>

#include <tests/colour/Floats.h>
#include <tests/colour/RowExpectation.h>

#include <random>

using namespace Norvane::Colour;

namespace NorvaneTest {

namespace {

// Two vectors and one pixel of the layout that takes the most at once: ten-bit pixels, three vectors of 16
// together.
const int kMostPixels = 97;

/// Neither matrix has two coefficients alike, so that none can stand in for another.
const InverseCoefficients kInverse = {{1.5f, -0.4375f, -0.203125f, 1.84765625f}};
const ForwardMatrix kForward = {
    {0.2126f, 0.7152f, 0.0722f, -0.1146f, -0.3854f, 0.5f, 0.501f, -0.4542f, -0.0458f}};
const ForwardMatrix kIdentity = {{1, 0, 0, 0, 1, 0, 0, 0, 1}};

float anyFloat(std::mt19937& random)
{
    const std::uint32_t bits = static_cast<std::uint32_t>(random());
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Of the quantiser of some layout.
float stepValue(std::mt19937& random)
{
    static const float scales[] = {219, 218, 224, 255, 876, 896, 56064, 57344, 65535};
    const float scale = scales[random() % 9];
    const float step = (static_cast<float>(random() % 1000) / 500 - 0.5f) * scale;
    const float value = (std::floor(step) + 0.5f) / scale;
    const float beside[] = {value, value, std::nextafter(value, 9.0f), std::nextafter(value, -9.0f)};
    return beside[random() % 4];
}

void read(std::size_t layout, bool unpack, const void* row, const Planes& p, int count)
{
    const RowLayout& converter = rowLayouts()[layout];
    if (unpack)
        converter.unpack(row, p[3], p[0], p[1], p[2], p.stride(), count);
    else
        converter.decode(row, p[3], p[0], p[1], p[2], p.stride(), count, kInverse);
}

void write(std::size_t layout, const Planes& p, void* row, int count, const ForwardMatrix& matrix)
{
    if (layout < rowLayouts().size())
        rowLayouts()[layout].encode(p[3], p[0], p[1], p[2], p.stride(), row, count, matrix);
    else
        encodeAYCbCr8In16(p[3], p[0], p[1], p[2], p.stride(), static_cast<std::uint16_t*>(row), count,
                          matrix);
}

void expectRead(const RowExpectation& layout, bool unpack, const void* row, int pixel, float values[4])
{
    if (unpack)
        layout.unpack(row, pixel, values);
    else
        layout.decode(row, pixel, kInverse.c, values);
}

/// Fills \a planes, and returns the same pixels as four floats each; without alpha they are opaque.
template <typename Value>
std::vector<float> fill(Planes& planes, int count, Value value)
{
    std::vector<float> pixels;
    for (int pixel = 0; pixel < count; ++pixel) {
        const float alpha = planes[3] ? value() : 1;
        const float rgba[] = {value(), value(), value(), alpha};
        pixels.insert(pixels.end(), rgba, rgba + 4);
        planes.set(pixel, rgba);
    }
    return pixels;
}

/// The samples of \a groups groups.
std::vector<unsigned char> codes(const RowExpectation& layout, int groups)
{
    std::mt19937 random(4);
    std::uniform_real_distribution<float> value(-0.5f, 1.5f);
    std::vector<unsigned char> row(static_cast<std::size_t>(groups) * 16 + 16);
    for (int i = 0; i < groups * 4; ++i) {
        // Odd numbers of steps lead to every code, in another order at every place.
        std::uint32_t code = static_cast<std::uint32_t>(i / 4 * (3 + 2 * (i % 4)) + i % 4 * 1000);
        code %= layout.type == kSample8 ? 256 : layout.type == kSample10 ? 1024 : 65536;
        if (layout.type == kSampleFloat)
            layout.setSample(row.data(), i, i < groups * 2 ? value(random) : anyFloat(random));
        else
            layout.setSample(row.data(), i, static_cast<float>(code));
        const std::uint32_t word = static_cast<std::uint32_t>(random()) >> random() % 16;
        if (layout.type == kSample32 && i >= 65536 * 4)
            std::memcpy(&row[static_cast<std::size_t>(i) * 4], &word, 4);
    }
    return row;
}

QByteArray place(int count, bool atEnd)
{
    return "count " + QByteArray::number(count) + (atEnd ? ", at the end" : ", at the start");
}

bool alike(float a, float b)
{
    return sameBits(a, b) || (std::isnan(a) && std::isnan(b));
}

} // namespace

QByteArray readLengths(std::size_t layout, const Arrangement& arrangement, bool unpack)
{
    if (layout >= rowLayouts().size())
        return QByteArray();
    const RowExpectation& l = kExpectations[layout];
    GuardedMemory source(l.bytesRead(kMostPixels));
    const std::vector<unsigned char> samples = codes(l, 4096);
    // From where a group begins, which is where one of floats and of wide words has some of either kind.
    std::memcpy(source.begin(), samples.data() + samples.size() / 3 / 16 * 16, source.size());
    Planes planes(arrangement, kMostPixels);
    for (const int count : {-1, -1000})
        read(layout, unpack, nullptr, planes, count);
    for (int count = 0; count <= (l.countsBytes ? kMostPixels * 2 : kMostPixels); ++count) {
        const int pixels = l.pixels(count);
        const std::size_t bytes = l.countsBytes ? static_cast<std::size_t>(count) : l.bytesRead(pixels);
        for (const bool atEnd : {false, true}) {
            const void* const row = source.place(bytes, atEnd);
            planes.place(pixels, atEnd);
            for (int pixel = 0; pixel < pixels; ++pixel) {
                float values[4];
                expectRead(l, unpack, row, pixel, values);
                planes.set(pixel, values);
            }
            planes.expectThis();
            read(layout, unpack, row, planes, count);
            if (!planes.isAsExpected())
                return place(count, atEnd);
        }
    }
    return QByteArray();
}

QByteArray writeLengths(std::size_t layout, const Arrangement& arrangement)
{
    const RowExpectation& l = kExpectations[layout];
    const bool isPacked = l.type == kSample10;
    Planes planes(arrangement, kMostPixels);
    GuardedMemory destination(l.bytesRead(kMostPixels + 6));
    std::mt19937 random(20);
    std::uniform_real_distribution<float> component(-0.5f, 1.5f);
    write(layout, planes, nullptr, -1, kForward);
    for (int count = 0; count <= kMostPixels; ++count) {
        const std::size_t bytes = l.bytesRead(isPacked ? (count + 5) / 6 * 6 : count);
        for (const bool atEnd : {false, true}) {
            planes.place(count, atEnd);
            const std::vector<float> pixels = fill(planes, count, [&] { return component(random); });
            unsigned char* const row = destination.place(bytes, atEnd);
            destination.fill();
            if (isPacked)
                std::memset(row, 0, bytes);
            l.encode(pixels.data(), count, kForward.m, row);
            const std::vector<unsigned char> expected(destination.begin(), destination.end());
            destination.fill();
            write(layout, planes, row, count, kForward);
            if (!std::equal(expected.begin(), expected.end(), destination.begin()))
                return place(count, atEnd);
        }
    }
    return QByteArray();
}

QByteArray readCodes(std::size_t layout, const Arrangement& arrangement, bool unpack)
{
    if (layout >= rowLayouts().size())
        return QByteArray();
    const RowExpectation& l = kExpectations[layout];
    const int groups = l.type == kSample8 || l.type == kSample10 ? 4096 : 65536 + 4096;
    const int pixels = groups * (l.pairs ? 2 : 1);
    const std::vector<unsigned char> row = codes(l, groups);
    Planes planes(arrangement, pixels);
    planes.place(pixels, false);
    read(layout, unpack, row.data(), planes, l.countsBytes ? groups * 4 : pixels);
    for (int pixel = 0; pixel < pixels; ++pixel) {
        float expected[4];
        expectRead(l, unpack, row.data(), pixel, expected);
        for (int channel = 0; channel < (planes[3] ? 4 : 3); ++channel) {
            if (!alike(planes.at(channel, pixel), expected[channel]))
                return "pixel " + QByteArray::number(pixel);
        }
    }
    return QByteArray();
}

QByteArray writeValues(std::size_t layout, const Arrangement& arrangement)
{
    const RowExpectation& l = kExpectations[layout];
    const int pixels = 12000;
    std::mt19937 random(6);
    Planes planes(arrangement, pixels);
    planes.place(pixels, false);
    const std::vector<float> values =
        fill(planes, pixels, [&] { return random() % 8 ? stepValue(random) : anyFloat(random); });
    for (const ForwardMatrix& matrix : {forwardMatrix(kRec709), forwardMatrix(kMoskLegacy), kIdentity}) {
        std::vector<unsigned char> row(pixels * 16), expected(row.size());
        l.encode(values.data(), pixels, matrix.m, expected.data());
        write(layout, planes, row.data(), pixels, matrix);
        for (int i = 0; i < l.samples(pixels); ++i) {
            if (!alike(l.sample(row.data(), i), l.sample(expected.data(), i)))
                return "sample " + QByteArray::number(i);
        }
    }
    return QByteArray();
}

} // namespace NorvaneTest
