#pragma once

#include <colour/YCbCrRows.h>

#include <functional>
#include <string>
#include <vector>

namespace Norvane { namespace Benchmarks {

/// A picture twice: as packed rows of a layout, and as floats. Layouts with alpha have RGBA pixels, the
/// others planes of red, green and blue. All pictures share one memory, so only the one made last is valid.
class RowImage
{
public:
    RowImage(int layout, int width, int height);

    const Colour::RowLayout& layout() const
    {
        return Colour::rowLayouts()[static_cast<std::size_t>(m_layout)];
    }
    int number() const { return m_layout; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    bool isInterleaved() const;

    unsigned char* packed(int y) const;
    std::size_t packedStride() const;
    /// Red, green, blue or alpha of the first pixel of a row; null for an alpha that is not there.
    float* plane(int channel, int y) const;
    std::ptrdiff_t pixelStride() const { return isInterleaved() ? 4 : 1; }
    /// The floats of a row lie in this many pieces, with this many in each.
    int pieces() const { return isInterleaved() ? 1 : 3; }
    std::size_t floatsInPiece() const;

    void decodeRow(const Colour::RowLayout& functions, int y) const;
    void encodeRow(const Colour::RowLayout& functions, int y) const;

    /// How far the floats of the first rows are at most from what the plain rows make of the samples.
    double decodingError(int rows) const;
    /// How many of these rows have other samples than those that the plain rows make of the floats.
    double encodingError(int rows) const;

private:
    int m_layout;
    int m_width;
    int m_height;
};

/// What is measured: a piece of work on a picture, and afterwards a look at what it made.
struct Work {
    std::function<void()> run;
    std::function<double()> error;
    double tolerance = 0;
    int rows = 0;
};

/// The plain rows of the library behind the same interface, compiled for this machine's common instructions.
const std::vector<Colour::RowLayout>& plainRowLayouts();

/// Storing the floats that decoding stores, or loading those that encoding loads, and nothing else, in
/// vectors of 32 or of 64 bytes.
Work limitWork(const RowImage& image, bool decoding, int rows, int vectorBytes);

/// Other libraries on the whole picture; nothing to run where one does not know the layout or is not
/// installed.
Work zimgWork(const RowImage& image, bool decoding);
Work ffmpegWork(const RowImage& image, bool decoding);
Work ocioWork(const RowImage& image, bool decoding);

}} // namespace Norvane::Benchmarks
