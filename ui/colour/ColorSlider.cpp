#include <ui/colour/ColorSlider.h>

#include <colour/Color4.h>
#include <colour/ColorModels.h>

#include <QColor>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

namespace Norvane { namespace UI {

using namespace ColorUIConstants;
using Colour::Color4;

namespace {

const int kGradientSteps = 5;
/// The single-precision 0.01, as everything else that comes from colours.
const double kStep = 0.01f;

bool isTwoSided(Component component)
{
    return component == kTemperature || component == kMagentaGreen;
}

/// False if there is no such component.
bool readComponent(const Color4& color, Component component, float* value)
{
    float hue, saturation, brightness, temperature, magentaGreen, intensity;
    color.getHSV(&hue, &saturation, &brightness);
    color.getTemperatureMagentaGreenIntensity(&temperature, &magentaGreen, &intensity);
    const float components[] = {color.r,    color.g,     color.b,      hue,       saturation,
                                brightness, temperature, magentaGreen, intensity, color.a};
    if (component < kRed || component > kAlpha)
        return false;
    *value = components[component];
    return true;
}

/// A colour that shows what \a value of \a component means.
Color4 sampleOf(Component component, float value)
{
    Color4 color(value, value, value, 1.0f);
    if (component == kRed)
        color.setRGB(value, 0.0f, 0.0f);
    else if (component == kGreen)
        color.setRGB(0.0f, value, 0.0f);
    else if (component == kBlue)
        color.setRGB(0.0f, 0.0f, value);
    else if (component == kHue)
        color.setHSV(value, 1.0f, 1.0f);
    else if (component == kTemperature)
        color.setTemperatureMagentaGreenIntensity(value, 0.0f, 0.5f);
    else if (component == kMagentaGreen)
        color.setTemperatureMagentaGreenIntensity(0.0f, value, 0.5f);
    return color;
}

/// The track of a component that has one colour, not a gradient.
QColor plainTrackOf(Component component)
{
    switch (component) {
    case kRed:
        return QColor(195, 75, 75);
    case kGreen:
        return QColor(91, 156, 91);
    case kBlue:
        return QColor(51, 103, 169);
    case kAlpha:
        return QColor(155, 149, 149);
    default:
        return QColor();
    }
}

QString nameOf(Component component)
{
    switch (component) {
    case kRed:
        return ColorSlider::tr("Red");
    case kGreen:
        return ColorSlider::tr("Green");
    case kBlue:
        return ColorSlider::tr("Blue");
    case kHue:
        return ColorSlider::tr("Hue");
    case kSaturation:
        return ColorSlider::tr("Saturation");
    case kValue:
        return ColorSlider::tr("Value");
    case kTemperature:
        return ColorSlider::tr("Temperature");
    case kMagentaGreen:
        return ColorSlider::tr("Magenta-green");
    case kIntensity:
        return ColorSlider::tr("Intensity");
    case kAlpha:
        return ColorSlider::tr("Alpha");
    }
    return QString();
}

} // namespace

struct ColorSlider::Private {
    Component component;
    bool ticksEnabled = true;
    double defaultValue = 0.0;
};

ColorSlider::ColorSlider(Component component, Qt::Orientation orientation)
    : Slider(RealValue, component == kHue ? LinearMode : LogMode, orientation, nullptr)
    , ColorControlWidget(this)
    , d(new Private)
{
    d->component = component;
    setAccessibleName(nameOf(component));
    setStep(kStep);
    setValue(0.0);
    rangeChanged(0.0, 1.0);
}

ColorSlider::~ColorSlider() = default;

Component ColorSlider::getCompenent() const
{
    return d->component;
}

void ColorSlider::setTicksEnabled(bool enabled)
{
    if (enabled == d->ticksEnabled)
        return;
    d->ticksEnabled = enabled;
    update();
}

void ColorSlider::setDefaultValue(float value)
{
    d->defaultValue = value;
}

void ColorSlider::updateFromControl()
{
    float component;
    if (readComponent(getColorFromControl(), d->component, &component))
        setValue(component);
}

void ColorSlider::defaultColorChanged()
{
    float component;
    if (readComponent(getDefaultFromControl(), d->component, &component))
        setDefaultValue(component);
}

void ColorSlider::rangeChanged(double minimum, double maximum)
{
    setRange(isTwoSided(d->component) ? -maximum : minimum, maximum);
}

void ColorSlider::alphaEnabledChanged(bool enabled)
{
    if (d->component == kAlpha)
        setEnabled(enabled);
}

QGradient ColorSlider::createGradient() const
{
    QLinearGradient gradient(0, 0, width(), 0);
    if (orientation() == Qt::Vertical) {
        gradient.setStart(0, height());
        gradient.setFinalStop(0, 0);
    }
    for (int i = 0; i <= kGradientSteps; ++i) {
        const double position = double(i) / kGradientSteps;
        Color4 color = sampleOf(d->component, float(positionToValue(position)));
        color.clamp();
        gradient.setColorAt(position, QColor::fromRgbF(color.r, color.g, color.b));
    }
    return gradient;
}

void ColorSlider::paintBackground(QPainter& painter)
{
    const QColor plain = plainTrackOf(d->component);
    if (plain.isValid())
        setColor(plain);
    else if (d->component != kSaturation)
        setColor(createGradient());
    Slider::paintBackground(painter);
}

void ColorSlider::paintTicks(QPainter& painter)
{
    if (d->ticksEnabled)
        Slider::paintTicks(painter);
}

void ColorSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        Slider::mouseMoveEvent(event);
        return;
    }
    const double wanted = d->defaultValue;
    if (value() == wanted)
        return;
    // Before it is reported: a client may answer with another colour.
    setValue(wanted);
    const QPointer<ColorSlider> self(this);
    Q_EMIT valueChanged(wanted);
    if (self)
        Q_EMIT sliderMoved(wanted);
}

}} // namespace Norvane::UI
