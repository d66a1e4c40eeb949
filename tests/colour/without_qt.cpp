// Built from the folder's own sources, with no directory of Qt's to look in: colour/ needs none of it.

#include <colour/Color4.h>
#include <colour/ColorModels.h>
#include <colour/SampleRange.h>
#include <colour/TransformI.h>
#include <colour/YCbCrMatrix.h>
#include <colour/YCbCrRows.h>

using namespace Norvane::Colour;

int main()
{
    struct Transform : TransformI {
    };
    const Transform transform;
    const TransformI& base = transform;
    (void)base;
    const std::uint8_t row[] = {128, 16, 128, 235};
    float red[2], green[2], blue[2];
    decodeCbYCrY8(row, nullptr, red, green, blue, 1, 4, inverseCoefficients());
    const Color4 white(red[1], green[1], blue[1], 1);
    float range[4], lightness = 0;
    legalRange(kVideoRange8, range);
    rgbToHsl(white.r, white.g, white.b, nullptr, nullptr, &lightness);
    return white.toRGBA8() == 0xFFFFFFFFu && lightness == 1 && range[0] == 16 ? 0 : 1;
}
