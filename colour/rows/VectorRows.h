#pragma once

#include <colour/rows/Layouts.h>
#include <colour/rows/Planes.h>
#include <colour/YCbCrMatrix.h>

namespace Norvane { namespace Colour { namespace Rows {

// Conversions of several pixels at a time. Each function converts whole vectors from the start of the row,
// returns how many pixels those were, and leaves the rest, which may be the whole row, to the plain rows.

template <class Layout>
struct DecodeFunctions {
    std::size_t (*decode)(const typename Layout::Sample* row, const Planes& planes, std::size_t pixels,
                          const InverseCoefficients& coefficients);
    std::size_t (*unpack)(const typename Layout::Sample* row, const Planes& planes, std::size_t pixels);
};

template <class Layout>
struct EncodeFunctions {
    std::size_t (*encode)(const ConstPlanes& planes, typename Layout::Sample* row, std::size_t pixels,
                          const ForwardMatrix& matrix);
};

/// A table's functions for a layout are those of its base for this layout.
template <template <class> class Functions, class... Layouts>
struct Table : Functions<Layouts>... {
};

using DecodeTable = Table<DecodeFunctions, CbYCrY8, CbYCrY8MPEG, YCbYCr8, AYCbCr8, CbYCrA8, AYCbCrF, V210,
                          CbYCrY16, AYCbCr16, AYCbCr32>;
using EncodeTable = Table<EncodeFunctions, CbYCrY8, CbYCrY8MPEG, YCbYCr8, AYCbCr8, CbYCrA8, AYCbCrF, V210,
                          CbYCrY16, AYCbCr16, AYCbCr32, AYCbCr8In16>;

/// The functions in the best instructions of this processor; null where there are none.
const DecodeTable* decodeTable();
const EncodeTable* encodeTable();

}}} // namespace Norvane::Colour::Rows
