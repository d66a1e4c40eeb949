// The disc of full value that all wheels share.

#include <ui/colour/ColorWheel.h>

#include <colour/ColorModels.h>
#include <ui/colour/ColorWheelPrivate.h>

#include <QImage>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

const int kSide = 512;
/// Of the disc, in texels.
const double kRadius = 254.0;
/// Outside of the disc it fades away, over this part of the radius.
const double kEdge = 0.015;

/// Smoothly from 1 at the disc's radius to 0 at the end of the edge.
float opacityAt(double distance)
{
    if (distance <= 1.0)
        return 1.0f;
    const double t = (distance - 1.0) / kEdge;
    return float(1.0 - (3.0 - 2.0 * t) * t * t);
}

QRgb texelAt(const QPointF& point, double rotation)
{
    const double distance = std::hypot(point.x(), point.y()) / kRadius;
    if (distance > 1.0 + kEdge)
        return 0;
    float r = 0.0f, g = 0.0f, b = 0.0f;
    Colour::hsvToRgb(float(hueAt(point, rotation)), float(std::min(distance, 1.0)), 1.0f, &r, &g, &b);
    const float alpha = opacityAt(distance);
    const float scale = 255.0f * alpha;
    return qRgba(int(r * scale), int(g * scale), int(b * scale), int(scale));
}

} // namespace

QImage ColorWheel::_texture;
alignas(QRgb) unsigned char ColorWheel::_texture_bits[kSide * kSide * 4];
bool ColorWheel::_texture_ready = false;
float ColorWheel::_texture_rotation = 0.0f;

void ColorWheel::buildTexture()
{
    _texture = QImage(_texture_bits, kSide, kSide, kSide * 4, QImage::Format_ARGB32_Premultiplied);
    for (int j = 0; j < kSide; ++j) {
        QRgb* const line = reinterpret_cast<QRgb*>(_texture.scanLine(j));
        for (int i = 0; i < kSide; ++i)
            line[i] = texelAt(QPointF(i - kSide / 2, j - kSide / 2), d->hueRotation);
    }
    _texture_rotation = d->hueRotation;
    _texture_ready = true;
}

}} // namespace Norvane::UI
