#include <colour/SampleRange.h>

#include <colour/rows/PlainRows.h>

namespace Norvane { namespace Colour {

namespace {

/// The code as it comes out of its integer type.
template <class Quantiser>
float codeOf(const Quantiser& quantiser, float value)
{
    return static_cast<float>(Rows::coded(quantiser, value));
}

template <class Quantiser>
void fill(const Quantiser& luma, const Quantiser& chroma, float out[4])
{
    out[0] = codeOf(luma, 0.0f);
    out[1] = codeOf(luma, 1.0f) - out[0];
    out[2] = codeOf(chroma, -0.5f);
    out[3] = codeOf(chroma, 0.5f) - out[2];
}

template <class Coding>
void fillFrom(float out[4])
{
    fill(Coding::encode.luma, Coding::encode.cb, out);
}

} // namespace

void legalRange(SampleRange range, float out[4])
{
    switch (range) {
    case kVideoRange16:
        return fillFrom<Rows::Video16>(out);
    case kVideoRange8In16:
        return fillFrom<Rows::Video8In16>(out);
    case kVideoRange10:
        return fillFrom<Rows::Video10>(out);
    case kVideoRange8:
        return fillFrom<Rows::Video8>(out);
    case kFullRange:
        return fill(Rows::Quantiser{255, 0, 0, 255}, Rows::Quantiser{255, 127.5f, 0, 255}, out);
    case kNoOffsetRange8Normalised:
        fillFrom<Rows::NoOffset8>(out);
        for (int i = 0; i < 4; ++i)
            out[i] /= 255.0f;
        return;
    case kNoOffsetRange8:
        return fillFrom<Rows::NoOffset8>(out);
    }
    for (int i = 0; i < 4; ++i)
        out[i] = 0.0f;
}

}} // namespace Norvane::Colour
