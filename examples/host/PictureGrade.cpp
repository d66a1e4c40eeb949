#include "PictureGrade.h"

#include <QVector>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Host {

namespace {

const double kMostExposure = 64; // stops
const double kMostGain = 1000;

double lightOf(double code)
{
    return code <= 0.04045 ? code / 12.92 : std::pow((code + 0.055) / 1.055, 2.4);
}

double codeOf(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

/// What becomes of each of the 256 codes.
QVector<uint> tableOf(double factor)
{
    QVector<uint> table;
    for (int code = 0; code < 256; ++code)
        table.append(uint(qRound(255 * codeOf(qBound(0.0, lightOf(code / 255.0) * factor, 1.0)))));
    return table;
}

} // namespace

bool PictureGrade::operator==(const PictureGrade& other) const
{
    return exposure == other.exposure && std::equal(gain, gain + 3, other.gain);
}

bool PictureGrade::isNeutral() const
{
    return *this == PictureGrade();
}

bool PictureGrade::isPossible() const
{
    return std::fabs(exposure) <= kMostExposure &&
           std::all_of(gain, gain + 3, [](double factor) { return factor >= 0 && factor <= kMostGain; });
}

QImage gradedImage(const QImage& image, const PictureGrade& grade)
{
    const double exposure = std::pow(2.0, grade.exposure);
    const QVector<uint> red = tableOf(grade.gain[0] * exposure);
    const QVector<uint> green = tableOf(grade.gain[1] * exposure);
    const QVector<uint> blue = tableOf(grade.gain[2] * exposure);
    const bool alpha = image.hasAlphaChannel();
    QImage graded = image.convertToFormat(alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < graded.height(); ++y) {
        QRgb* const line = reinterpret_cast<QRgb*>(graded.scanLine(y));
        for (int x = 0; x < graded.width(); ++x) {
            const QRgb pixel = line[x];
            line[x] = (pixel & 0xff000000u) | red[qRed(pixel)] << 16 | green[qGreen(pixel)] << 8 |
                      blue[qBlue(pixel)];
        }
    }
    return graded.convertToFormat(image.format());
}

}} // namespace Norvane::Host
