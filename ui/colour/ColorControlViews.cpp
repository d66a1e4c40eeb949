// The views that a control makes.

#include <ui/colour/ColorControl.h>

#include <ui/colour/ColorControlPrivate.h>
#include <ui/colour/ColorSlider.h>
#include <ui/colour/ColorWheel.h>

namespace Norvane { namespace UI {

using namespace ColorUIConstants;

ColorWheel* ColorControl::createColorWheel()
{
    ColorWheel* const wheel = new ColorWheel(nullptr, ColorWheel::kEmbedded);
    wheel->setObjectName(QLatin1String(kEmbeddedWheelName));
    connect(wheel, SIGNAL(hsvChanged(float, float, float)), this, SLOT(hsvChanged(float, float, float)));
    connect(wheel, SIGNAL(startDragSignal()), this, SLOT(dragStarted()));
    wheel->setControl(this);
    wheel->updateFromControl();
    return wheel;
}

ColorSlider* ColorControl::createSlider(Component component, Qt::Orientation orientation)
{
    ColorSlider* const slider = new ColorSlider(component, orientation);
    connect(slider, SIGNAL(sliderPressed()), this, SLOT(dragStarted()));
    slider->setTicksEnabled(true);
    slider->setControl(this);
    slider->rangeChanged(d->rangeMin, d->rangeMax);
    slider->alphaEnabledChanged(d->alphaEnabled);
    slider->updateFromControl();
    slider->defaultColorChanged();
    return slider;
}

ColorSlider* ColorControl::createRedSlider(Qt::Orientation orientation)
{
    ColorSlider* const slider = createSlider(kRed, orientation);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(redChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createGreenSlider(Qt::Orientation orientation)
{
    ColorSlider* const slider = createSlider(kGreen, orientation);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(greenChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createBlueSlider(Qt::Orientation orientation)
{
    ColorSlider* const slider = createSlider(kBlue, orientation);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(blueChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createAlphaSlider(Qt::Orientation orientation)
{
    ColorSlider* const slider = createSlider(kAlpha, orientation);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(alphaChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createVerticalValueSlider()
{
    ColorSlider* const slider = createSlider(kValue, Qt::Vertical);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(valueChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createVerticalIntensitySlider()
{
    ColorSlider* const slider = createSlider(kIntensity, Qt::Vertical);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(intensityChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createVerticalTemperatureSlider()
{
    ColorSlider* const slider = createSlider(kTemperature, Qt::Vertical);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(temperatureChanged(double)));
    return slider;
}

ColorSlider* ColorControl::createVerticalMagentaGreenSlider()
{
    ColorSlider* const slider = createSlider(kMagentaGreen, Qt::Vertical);
    connect(slider, SIGNAL(valueChanged(double)), this, SLOT(magentaGreenChanged(double)));
    return slider;
}

}} // namespace Norvane::UI
