#pragma once

#include <NorvaneCoreExport.h>

namespace Norvane { namespace Colour {

/// How a sample format codes luma 0..1 and chroma -0.5..0.5.
enum SampleRange : int {
    kVideoRange16,
    /// The 8-bit codes times 255, in 16-bit words.
    kVideoRange8In16,
    kVideoRange10,
    kVideoRange8,
    kFullRange,
    /// Video range with black at 0, as fractions of 255.
    kNoOffsetRange8Normalised,
    kNoOffsetRange8
};

/// Fills \a out with the code of black, the codes from black to white, the code of chroma -0.5 and the codes
/// from there to chroma +0.5; with zeros for a value outside the enumeration.
NORVANE_CORE_EXPORT void legalRange(SampleRange range, float out[4]);

}} // namespace Norvane::Colour
