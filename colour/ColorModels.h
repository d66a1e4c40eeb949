#pragma once

#include <NorvaneCoreExport.h>

namespace Norvane { namespace Colour {

/// Conversions between colour models. Hue is in turns. Nothing is clamped; output pointers may be null.
/// Reentrant, like everything in this folder.

/// The value keeps its sign: it is the component farthest from 0. False, with hue and saturation 0, for
/// greys.
NORVANE_CORE_EXPORT bool rgbToHsv(float red, float green, float blue, float* hue, float* saturation,
                                  float* value);
/// Any finite hue is taken modulo 1. A hue that is not finite writes nothing.
NORVANE_CORE_EXPORT void hsvToRgb(float hue, float saturation, float value, float* red, float* green,
                                  float* blue);

NORVANE_CORE_EXPORT void rgbToHsl(float red, float green, float blue, float* hue, float* saturation,
                                  float* lightness);
/// The saturation of white is 0.
NORVANE_CORE_EXPORT void hsvToHsl(float hue, float saturation, float value, float* hslHue,
                                  float* hslSaturation, float* lightness);
NORVANE_CORE_EXPORT void hslToHsv(float hue, float saturation, float lightness, float* hsvHue,
                                  float* hsvSaturation, float* value);
/// Any finite hue is taken modulo 1.
NORVANE_CORE_EXPORT void hslToRgb(float hue, float saturation, float lightness, float* red, float* green,
                                  float* blue);

/// The inverse of Color4::getTemperatureMagentaGreenIntensity().
NORVANE_CORE_EXPORT void tmiToRgb(float temperature, float magentaGreen, float intensity, float* red,
                                  float* green, float* blue);

/// Rec 601 in the video range: luma 16/255 to 235/255, chroma centred on 0.
NORVANE_CORE_EXPORT void rgbToYCbCrVideo(float red, float green, float blue, float* y, float* cb, float* cr);
/// Rec 601 in the full range: luma 0 to 1, chroma -0.5 to 0.5.
NORVANE_CORE_EXPORT void rgbToYCbCr601(float red, float green, float blue, float* y, float* cb, float* cr);
NORVANE_CORE_EXPORT void yiqToRgb(float y, float i, float q, float* red, float* green, float* blue);

}} // namespace Norvane::Colour
