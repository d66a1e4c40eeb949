#pragma once

#include <ui/sliders/Slider.h>
#include <ui/sliders/SliderNumbers.h>
#include <ui/sliders/SliderScale.h>
#include <ui/sliders/SliderTicks.h>

#include <QColor>
#include <QGradient>

namespace Norvane { namespace UI {

class SliderLabels;

/// The inside of a slider, shared by the files that implement it.
struct Slider::Private {
    explicit Private(Slider* slider)
        : q(slider)
    {
    }

    static void installAccessible();

    SliderScale scale() const;
    void rangeHasChanged();

    /// The user's change of the value. The slider may be gone afterwards.
    void moveTo(double newValue);
    /// The same as a drag from press to release, to the nearest value in the range.
    void dragTo(double wanted);
    void stepBy(int steps);

    int slotLength() const;
    void paint(QPainter& painter, const QRect& tickRect, const QRect* labelRect,
               const QVector<SliderTick>& ticks);

    Slider* const q;
    double value = 0;
    double minimum = 0;
    double maximum = 1;
    double step = 1;
    ValueType type = RealValue;
    SliderMode mode = LinearMode;
    Qt::Orientation orientation = Qt::Horizontal;
    int minTickSeparation = 5;
    /// Whether `marks` are those of the range, the size and so on as they are now.
    bool tickCacheValid = false;
    DecadeMarks marks = DecadeMarks();
    QColor color;
    QGradient gradient;
    bool useGradient = false;
    SliderNumbers numbers;
    /// Only while ticks are painted.
    SliderLabels* labels = nullptr;
};

}} // namespace Norvane::UI
