#pragma once

#include <NorvaneCoreExport.h>

namespace Norvane { namespace Colour {

/// The matrices between RGB and Y'CbCr. The three legacy ones are Rec 601 with chroma that ends at about 0.44
/// instead of 0.5, each a little different: pictures made with one of them need the same one to be read.
enum YCbCrMatrix : int { kRec709, kRec601, kMoskLegacy, kMoskLegacyMPEG, kMoskLegacyYUVS };

/// R = Y + c[0] Cr; G = Y + c[1] Cr + c[2] Cb; B = Y + c[3] Cb, with Cb and Cr centred on 0.
struct InverseCoefficients {
    /// In the order of the formula.
    float c[4];
};

/// Three rows for Y, Cb and Cr, each with the weights of R, G and B.
struct ForwardMatrix {
    /// Row by row.
    float m[9];
};

/// A value outside the enumeration selects Rec 709, in all three functions.
NORVANE_CORE_EXPORT const InverseCoefficients& inverseCoefficients(YCbCrMatrix matrix = kRec709);
NORVANE_CORE_EXPORT const ForwardMatrix& forwardMatrix(YCbCrMatrix matrix = kRec709);
/// As shown to users: "Rec 709".
NORVANE_CORE_EXPORT const char* matrixName(YCbCrMatrix matrix = kRec709);

}} // namespace Norvane::Colour
