#pragma once

#include <QImage>

namespace Norvane { namespace Host {

/// How a picture is changed for the eye. It works on light: sRGB is undone before and done again afterwards.
struct PictureGrade {
    /// In stops: each doubles the light.
    double exposure = 0;
    /// Factors of the light of red, green and blue.
    double gain[3] = {1, 1, 1};

    bool operator==(const PictureGrade& other) const;
    /// Whether it changes nothing.
    bool isNeutral() const;
    /// Whether it can be computed: no factor is negative, and no number is beyond all that is to be seen.
    bool isPossible() const;
};

/// \a image, which has 32 bits a pixel, graded; in the same format.
QImage gradedImage(const QImage& image, const PictureGrade& grade);

}} // namespace Norvane::Host
