#pragma once

#include <cstddef>

namespace Norvane { namespace Colour { namespace Rows {

/// Where a row's pixels are: R, G and B, or Y, Cb and Cr; alpha may be null.
template <class Float>
struct BasicPlanes {
    Float* alpha;
    Float* x;
    Float* y;
    Float* z;
    std::ptrdiff_t stride;

    bool isPlanar() const { return stride == 1; }
    /// R, G, B, A in this order, with an alpha to write.
    bool isInterleaved() const { return stride == 4 && y == x + 1 && z == x + 2 && alpha == x + 3; }
};

using Planes = BasicPlanes<float>;
using ConstPlanes = BasicPlanes<const float>;

}}} // namespace Norvane::Colour::Rows
