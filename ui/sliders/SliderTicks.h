#pragma once

#include <QVector>

namespace Norvane { namespace UI {

struct SliderScale;

/// A tick mark of a slider.
struct SliderTick {
    /// In pixels from the end of the slot where the minimum is.
    int offset;
    double value;
    bool isMajor;
    bool hasLabel;
};

/// Which of the marks 1, 2, ... 10 times a power of ten get a tick and which a label, from index 1 on.
struct DecadeMarks {
    bool tick[11];
    bool label[11];
};

/// Where a slider has its ticks, as functions of numbers: of the slot's \a length and of the smallest
/// distance between two ticks, \a separation, both in pixels. The ticks come in the order of their offsets,
/// but for a range around zero, where they go from zero outwards.
namespace SliderTicks {

/// Ticks at the multiples of a power of ten.
QVector<SliderTick> linear(const SliderScale& scale, int length, int separation);

/// All decades of a logarithmic scale are as long and have the same marks.
DecadeMarks decadeMarks(const SliderScale& scale, int length, int separation);

/// Ticks of a logarithmic scale, above zero or below it.
QVector<SliderTick> logarithmic(const SliderScale& scale, int length, int separation,
                                const DecadeMarks& marks);

/// Ticks of a non-linear scale whose minimum is not above zero.
QVector<SliderTick> squareRoot(const SliderScale& scale, int length, int separation);

} // namespace SliderTicks

}} // namespace Norvane::UI
