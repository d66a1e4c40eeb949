#pragma once

#include <ui/sliders/LogSlider.h>

namespace Norvane { namespace UI {

/// 0 or infinite where no double is as small or as large.
double powerOfTen(int exponent);

/// The inside of a logarithmic slider.
struct LogSlider::Private {
    static void installAccessible();

    void requireRange() const;
    /// The slider's position at ten to the \a exponent, rounded towards zero.
    int position(double exponent) const;

    int minExp = 0;
    int maxExp = 0;
    /// Positions to a decade; 0 as long as there is no range.
    int precision = 0;
    double minReal = 0;
    double maxReal = 0;
    bool drawLogTicks = true;
    int tickTextSize = 8;
    QColor tickColor;
    QColor expTickColor;
};

}} // namespace Norvane::UI
