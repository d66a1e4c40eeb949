#pragma once

namespace Norvane { namespace Colour { namespace Rows {

// A coding says how samples hold luma, chroma and alpha. It is a set of constants, because both the plain
// rows and the vector rows calculate with it, each with its own decoded() and coded().

/// (code - zero) / range
struct Ratio {
    float zero;
    float range;
};

/// (code - zero) * factor
struct Product {
    float zero;
    float factor;
};

/// (code - zero) / range - centre
struct CentredRatio {
    float zero;
    float range;
    float centre;
};

/// value * scale + offset + 0.5, kept to low..high and truncated
struct Quantiser {
    float scale;
    float offset;
    float low;
    float high;
};

/// (value * scale + offset) * gain + 0.5, kept to low..high and truncated
struct GainQuantiser {
    float scale;
    float offset;
    float gain;
    float low;
    float high;
};

/// value / factor
struct Quotient {
    float factor;
};

/// (value + centre) * range + zero
struct CentredProduct {
    float centre;
    float range;
    float zero;
};

struct Copy {
};

template <class Luma, class Cb, class Cr, class Alpha>
struct Channels {
    Luma luma;
    Cb cb;
    Cr cr;
    Alpha alpha;
};
template <class Luma, class Cb, class Cr, class Alpha>
Channels(Luma, Cb, Cr, Alpha) -> Channels<Luma, Cb, Cr, Alpha>;

struct Unpack8 {
    static constexpr Channels unpack{Ratio{0, 255}, Ratio{0, 256}, Ratio{0, 256}, Ratio{0, 255}};
};

struct Unpack16 {
    static constexpr Channels unpack{Ratio{0, 65535}, Ratio{0, 65536}, Ratio{0, 65536}, Ratio{0, 65535}};
};

struct Video8 : Unpack8 {
    static constexpr Channels decode{Ratio{16, 219}, Ratio{128, 224}, Ratio{128, 224}, Copy{}};
    static constexpr Channels encode{Quantiser{219, 16, 1, 254}, Quantiser{224, 128, 0, 255},
                                     Quantiser{224, 128, 0, 255}, Copy{}};
};

/// 1/218, as the single-precision number that pictures were made with.
constexpr float kMpegLuma = 0.0045871558f;

struct Mpeg8 : Unpack8 {
    static constexpr Channels decode{Product{16, kMpegLuma}, Ratio{128, 255}, Ratio{128, 255}, Copy{}};
    static constexpr Channels encode{Quantiser{218, 16, 1, 254}, Quantiser{255, 128, 0, 255},
                                     Quantiser{255, 128, 0, 255}, Copy{}};
};

/// Cb has its centre one code below that of Cr.
struct Yuvs8 : Unpack8 {
    static constexpr Channels decode{Product{16, kMpegLuma}, Ratio{127, 255}, Ratio{128, 255}, Copy{}};
    static constexpr Channels encode{Quantiser{218, 16, 1, 254}, Quantiser{255, 127, 0, 255},
                                     Quantiser{255, 128, 0, 255}, Copy{}};
};

/// Black is luma code 0, and white may not go above 238.
struct NoOffset8 : Unpack8 {
    static constexpr Channels decode{Ratio{0, 219}, Ratio{128, 224}, Ratio{128, 224}, Ratio{0, 255}};
    static constexpr Channels encode{Quantiser{219, 0, 0, 238}, Quantiser{224, 128, 0, 255},
                                     Quantiser{224, 128, 0, 255}, Quantiser{255, 0, 0, 255}};
};

struct VideoAlpha8 : Unpack8 {
    static constexpr Channels decode{Ratio{16, 219}, Ratio{128, 224}, Ratio{128, 224}, Ratio{16, 219}};
    static constexpr Channels encode{Quantiser{219, 16, 1, 254}, Quantiser{224, 128, 0, 255},
                                     Quantiser{224, 128, 0, 255}, Quantiser{219, 16, 0, 255}};
};

/// The black offset stays in luma.
struct VideoFloat {
    static constexpr Channels decode{Product{0, 1.1643835f}, CentredRatio{0.0627451f, 0.8784314f, 0.502f},
                                     CentredRatio{0.0627451f, 0.8784314f, 0.502f}, Copy{}};
    static constexpr Channels unpack{Copy{}, Copy{}, Copy{}, Copy{}};
    static constexpr Channels encode{Quotient{1.1643835f}, CentredProduct{0.502f, 0.8784314f, 0.0627451f},
                                     CentredProduct{0.502f, 0.8784314f, 0.0627451f}, Copy{}};
};

struct Video10 {
    static constexpr Channels decode{Ratio{64, 876}, Ratio{512, 896}, Ratio{512, 896}, Copy{}};
    static constexpr Channels unpack{Ratio{0, 1023}, Ratio{0, 1024}, Ratio{0, 1024}, Copy{}};
    static constexpr Channels encode{Quantiser{876, 64, 0, 1023}, Quantiser{896, 512, 0, 1023},
                                     Quantiser{896, 512, 0, 1023}, Copy{}};
};

struct Video16 : Unpack16 {
    static constexpr Channels decode{Ratio{4096, 56064}, Ratio{32768, 57344}, Ratio{32768, 57344},
                                     Ratio{0, 65535}};
    static constexpr Channels encode{Quantiser{56064, 4096, 0, 65535}, Quantiser{57344, 32768, 0, 65535},
                                     Quantiser{57344, 32768, 0, 65535}, Quantiser{65535, 0, 0, 65535}};
};

struct Video8In16 {
    static constexpr Channels encode{GainQuantiser{219, 16, 255, 0, 65535},
                                     GainQuantiser{224, 128, 255, 0, 65535},
                                     GainQuantiser{224, 128, 255, 0, 65535}, Quantiser{65535, 0, 0, 65535}};
};

}}} // namespace Norvane::Colour::Rows
