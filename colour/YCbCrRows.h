#pragma once

#include <colour/YCbCrMatrix.h>
#include <NorvaneCoreExport.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace Norvane { namespace Colour {

/// Converters between rows of packed Y'CbCr samples and rows of single-precision planes.
///
/// decode... gives RGB. unpack... gives the samples themselves, scaled to about 0..1 (8-bit luma and alpha by
/// 1/255, chroma by 1/256, and so on for the other sizes), with neither matrix nor offset removed; AYCbCrF
/// copies. encode... takes RGB. A call without coefficients or matrix uses kMoskLegacy for decoding
/// (kMoskLegacyMPEG in decodeCbYCrY8MPEG) and kRec601 for encoding.
///
/// \a stride is the distance in floats from one pixel to the next in every plane: 1 for planes, 4 for
/// interleaved RGBA, negative for a row from right to left. A null \a alpha is not written; when encoding it
/// stands for 1. Layouts without alpha decode to alpha 1.
///
/// \a count is in pixels, except for decoding and unpacking the three 8-bit 4:2:2 layouts: there it is the
/// bytes of the row. A row that ends within a pair of pixels gives those pixels of it that have all their
/// samples. Nothing is read or written beyond the last pixel; a count of 0 or less does nothing.
///
/// Decoding clamps nothing. Encoding keeps every sample to its range; not-a-number becomes the lowest code.
/// 4:2:2 encoders code the mean chroma of a pair. Source and destination must not overlap.
///
/// Rows with stride 1, and RGBA interleaved in this order with stride 4, are converted several pixels at a
/// time. The result is the same, bit for bit; only which not-a-number comes out may differ.

/// 8-bit 4:2:2, Cb Y0 Cr Y1.
NORVANE_CORE_EXPORT void decodeCbYCrY8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count,
                                       const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeCbYCrY8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackCbYCrY8(const std::uint8_t* source, float* alpha, float* y, float* cb,
                                       float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeCbYCrY8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeCbYCrY8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count);

