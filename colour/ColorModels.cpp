#include <colour/ColorModels.h>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Colour {

namespace {

void write(float* outX, float* outY, float* outZ, float x, float y, float z)
{
    if (outX)
        *outX = x;
    if (outY)
        *outY = y;
    if (outZ)
        *outZ = z;
}

/// The component farthest from 0, with its sign; the later one of two that are equally far.
float farthest(float red, float green, float blue)
{
    const float r = std::fabs(red), g = std::fabs(green), b = std::fabs(blue);
    if (r > g && r > b)
        return red;
    if (g > b && !(r > g))
        return green;
    return blue;
}

float hueInSixths(float red, float green, float blue, float value, float delta)
{
    if (red == value)
        return (green - blue) / delta;
    if (green == value)
        return (blue - red) / delta + 2.0f;
    return (red - green) / delta + 4.0f;
}

float wrapped(float hue)
{
    const float fraction = hue - std::floor(hue);
    // What is left of a hue just below 0 rounds to a whole turn.
    return fraction == 1.0f ? 0.0f : fraction;
}

} // namespace

bool rgbToHsv(float red, float green, float blue, float* hue, float* saturation, float* value)
{
    const float v = farthest(red, green, blue);
    float delta = std::max({red, green, blue}) - std::min({red, green, blue});
    if (delta == 0.0f || v == 0.0f) {
        write(hue, saturation, value, 0.0f, 0.0f, v);
        return false;
    }
    if (v < 0.0f)
        delta = -delta;
    float h = hueInSixths(red, green, blue, v, delta);
    if (h < 0.0f)
        h += 6.0f;
    write(hue, saturation, value, h / 6.0f, delta / v, v);
    return true;
}

void hsvToRgb(float hue, float saturation, float value, float* red, float* green, float* blue)
{
    const float sixths = wrapped(hue) * 6.0f;
    if (!(sixths >= 0.0f && sixths < 6.0f))
        return;
    const int sector = static_cast<int>(sixths);
    const float f = sixths - static_cast<float>(sector);
    const float v = value;
    const float p = (1.0f - saturation) * v;
    const float x = sector % 2 ? (1.0f - f * saturation) * v : (1.0f - (1.0f - f) * saturation) * v;
    switch (sector) {
    case 0:
        return write(red, green, blue, v, x, p);
    case 1:
        return write(red, green, blue, x, v, p);
    case 2:
        return write(red, green, blue, p, v, x);
    case 3:
        return write(red, green, blue, p, x, v);
    case 4:
        return write(red, green, blue, x, p, v);
    case 5:
        return write(red, green, blue, v, p, x);
    }
}

void rgbToHsl(float red, float green, float blue, float* hue, float* saturation, float* lightness)
{
    float h, s, v;
    rgbToHsv(red, green, blue, &h, &s, &v);
    hsvToHsl(h, s, v, hue, saturation, lightness);
}

void hsvToHsl(float hue, float saturation, float value, float* hslHue, float* hslSaturation, float* lightness)
{
    const float twiceLightness = (2.0f - saturation) * value;
    float s = saturation;
    if (twiceLightness <= 1.0f)
        s /= 2.0f - saturation;
    else if (s != 0.0f)
        s = saturation * value / (2.0f - twiceLightness);
    write(hslHue, hslSaturation, lightness, hue, s, twiceLightness / 2.0f);
}

void hslToHsv(float hue, float saturation, float lightness, float* hsvHue, float* hsvSaturation, float* value)
{
    const float s = saturation, l = lightness;
    if (2.0f * l <= 1.0f) {
        // A saturation of -1 takes the value to 0: black, which has none.
        const float blacks = s + 1.0f;
        write(hsvHue, hsvSaturation, value, hue, blacks == 0.0f ? 0.0f : 2.0f * s / blacks, blacks * l);
    } else {
        write(hsvHue, hsvSaturation, value, hue, 2.0f / (1.0f / (s / l - s) + 1.0f), (1.0f - l) * s + l);
    }
}

void hslToRgb(float hue, float saturation, float lightness, float* red, float* green, float* blue)
{
    float h, s, v;
    hslToHsv(hue, saturation, lightness, &h, &s, &v);
    hsvToRgb(h, s, v, red, green, blue);
}

void tmiToRgb(float temperature, float magentaGreen, float intensity, float* red, float* green, float* blue)
{
    const float t = temperature, m = magentaGreen, i = intensity;
    if (m == 0.0f && t == 0.0f)
        return write(red, green, blue, i, i, i);
    const float r = (6.0f * i + 2.0f * m - 3.0f * t) / 6.0f;
    write(red, green, blue, r, (3.0f * i - 2.0f * m) / 3.0f, r + t);
}

void rgbToYCbCrVideo(float red, float green, float blue, float* y, float* cb, float* cr)
{
    write(y, cb, cr, 0.257f * red + 0.504f * green + 0.098f * blue + 0.0627451f,
          0.439f * blue - (0.148f * red + 0.291f * green), 0.439f * red - 0.368f * green - 0.071f * blue);
}

void rgbToYCbCr601(float red, float green, float blue, float* y, float* cb, float* cr)
{
    write(y, cb, cr, 0.299f * red + 0.587f * green + 0.114f * blue,
          0.5f * blue - (0.331264f * green + 0.168736f * red),
          0.5f * red - 0.418688f * green - 0.081312f * blue);
}

void yiqToRgb(float y, float i, float q, float* red, float* green, float* blue)
{
    write(red, green, blue, y + 0.9563f * i + 0.621f * q, y - 0.2721f * i - 0.6474f * q,
          y - 1.107f * i + 1.7046f * q);
}

}} // namespace Norvane::Colour
