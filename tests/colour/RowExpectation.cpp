#include <tests/colour/RowExpectation.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

using namespace Norvane::Colour;

namespace NorvaneTest {

namespace {

const float kInfinity = std::numeric_limits<float>::infinity();

template <typename T>
T wordAt(const void* row, int index)
{
    T word;
    std::memcpy(&word, static_cast<const unsigned char*>(row) + static_cast<std::size_t>(index) * sizeof(T),
                sizeof(T));
    return word;
}

template <typename T>
void setWord(void* row, int index, T word)
{
    std::memcpy(static_cast<unsigned char*>(row) + static_cast<std::size_t>(index) * sizeof(T), &word,
                sizeof(T));
}

float videoLuma8(float code)
{
    return (code - 16) / 219.0f;
}
float videoChroma8(float code)
{
    return (code - 128) / 224.0f;
}
float mpegLuma(float code)
{
    return (code - 16) * 0.0045871558f;
}
float mpegChroma(float code)
{
    return (code - 128) / 255.0f;
}
float luma10(float code)
{
    return (code - 64) / 876.0f;
}
float chroma10(float code)
{
    return (code - 512) / 896.0f;
}
float luma16(float code)
{
    return (code - 4096) / 56064.0f;
}
float chroma16(float code)
{
    return (code - 32768) / 57344.0f;
}
float alpha16(float code)
{
    return code / 65535.0f;
}
float chromaF(float value)
{
    return (value - 0.0627451f) / 0.8784314f - 0.502f;
}
float opaque(float)
{
    return 1;
}

const Coding kNone = {nullptr, 0, 0};
const Coding kLuma8 = {[](float v) { return v * 219.0f + 16.0f + 0.5f; }, 1, 254};
const Coding kLumaLike8 = {[](float v) { return v * 219.0f + 16.0f + 0.5f; }, 0, 255};
const Coding kLumaNoOffset8 = {[](float v) { return v * 219.0f + 0.5f; }, 0, 238};
const Coding kChroma8 = {[](float v) { return v * 224.0f + 128.0f + 0.5f; }, 0, 255};
const Coding kAlpha8 = {[](float v) { return v * 255.0f + 0.5f; }, 0, 255};
const Coding kLumaMPEG = {[](float v) { return v * 218.0f + 16.0f + 0.5f; }, 1, 254};
const Coding kChromaMPEG = {[](float v) { return v * 255.0f + 128.0f + 0.5f; }, 0, 255};
const Coding kCbMPEG = {[](float v) { return v * 255.0f + 127.0f + 0.5f; }, 0, 255};
const Coding kLuma10 = {[](float v) { return v * 876.0f + 64.0f + 0.5f; }, 0, 1023};
const Coding kChroma10 = {[](float v) { return v * 896.0f + 512.0f + 0.5f; }, 0, 1023};
const Coding kLuma16 = {[](float v) { return v * 56064.0f + 4096.0f + 0.5f; }, 0, 65535};
const Coding kChroma16 = {[](float v) { return v * 57344.0f + 32768.0f + 0.5f; }, 0, 65535};
const Coding kAlpha16 = {[](float v) { return v * 65535.0f + 0.5f; }, 0, 65535};
const Coding kLuma8In16 = {[](float v) { return (v * 219.0f + 16.0f) * 255.0f + 0.5f; }, 0, 65535};
const Coding kChroma8In16 = {[](float v) { return (v * 224.0f + 128.0f) * 255.0f + 0.5f; }, 0, 65535};
const Coding kLumaF = {[](float v) { return v / 1.1643835f; }, -kInfinity, kInfinity};
const Coding kChromaF = {[](float v) { return (v + 0.502f) * 0.8784314f + 0.0627451f; }, -kInfinity,
                         kInfinity};
const Coding kAlphaF = {[](float v) { return v; }, -kInfinity, kInfinity};

float dot(const float row[3], const float rgb[3])
{
    return row[0] * rgb[0] + row[1] * rgb[1] + row[2] * rgb[2];
}

} // namespace

// clang-format off
const RowExpectation kExpectations[11] = {
    {"CbYCrY8", kSample8, true, true, -1, 1, 0, 2, opaque, videoLuma8, videoChroma8, videoChroma8,
     255, 256, kNone, kLuma8, kChroma8, kChroma8},
    {"CbYCrY8MPEG", kSample8, true, true, -1, 1, 0, 2, opaque, mpegLuma, mpegChroma, mpegChroma,
     255, 256, kNone, kLumaMPEG, kChromaMPEG, kChromaMPEG},
    {"YCbYCr8", kSample8, true, true, -1, 0, 1, 3, opaque, mpegLuma, [](float code) { return (code - 127) / 255.0f; },
     mpegChroma, 255, 256, kNone, kLumaMPEG, kCbMPEG, kChromaMPEG},
    {"AYCbCr8", kSample8, false, false, 0, 1, 2, 3, [](float code) { return code / 255.0f; },
     [](float code) { return code / 219.0f; }, videoChroma8, videoChroma8, 255, 256, kAlpha8, kLumaNoOffset8, kChroma8, kChroma8},
    {"CbYCrA8", kSample8, false, false, 3, 1, 0, 2, videoLuma8, videoLuma8, videoChroma8, videoChroma8,
     255, 256, kLumaLike8, kLuma8, kChroma8, kChroma8},
    {"AYCbCrF", kSampleFloat, false, false, 0, 1, 2, 3, [](float value) { return value; },
     [](float value) { return value * 1.1643835f; }, chromaF, chromaF, 1, 1, kAlphaF, kLumaF, kChromaF, kChromaF},
    {"V210", kSample10, true, false, -1, 1, 0, 2, opaque, luma10, chroma10, chroma10,
     1023, 1024, kNone, kLuma10, kChroma10, kChroma10},
    {"CbYCrY16", kSample16, true, false, -1, 1, 0, 2, opaque, luma16, chroma16, chroma16,
     65535, 65536, kNone, kLuma16, kChroma16, kChroma16},
    {"AYCbCr16", kSample16, false, false, 0, 1, 2, 3, alpha16, luma16, chroma16, chroma16,
     65535, 65536, kAlpha16, kLuma16, kChroma16, kChroma16},
    {"AYCbCr32", kSample32, false, false, 0, 1, 2, 3, alpha16, luma16, chroma16, chroma16,
     65535, 65536, kAlpha16, kLuma16, kChroma16, kChroma16},
    {"AYCbCr8In16", kSample16, false, false, 0, 1, 2, 3, nullptr, nullptr, nullptr, nullptr,
     0, 0, kAlpha16, kLuma8In16, kChroma8In16, kChroma8In16},
};
// clang-format on

std::size_t RowExpectation::sampleBytes() const
{
    return type == kSample8 ? 1 : type == kSample16 ? 2 : 4;
}

int RowExpectation::samples(int pixels) const
{
    if (pixels == 0)
        return 0;
    int last = index(pixels - 1, y);
    for (const int inGroup : {a, cb, cr})
        last = std::max(last, index(pixels - 1, inGroup));
    return last + 1;
}

std::size_t RowExpectation::bytesRead(int pixels) const
{
    if (type == kSample10)
        return static_cast<std::size_t>((samples(pixels) + 2) / 3) * 4;
    return static_cast<std::size_t>(samples(pixels)) * sampleBytes();
}

int RowExpectation::pixels(int count) const
{
    if (!countsBytes)
        return count;
    const int left = count % 4;
    return count / 4 * 2 + (left >= samples(1) ? 1 : 0);
}

int RowExpectation::index(int pixel, int inGroup) const
{
    if (!pairs)
        return pixel * 4 + inGroup;
    return pixel / 2 * 4 + inGroup + (inGroup == y && pixel % 2 == 1 ? 2 : 0);
}

float RowExpectation::sample(const void* row, int index) const
{
    switch (type) {
    case kSample8:
        return wordAt<std::uint8_t>(row, index);
    case kSample10:
        return static_cast<float>(wordAt<std::uint32_t>(row, index / 3) >> (index % 3 * 10) & 1023);
    case kSample16:
        return wordAt<std::uint16_t>(row, index);
    case kSample32:
        return static_cast<float>(wordAt<std::uint32_t>(row, index));
    case kSampleFloat:
        break;
    }
    return wordAt<float>(row, index);
}

void RowExpectation::setSample(void* row, int index, float sample) const
{
    const std::uint32_t word = type == kSampleFloat ? 0 : static_cast<std::uint32_t>(sample);
    switch (type) {
    case kSample8:
        return setWord(row, index, static_cast<std::uint8_t>(word));
    case kSample10:
        return setWord(row, index / 3, wordAt<std::uint32_t>(row, index / 3) | word << (index % 3 * 10));
    case kSample16:
        return setWord(row, index, static_cast<std::uint16_t>(word));
    case kSample32:
        return setWord(row, index, word);
    case kSampleFloat:
        return setWord(row, index, sample);
    }
}

void RowExpectation::code(void* row, int index, const Coding& coding, float value) const
{
    const float coded = coding.formula(value);
    if (type == kSampleFloat)
        return setSample(row, index, coded);
    // What is no number is not even the lowest code, and becomes it.
    setSample(row, index, coded >= coding.low ? std::min(coded, coding.high) : coding.low);
}

void RowExpectation::decode(const void* row, int pixel, const float c[4], float rgba[4]) const
{
    const float l = luma(sample(row, index(pixel, y)));
    const float b = blue(sample(row, index(pixel, cb)));
    const float r = red(sample(row, index(pixel, cr)));
    rgba[0] = l + c[0] * r;
    rgba[1] = l + c[1] * r + c[2] * b;
    rgba[2] = l + c[3] * b;
    rgba[3] = alpha(a < 0 ? 0 : sample(row, index(pixel, a)));
}

void RowExpectation::unpack(const void* row, int pixel, float ycbcra[4]) const
{
    ycbcra[0] = sample(row, index(pixel, y)) / wholeLuma;
    ycbcra[1] = sample(row, index(pixel, cb)) / wholeChroma;
    ycbcra[2] = sample(row, index(pixel, cr)) / wholeChroma;
    ycbcra[3] = a < 0 ? 1 : sample(row, index(pixel, a)) / wholeLuma;
}

void RowExpectation::encode(const float* rgba, int pixels, const float m[9], void* row) const
{
    for (int pixel = 0; pixel < pixels; ++pixel) {
        const float* const rgb = rgba + 4 * pixel;
        code(row, index(pixel, y), codedLuma, dot(m, rgb));
        if (!pairs)
            code(row, index(pixel, a), codedAlpha, rgb[3]);
        if (pairs && pixel % 2 == 1)
            continue;
        const float* const second = pairs && pixel + 1 < pixels ? rgb + 4 : rgb;
        const auto chroma = [&](const float matrixRow[3]) {
            return pairs ? (dot(matrixRow, rgb) + dot(matrixRow, second)) * 0.5f : dot(matrixRow, rgb);
        };
        code(row, index(pixel, cb), codedCb, chroma(m + 3));
        code(row, index(pixel, cr), codedCr, chroma(m + 6));
    }
}

} // namespace NorvaneTest
