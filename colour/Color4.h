#pragma once

#include <NorvaneCoreExport.h>

#include <cstdint>

namespace Norvane { namespace Colour {

/// A colour of four single-precision components, nominally 0..1. Values outside that range are legal and are
/// carried through everything except clamp() and toRGBA8(). Only scale(), add() and the four-component
/// constructor can touch alpha. Output pointers may be null.
class NORVANE_CORE_EXPORT Color4
{
public:
    /// Opaque black.
    Color4();
    /// The components as they are.
    Color4(float red, float green, float blue, float alpha);
    Color4(const Color4& other);
    Color4& operator=(const Color4& other);
    virtual ~Color4();

    /// Without alpha in setRGB(), which leaves it as it is.
    void getRGBA(float* red, float* green, float* blue, float* alpha) const;
    void setRGB(float red, float green, float blue);

    /// Hue in turns, 0..1. True when the colour has a hue, false for greys.
    bool getHSV(float* hue, float* saturation, float* value) const;
    void setHSV(float hue, float saturation, float value);
    void getHSL(float* hue, float* saturation, float* lightness) const;
    void setHSL(float hue, float saturation, float lightness);
    /// Temperature is blue - red, magenta-green (red + blue)/2 - green, intensity the mean of the three.
    void getTemperatureMagentaGreenIntensity(float* temperature, float* magentaGreen, float* intensity) const;
    void setTemperatureMagentaGreenIntensity(float temperature, float magentaGreen, float intensity);

    /// Multiply every component, or add to it; alpha only if \a includeAlpha.
    void scale(float factor, bool includeAlpha);
    void add(float amount, bool includeAlpha);
    /// Moves red, green and blue towards \a other: not at all for \a t = 0, all the way for 1.
    void mix(const Color4& other, float t);
    /// Red, green and blue to 0..1; not-a-number becomes 0.
    void clamp();
    /// Turns the hue of colours that have none, which leaves the greys they are. Colours with a hue stay as
    /// they are: hosts rely on it.
    void rotateHue(float degrees);

    /// 0xRRGGBBAA, each component times 255, truncated and kept to 0..255; not-a-number becomes 0.
    std::uint32_t toRGBA8() const;
    /// Of red, green and blue.
    float minComponent() const;
    float maxComponent() const;

    /// Red, green, blue and alpha.
    float r;
    float g;
    float b;
    float a;
};

}} // namespace Norvane::Colour
