#include <colour/Color4.h>

#include <colour/ColorModels.h>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Colour {

namespace {

void write(float* output, float value)
{
    if (output)
        *output = value;
}

// Comparisons that not-a-number fails, so that it ends at 0.
float clamped(float value, float high)
{
    if (!(value > 0.0f))
        return 0.0f;
    return std::min(value, high);
}

std::uint32_t byteOf(float component)
{
    return static_cast<std::uint32_t>(clamped(component * 255.0f, 255.0f));
}

} // namespace

Color4::Color4()
    : Color4(0.0f, 0.0f, 0.0f, 1.0f)
{
}

Color4::Color4(float red, float green, float blue, float alpha)
    : r(red)
    , g(green)
    , b(blue)
    , a(alpha)
{
}

Color4::Color4(const Color4& other) = default;
Color4& Color4::operator=(const Color4& other) = default;
Color4::~Color4() = default;

void Color4::getRGBA(float* red, float* green, float* blue, float* alpha) const
{
    write(red, r);
    write(green, g);
    write(blue, b);
    write(alpha, a);
}

void Color4::setRGB(float red, float green, float blue)
{
    r = red;
    g = green;
    b = blue;
}

bool Color4::getHSV(float* hue, float* saturation, float* value) const
{
    return rgbToHsv(r, g, b, hue, saturation, value);
}

void Color4::setHSV(float hue, float saturation, float value)
{
    hsvToRgb(hue, saturation, value, &r, &g, &b);
}

void Color4::getHSL(float* hue, float* saturation, float* lightness) const
{
    rgbToHsl(r, g, b, hue, saturation, lightness);
}

void Color4::setHSL(float hue, float saturation, float lightness)
{
    hslToRgb(hue, saturation, lightness, &r, &g, &b);
}

void Color4::getTemperatureMagentaGreenIntensity(float* temperature, float* magentaGreen,
                                                 float* intensity) const
{
    write(temperature, b - r);
    write(magentaGreen, (r + b) / 2.0f - g);
    write(intensity, (r + g + b) / 3.0f);
}

void Color4::setTemperatureMagentaGreenIntensity(float temperature, float magentaGreen, float intensity)
{
    tmiToRgb(temperature, magentaGreen, intensity, &r, &g, &b);
}

void Color4::scale(float factor, bool includeAlpha)
{
    r *= factor;
    g *= factor;
    b *= factor;
    if (includeAlpha)
        a *= factor;
}

void Color4::add(float amount, bool includeAlpha)
{
    r += amount;
    g += amount;
    b += amount;
    if (includeAlpha)
        a += amount;
}

void Color4::mix(const Color4& other, float t)
{
    r = (1.0f - t) * r + t * other.r;
    g = (1.0f - t) * g + t * other.g;
    b = (1.0f - t) * b + t * other.b;
}

void Color4::clamp()
{
    r = clamped(r, 1.0f);
    g = clamped(g, 1.0f);
    b = clamped(b, 1.0f);
}

void Color4::rotateHue(float degrees)
{
    float hue, saturation, value;
    if (getHSV(&hue, &saturation, &value))
        return;
    hue += std::fmod(degrees, 360.0f) / 360.0f;
    if (hue < 0.0f)
        hue += 1.0f;
    setHSV(hue, saturation, value);
}

std::uint32_t Color4::toRGBA8() const
{
    return byteOf(r) << 24 | byteOf(g) << 16 | byteOf(b) << 8 | byteOf(a);
}

float Color4::minComponent() const
{
    return std::min({r, g, b});
}
float Color4::maxComponent() const
{
    return std::max({r, g, b});
}

}} // namespace Norvane::Colour
