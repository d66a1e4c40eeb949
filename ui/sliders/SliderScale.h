#pragma once

namespace Norvane { namespace UI {

/// How the values of a slider lie along it, as functions of numbers. Positions go from 0 (left, or bottom)
/// to 1.
struct SliderScale {
    /// Not above `maximum`.
    double minimum = 0;
    double maximum = 1;
    /// Values are whole numbers.
    bool isInteger = false;
    /// Logarithmic where the range lies on one side of zero, else by square roots.
    bool isNonLinear = false;

    /// Where \a value lies; below 0 or above 1 for one outside the range. 0 if the range is empty.
    double position(double value) const;

    /// The value at \a position, at most that of the nearer end.
    double value(double position) const;

    /// \a value rounded to a multiple of 1, 2 or 5 times a power of ten: the smallest that is not below
    /// \a change, the change of the value over one pixel.
    double snapped(double value, double change) const;
};

}} // namespace Norvane::UI
