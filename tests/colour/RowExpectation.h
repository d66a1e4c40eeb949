#pragma once

#include <colour/YCbCrRows.h>

#include <cstddef>

namespace NorvaneTest {

/// How a value becomes a sample: by the formula, kept to low..high and, unless samples are floats, truncated.
struct Coding {
    float (*formula)(float value);
    float low;
    float high;
};

/// A layout told a second time, in the plainest way: a sample is found by its place in a group of four, every
/// formula is written out and applied to one pixel at a time.
struct RowExpectation {
    const char* name;
    Norvane::Colour::SampleType type;
    /// Two pixels share a group: there is no alpha, and the second luma lies two samples behind the first.
    bool pairs;
    bool countsBytes;
    int a, y, cb, cr;
    float (*alpha)(float code);
    float (*luma)(float code);
    float (*blue)(float code);
    float (*red)(float code);
    /// The divisors of unpacking; that of luma is alpha's too.
    float wholeLuma, wholeChroma;
    Coding codedAlpha, codedLuma, codedCb, codedCr;

    std::size_t sampleBytes() const;
    /// The samples of a row of \a pixels, up to and including the last that one of them needs.
    int samples(int pixels) const;
    /// The bytes up to the end of the word that has the last of these samples.
    std::size_t bytesRead(int pixels) const;
    /// The pixels that have all their samples in a row of \a count, in the unit in which the decoder counts.
    int pixels(int count) const;
    /// The place of a pixel's sample in the row; \a inGroup is that of a, y, cb or cr.
    int index(int pixel, int inGroup) const;

    float sample(const void* row, int index) const;
    /// A sample of ten bits goes into a word in which it is still 0.
    void setSample(void* row, int index, float sample) const;

    void decode(const void* row, int pixel, const float c[4], float rgba[4]) const;
    void unpack(const void* row, int pixel, float ycbcra[4]) const;
    /// \a rgba has four floats for each of \a pixels.
    void encode(const float* rgba, int pixels, const float m[9], void* row) const;

private:
    void code(void* row, int index, const Coding& coding, float value) const;
};

/// The ten layouts of rowLayouts() in its order, then AYCbCr8In16, which can only be encoded.
extern const RowExpectation kExpectations[11];

} // namespace NorvaneTest