/// The same bytes with the MPEG scaling: luma over 218 codes, chroma over 255.
NORVANE_CORE_EXPORT void decodeCbYCrY8MPEG(const std::uint8_t* source, float* alpha, float* red, float* green,
                                           float* blue, std::ptrdiff_t stride, int count,
                                           const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeCbYCrY8MPEG(const std::uint8_t* source, float* alpha, float* red, float* green,
                                           float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackCbYCrY8MPEG(const std::uint8_t* source, float* alpha, float* y, float* cb,
                                           float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeCbYCrY8MPEG(const float* alpha, const float* red, const float* green,
                                           const float* blue, std::ptrdiff_t stride,
                                           std::uint8_t* destination, int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeCbYCrY8MPEG(const float* alpha, const float* red, const float* green,
                                           const float* blue, std::ptrdiff_t stride,
                                           std::uint8_t* destination, int count);

/// 8-bit 4:2:2, Y0 Cb Y1 Cr, MPEG scaling with Cb centred on 127 and Cr on 128.
NORVANE_CORE_EXPORT void decodeYCbYCr8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count,
                                       const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeYCbYCr8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackYCbYCr8(const std::uint8_t* source, float* alpha, float* y, float* cb,
                                       float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeYCbYCr8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeYCbYCr8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count);

/// 8-bit 4:4:4:4, A Y Cb Cr, black at luma code 0.
NORVANE_CORE_EXPORT void decodeAYCbCr8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count,
                                       const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeAYCbCr8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackAYCbCr8(const std::uint8_t* source, float* alpha, float* y, float* cb,
                                       float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeAYCbCr8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeAYCbCr8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count);

/// 8-bit 4:4:4:4, Cb Y Cr A, alpha coded like luma.
NORVANE_CORE_EXPORT void decodeCbYCrA8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count,
                                       const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeCbYCrA8(const std::uint8_t* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackCbYCrA8(const std::uint8_t* source, float* alpha, float* y, float* cb,
                                       float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeCbYCrA8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeCbYCrA8(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, std::uint8_t* destination,
                                       int count);

/// 32-bit float 4:4:4:4, A Y Cb Cr.
NORVANE_CORE_EXPORT void decodeAYCbCrF(const float* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count,
                                       const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeAYCbCrF(const float* source, float* alpha, float* red, float* green,
                                       float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackAYCbCrF(const float* source, float* alpha, float* y, float* cb, float* cr,
                                       std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeAYCbCrF(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, float* destination,
                                       int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeAYCbCrF(const float* alpha, const float* red, const float* green,
                                       const float* blue, std::ptrdiff_t stride, float* destination,
                                       int count);

/// 10-bit 4:2:2, six pixels in four little-endian words, three samples a word from its low bits up:
/// Cb0 Y0 Cr0, Y1 Cb1 Y2, Cr1 Y3 Cb2, Y4 Cr2 Y5. A row takes whole groups of six in memory. Decoding reads
/// only the words of its pixels; encoding writes whole groups, with zeros for the pixels that are not there.
NORVANE_CORE_EXPORT void decodeV210(const std::uint32_t* source, float* alpha, float* red, float* green,
                                    float* blue, std::ptrdiff_t stride, int count,
                                    const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeV210(const std::uint32_t* source, float* alpha, float* red, float* green,
                                    float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackV210(const std::uint32_t* source, float* alpha, float* y, float* cb, float* cr,
                                    std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeV210(const float* alpha, const float* red, const float* green,
                                    const float* blue, std::ptrdiff_t stride, std::uint32_t* destination,
                                    int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeV210(const float* alpha, const float* red, const float* green,
                                    const float* blue, std::ptrdiff_t stride, std::uint32_t* destination,
                                    int count);

/// 16-bit 4:2:2, Cb Y0 Cr Y1.
NORVANE_CORE_EXPORT void decodeCbYCrY16(const std::uint16_t* source, float* alpha, float* red, float* green,
                                        float* blue, std::ptrdiff_t stride, int count,
                                        const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeCbYCrY16(const std::uint16_t* source, float* alpha, float* red, float* green,
                                        float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackCbYCrY16(const std::uint16_t* source, float* alpha, float* y, float* cb,
                                        float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeCbYCrY16(const float* alpha, const float* red, const float* green,
                                        const float* blue, std::ptrdiff_t stride, std::uint16_t* destination,
                                        int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeCbYCrY16(const float* alpha, const float* red, const float* green,
                                        const float* blue, std::ptrdiff_t stride, std::uint16_t* destination,
                                        int count);

/// 16-bit 4:4:4:4, A Y Cb Cr.
NORVANE_CORE_EXPORT void decodeAYCbCr16(const std::uint16_t* source, float* alpha, float* red, float* green,
                                        float* blue, std::ptrdiff_t stride, int count,
                                        const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeAYCbCr16(const std::uint16_t* source, float* alpha, float* red, float* green,
                                        float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackAYCbCr16(const std::uint16_t* source, float* alpha, float* y, float* cb,
                                        float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeAYCbCr16(const float* alpha, const float* red, const float* green,
                                        const float* blue, std::ptrdiff_t stride, std::uint16_t* destination,
                                        int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeAYCbCr16(const float* alpha, const float* red, const float* green,
                                        const float* blue, std::ptrdiff_t stride, std::uint16_t* destination,
                                        int count);

/// The 16-bit samples of AYCbCr16, each in a word of 32 bits.
NORVANE_CORE_EXPORT void decodeAYCbCr32(const std::uint32_t* source, float* alpha, float* red, float* green,
                                        float* blue, std::ptrdiff_t stride, int count,
                                        const InverseCoefficients& coefficients);
NORVANE_CORE_EXPORT void decodeAYCbCr32(const std::uint32_t* source, float* alpha, float* red, float* green,
                                        float* blue, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void unpackAYCbCr32(const std::uint32_t* source, float* alpha, float* y, float* cb,
                                        float* cr, std::ptrdiff_t stride, int count);
NORVANE_CORE_EXPORT void encodeAYCbCr32(const float* alpha, const float* red, const float* green,
                                        const float* blue, std::ptrdiff_t stride, std::uint32_t* destination,
                                        int count, const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeAYCbCr32(const float* alpha, const float* red, const float* green,
                                        const float* blue, std::ptrdiff_t stride, std::uint32_t* destination,
                                        int count);

/// A Y Cb Cr in 16-bit words whose luma and chroma are the 8-bit codes times 255. There is no decoder.
NORVANE_CORE_EXPORT void encodeAYCbCr8In16(const float* alpha, const float* red, const float* green,
                                           const float* blue, std::ptrdiff_t stride,
                                           std::uint16_t* destination, int count,
                                           const ForwardMatrix& matrix);
NORVANE_CORE_EXPORT void encodeAYCbCr8In16(const float* alpha, const float* red, const float* green,
                                           const float* blue, std::ptrdiff_t stride,
                                           std::uint16_t* destination, int count);

enum SampleType { kSample8, kSample10, kSample16, kSample32, kSampleFloat };

/// A layout that a host picks at run time. The functions are those above, with the row as a void pointer.
struct RowLayout {
    /// "CbYCrY8", as in the names of the functions.
    const char* name;
    /// How wide a sample is in memory.
    SampleType sampleType;
    /// Whether decode and unpack count bytes. Pass bytes() of the pixels then.
    bool countsBytes;
    /// The memory that a row of this many pixels takes. Whole groups of six for V210; whole pairs for
    /// YCbYCr8, whose decoder gives the second pixel of the last pair as well.
    std::size_t (*bytes)(int pixels);
    /// The functions that have the layout's name.
    void (*decode)(const void* source, float* alpha, float* red, float* green, float* blue,
                   std::ptrdiff_t stride, int count, const InverseCoefficients& coefficients);
    void (*unpack)(const void* source, float* alpha, float* y, float* cb, float* cr, std::ptrdiff_t stride,
                   int count);
    void (*encode)(const float* alpha, const float* red, const float* green, const float* blue,
                   std::ptrdiff_t stride, void* destination, int count, const ForwardMatrix& matrix);
};

/// The ten layouts that decode and encode, in the order above.
NORVANE_CORE_EXPORT const std::array<RowLayout, 10>& rowLayouts();

}} // namespace Norvane::Colour
