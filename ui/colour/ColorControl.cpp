#include <ui/colour/ColorControl.h>

#include <ui/colour/ColorControlPrivate.h>
#include <ui/colour/FiniteNumbers.h>
#include <ui/colour/IColorControlClient.h>

namespace Norvane { namespace UI {

using Colour::Color4;

IColorControlClient::~IColorControlClient() = default;

ColorControl::ColorControl(IColorControlClient* client)
    : d(new Private)
{
    d->client = client;
}

ColorControl::~ColorControl()
{
    while (!d->widgets.isEmpty())
        removeWidget(d->widgets.last());
}

Color4 ColorControl::getColor() const
{
    return d->color;
}

Color4 ColorControl::getDefaultColor() const
{
    return d->defaultColor;
}

void ColorControl::getColorRGBA(float& red, float& green, float& blue, float& alpha) const
{
    d->color.getRGBA(&red, &green, &blue, &alpha);
}

void ColorControl::setColorRGBA(float red, float green, float blue, float alpha)
{
    if (!areFinite(red, green, blue, alpha))
        return;
    d->color.setRGB(red, green, blue);
    if (d->alphaEnabled)
        d->color.a = alpha;
    update();
}

void ColorControl::setDefaultColorRGBA(double red, double green, double blue, double alpha)
{
    const Color4 color = {float(red), float(green), float(blue), float(alpha)};
    if (!areFinite(color.r, color.g, color.b, color.a))
        return;
    d->defaultColor.setRGB(color.r, color.g, color.b);
    if (d->alphaEnabled)
        d->defaultColor.a = color.a;
    d->tellViews(this, [](ColorControlWidget* view) { view->defaultColorChanged(); });
}

void ColorControl::setColorRange(double minimum, double maximum)
{
    if (!areFinite(minimum, maximum))
        return;
    d->rangeMin = minimum;
    d->rangeMax = maximum;
    d->tellViews(this, [=](ColorControlWidget* view) { view->rangeChanged(minimum, maximum); });
}

void ColorControl::setAlphaEnabled(bool enabled)
{
    d->alphaEnabled = enabled;
    d->tellViews(this, [=](ColorControlWidget* view) { view->alphaEnabledChanged(enabled); });
}

void ColorControl::addWidget(ColorControlWidget* widget)
{
    d->widgets.append(widget);
}

void ColorControl::removeWidget(ColorControlWidget* widget)
{
    const int index = int(d->widgets.indexOf(widget));
    if (index < 0)
        return;
    d->widgets.remove(index);
    widget->deregisterWithControl();
}

bool ColorControl::update()
{
    return d->tellViews(this, [](ColorControlWidget* view) { view->updateFromControl(); });
}

void ColorControl::edit(const Color4& color)
{
    if (!areFinite(color.r, color.g, color.b, color.a))
        return;
    d->color = color;
    updateAndNotifyClient();
}

void ColorControl::updateAndNotifyClient()
{
    if (!update() || !d->client)
        return;
    const Color4 color = d->color;
    d->client->colorChanged(color.r, color.g, color.b, color.a);
}

void ColorControl::hsvChanged(float hue, float saturation, float value)
{
    if (!areFinite(hue, saturation, value))
        return;
    Color4 color = d->color;
    color.setHSV(hue, saturation, value);
    edit(color);
}

void ColorControl::rgbaChanged(double red, double green, double blue, double alpha)
{
    edit(Color4(float(red), float(green), float(blue), float(alpha)));
}

void ColorControl::redChanged(double value)
{
    edit(Color4(float(value), d->color.g, d->color.b, d->color.a));
}

void ColorControl::greenChanged(double value)
{
    edit(Color4(d->color.r, float(value), d->color.b, d->color.a));
}

void ColorControl::blueChanged(double value)
{
    edit(Color4(d->color.r, d->color.g, float(value), d->color.a));
}

void ColorControl::alphaChanged(double value)
{
    edit(Color4(d->color.r, d->color.g, d->color.b, float(value)));
}

void ColorControl::valueChanged(double value)
{
    Color4 color = d->color;
    float hue, saturation;
    color.getHSV(&hue, &saturation, nullptr);
    color.setHSV(hue, saturation, float(value));
    edit(color);
}

void ColorControl::intensityChanged(double intensity)
{
    Color4 color = d->color;
    float temperature, magentaGreen;
    color.getTemperatureMagentaGreenIntensity(&temperature, &magentaGreen, nullptr);
    color.setTemperatureMagentaGreenIntensity(temperature, magentaGreen, float(intensity));
    edit(color);
}

void ColorControl::temperatureChanged(double temperature)
{
    Color4 color = d->color;
    float magentaGreen, intensity;
    color.getTemperatureMagentaGreenIntensity(nullptr, &magentaGreen, &intensity);
    color.setTemperatureMagentaGreenIntensity(float(temperature), magentaGreen, intensity);
    edit(color);
}

void ColorControl::magentaGreenChanged(double value)
{
    Color4 color = d->color;
    float temperature, intensity;
    color.getTemperatureMagentaGreenIntensity(&temperature, nullptr, &intensity);
    color.setTemperatureMagentaGreenIntensity(temperature, float(value), intensity);
    edit(color);
}

void ColorControl::dragStarted()
{
    if (d->client)
        d->client->dragStarted();
}

}} // namespace Norvane::UI
