#include <ui/sliders/SliderColors.h>

#include <QPalette>

#include <cmath>

namespace Norvane { namespace UI {

namespace {

/// Contrast to the window, from 1 to 21, below which ticks and numbers cannot be seen.
const qreal kTickContrast = 1.4;
const qreal kNumberContrast = 3;

qreal luminance(const QColor& color)
{
    const auto linear = [](qreal channel) { return std::pow(channel, 2.2); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

qreal contrast(const QColor& a, const QColor& b)
{
    const qreal first = luminance(a) + 0.05;
    const qreal second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

QColor colorOnWindow(const QPalette& palette, QPalette::ColorRole role, qreal leastContrast)
{
    const QColor window = palette.color(QPalette::Window);
    if (contrast(palette.color(role), window) >= leastContrast)
        return palette.color(role);
    const QColor text = palette.color(QPalette::WindowText);
    return QColor((window.red() + text.red()) / 2, (window.green() + text.green()) / 2,
                  (window.blue() + text.blue()) / 2);
}

} // namespace

QColor tickColor(const QPalette& palette)
{
    return colorOnWindow(palette, QPalette::Mid, kTickContrast);
}

QColor numberColor(const QPalette& palette)
{
    return colorOnWindow(palette, QPalette::Shadow, kNumberContrast);
}

}} // namespace Norvane::UI
