// What a wheel shows, and how it is told.

#include <ui/colour/ColorWheel.h>

#include <colour/Color4.h>
#include <ui/colour/ColorWheelPrivate.h>
#include <ui/colour/FiniteNumbers.h>
#include <ui/toolkit/AccessibleValue.h>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace UI {

namespace {

const int kSmallSide = 89;

} // namespace

const float ColorWheel::_max_pan = 1.9f;

ColorWheel::ColorWheel(Colour::TransformI* transform)
    : ColorControlWidget(this)
    , d(new Private(this))
{
    init(transform, kDisc);
}

ColorWheel::ColorWheel(Colour::TransformI* transform, const DisplayMode& mode)
    : ColorControlWidget(this)
    , d(new Private(this))
{
    init(transform, mode);
}

ColorWheel::~ColorWheel() = default;

void ColorWheel::init(Colour::TransformI* transform, const DisplayMode& mode)
{
    d->transform = transform;
    d->displayMode = mode;
    if (mode == kEmbedded) {
        d->interactionMode = kRelative;
        d->sizeHintSide = kSmallSide;
        d->zoomEnabled = false;
        setFixedSize(kSmallSide, kSmallSide);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    Private::installAccessible();
    setAccessibleName(tr("Colour wheel"));
    setFocusPolicy(Qt::WheelFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void ColorWheel::display(const Shown& next)
{
    const Shown now = d->shown;
    if (next == now)
        return;
    const QVector<Private::Mark> before = d->marks();
    d->shown = next;
    update(d->changedMarks(before) | d->changedRegion(now));
    reportAccessibleValue(this, double(getClampedHue()));
}

bool ColorWheel::Shown::operator==(const Shown& other) const
{
    return hue == other.hue && saturation == other.saturation && value == other.value &&
           ringValue == other.ringValue;
}

void ColorWheel::setHue(float hue)
{
    if (!areFinite(hue))
        return;
    Shown next = d->shown;
    next.hue = std::fmod(hue, 1.0f);
    if (next.hue < 0.0f)
        next.hue += 1.0f;
    display(next);
}

void ColorWheel::setSaturation(float saturation)
{
    setHSV(d->shown.hue, saturation, d->shown.value);
}

void ColorWheel::setValue(float value)
{
    setHSV(d->shown.hue, d->shown.saturation, value);
}

void ColorWheel::setHSV(float hue, float saturation, float value)
{
    if (!areFinite(hue, saturation, value))
        return;
    Shown next = d->shown;
    next.hue = hue;
    next.saturation = saturation;
    next.value = value;
    display(next);
}

void ColorWheel::setHSVSlot(float hue, float saturation, float value)
{
    setHSV(hue, saturation, value);
}

bool ColorWheel::getHSV(float& hue, float& saturation, float& value) const
{
    hue = d->shown.hue;
    saturation = d->shown.saturation;
    value = d->shown.value;
    return value == 0.0f;
}

float ColorWheel::getClampedHue() const
{
    return std::clamp(d->shown.hue, 0.0f, 1.0f);
}

void ColorWheel::setRingValue(float value)
{
    if (!areFinite(value))
        return;
    Shown next = d->shown;
    next.ringValue = value;
    display(next);
}

float ColorWheel::ringValue() const
{
    return d->shown.ringValue;
}

void ColorWheel::setZoomEnabled(bool enabled)
{
    if (enabled == d->zoomEnabled)
        return;
    d->zoomEnabled = enabled;
    update();
}

bool ColorWheel::getZoomEnabled() const
{
    return d->zoomEnabled;
}

void ColorWheel::setInteractionScale(float scale)
{
    if (areFinite(scale))
        d->interactionScale = scale;
}

float ColorWheel::interactionScale() const
{
    return d->interactionScale;
}

void ColorWheel::setHueRotation(float radians)
{
    if (areFinite(radians))
        d->hueRotation = radians;
}

float ColorWheel::hueRotation() const
{
    return d->hueRotation;
}

void ColorWheel::setDisplayMode(DisplayMode mode)
{
    if (mode == d->displayMode)
        return;
    d->displayMode = mode;
    update();
}

ColorWheel::DisplayMode ColorWheel::displayMode() const
{
    return d->displayMode;
}

void ColorWheel::setInteractionMode(InteractionMode mode)
{
    if (mode == d->interactionMode)
        return;
    d->interactionMode = mode;
    update();
}

ColorWheel::InteractionMode ColorWheel::interactionMode() const
{
    return d->interactionMode;
}

bool ColorWheel::isAbsoluteMode() const
{
    return d->interactionMode == kAbsolute || d->drag.has(kAbsoluteDrag);
}

QSize ColorWheel::sizeHint() const
{
    return QSize(d->sizeHintSide, d->sizeHintSide);
}

void ColorWheel::updateFromControl()
{
    Shown next = d->shown;
    float hue, saturation;
    getColorFromControl().getHSV(&hue, &saturation, &next.value);
    // A colour without hue or saturation keeps those of the last one that had them.
    if (next.value != 0.0f)
        next.saturation = saturation;
    if (next.value != 0.0f && saturation != 0.0f)
        next.hue = hue;
    display(next);
}

void ColorWheel::rangeChanged(double, double) {}

void ColorWheel::alphaEnabledChanged(bool) {}

}} // namespace Norvane::UI
