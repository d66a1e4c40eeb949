#include <colour/YCbCrMatrix.h>

#include <cstddef>

namespace Norvane { namespace Colour {

namespace {

struct Matrix {
    const char* name;
    InverseCoefficients inverse;
    ForwardMatrix forward;
};

// Luma rows that miss 1 by a rounding, and legacy chroma that ends short of 0.5, stay so: pictures were coded
// with them.
const Matrix kMatrices[] = {
    {"Rec 709",
     {{1.5748f, -0.46812427f, -0.18732426f, 1.8556f}},
     {{0.2126f, 0.7152f, 0.0722f, -0.1145721f, -0.3854279f, 0.5f, 0.5f, -0.4541529f, -0.04584709f}}},
    {"Rec 601",
     {{1.402f, -0.7141363f, -0.3441363f, 1.772f}},
     {{0.299f, 0.58699995f, 0.114f, -0.16873589f, -0.33126408f, 0.5f, 0.5f, -0.41868758f, -0.08131241f}}},
    {"Mosk Legacy",
     {{1.5966f, -0.813202f, -0.391998f, 2.0184f}},
     {{0.29898438f, 0.5870109f, 0.11400471f, -0.14812939f, -0.29082984f, 0.4389592f, 0.43906778f, -0.3676631f,
       -0.07140467f}}},
    {"Mosk Legacy MPEG",
     {{1.5883f, -0.813202f, -0.391998f, 2.0457f}},
     {{0.30053446f, 0.58698684f, 0.11247869f, -0.14691032f, -0.2869369f, 0.43384725f, 0.4403863f,
       -0.36956927f, -0.07081703f}}},
    {"Mosk Legacy YUVS",
     {{1.596f, -0.81511f, -0.37294f, 2.0472f}},
     {{0.30168536f, 0.59070534f, 0.10760925f, -0.14736488f, -0.28854308f, 0.43590793f, 0.4375405f,
       -0.37011614f, -0.06742434f}}},
};

const Matrix& find(YCbCrMatrix matrix)
{
    const bool known = matrix >= kRec709 && matrix <= kMoskLegacyYUVS;
    return kMatrices[known ? static_cast<std::size_t>(matrix) : 0];
}

} // namespace

const InverseCoefficients& inverseCoefficients(YCbCrMatrix matrix)
{
    return find(matrix).inverse;
}
const ForwardMatrix& forwardMatrix(YCbCrMatrix matrix)
{
    return find(matrix).forward;
}
const char* matrixName(YCbCrMatrix matrix)
{
    return find(matrix).name;
}

}} // namespace Norvane::Colour
