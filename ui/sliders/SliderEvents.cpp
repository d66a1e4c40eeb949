// Where the slider lies under the mouse, and what the user does with it.

#include <ui/sliders/Slider.h>

#include <ui/sliders/SliderPrivate.h>
#include <ui/toolkit/AccessibleValue.h>
#include <ui/toolkit/Events.h>

#include <QKeyEvent>
#include <QPointer>

#include <cmath>

namespace Norvane { namespace UI {

namespace {

/// Between the end of the slot and the edge, in pixels.
const int kMargin = 2;

const int kPageSteps = 10;

/// How many steps \a key goes up, 0 for other keys.
int stepsOf(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return kPageSteps;
    case Qt::Key_PageDown:
        return -kPageSteps;
    default:
        return 0;
    }
}

/// Steps of 0.01 from -1 come to 0 and not to 7e-16.
double withoutRoundingError(double value, double step)
{
    const double grain = step * 1e-6;
    const double grains = value / grain;
    return std::abs(grains) < 1e15 ? std::floor(grains + 0.5) * grain : value;
}

} // namespace

void Slider::slotSize(int& start, int& end)
{
    const QRect area = rect();
    if (d->orientation == Qt::Horizontal) {
        start = area.left() + kMargin;
        end = area.right() - kMargin;
    } else {
        start = area.bottom() - kMargin;
        end = area.top() + kMargin;
    }
}

int Slider::eventSlotSize(int& start, int& end, QPoint position)
{
    slotSize(start, end);
    return d->orientation == Qt::Horizontal ? position.x() : position.y();
}

void Slider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->tickCacheValid = false;
}

void Slider::mousePressEvent(QMouseEvent* event)
{
    const QPointer<Slider> self(this);
    Q_EMIT sliderPressed();
    if (self)
        mouseMoveEvent(event);
}

void Slider::mouseMoveEvent(QMouseEvent* event)
{
    int start = 0;
    int end = 0;
    const int along = eventSlotSize(start, end, mousePosition(event)) - start;
    const double length = end - start;
    if (length == 0)
        return;
    const double value = positionToValue(along / length);
    const double change = std::abs(positionToValue((along + 1) / length) - value);
    d->moveTo(d->scale().snapped(value, change));
}

void Slider::mouseReleaseEvent(QMouseEvent*)
{
    Q_EMIT sliderReleased();
}

void Slider::keyPressEvent(QKeyEvent* event)
{
    const int steps = stepsOf(event->key());
    if (event->key() == Qt::Key_Home)
        d->dragTo(d->minimum);
    else if (event->key() == Qt::Key_End)
        d->dragTo(d->maximum);
    else if (steps != 0)
        d->stepBy(steps);
    else
        QWidget::keyPressEvent(event);
}

void Slider::Private::stepBy(int steps)
{
    // Less than a half would be rounded away.
    const double size = type == IntegerValue ? qMax(1.0, std::round(step)) : step;
    dragTo(withoutRoundingError(value + steps * size, size));
}

void Slider::Private::dragTo(double wanted)
{
    const double bounded = qBound(minimum, wanted, maximum);
    const double newValue = type == IntegerValue ? std::round(bounded) : bounded;
    if (newValue == value)
        return;
    const QPointer<Slider> self(q);
    Q_EMIT q->sliderPressed();
    if (self)
        moveTo(newValue);
    if (self)
        Q_EMIT q->sliderReleased();
}

void Slider::Private::moveTo(double newValue)
{
    if (newValue == value)
        return;
    value = newValue;
    q->update();
    reportAccessibleValue(q, newValue);
    const QPointer<Slider> self(q);
    Q_EMIT q->valueChanged(newValue);
    if (self)
        Q_EMIT q->sliderMoved(newValue);
}

}} // namespace Norvane::UI
