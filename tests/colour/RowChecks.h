#pragma once

#include <tests/colour/Planes.h>

#include <QByteArray>

#include <cstddef>

namespace NorvaneTest {

// Comparisons of the library's row functions with kExpectations, whose index a layout is. Each tells where
// the first difference is, or nothing. Nothing is wrong with reading a layout that can only be encoded.

/// Rows of every length, in memory exactly as long as they are.
QByteArray readLengths(std::size_t layout, const Arrangement& arrangement, bool unpack);
QByteArray writeLengths(std::size_t layout, const Arrangement& arrangement);

/// One long row in which every place has every code that a sample can have; of floats, and of samples wider
/// than sixteen bits, some are anything.
QByteArray readCodes(std::size_t layout, const Arrangement& arrangement, bool unpack);

/// One long row of values at and beside the step from one code to the next, and of any floats that there are.
QByteArray writeValues(std::size_t layout, const Arrangement& arrangement);

} // namespace NorvaneTest
