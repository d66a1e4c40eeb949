// What the wheel tells assistive technology.

#include <ui/colour/ColorWheel.h>

#include <ui/colour/ColorWheelPrivate.h>
#include <ui/toolkit/AccessibleValue.h>

#include <algorithm>

namespace Norvane { namespace UI {

void ColorWheel::Private::installAccessible()
{
    class HueValue : public AccessibleValue
    {
    public:
        explicit HueValue(ColorWheel* wheel)
            : m_wheel(wheel)
        {
        }

        double value() const override { return double(m_wheel->getClampedHue()); }
        double minimum() const override { return 0.0; }
        double maximum() const override { return 1.0; }
        double step() const override { return 0.01; }
        void setValue(double value) override
        {
            Shown color = m_wheel->d->shown;
            color.hue = float(std::clamp(value, 0.0, 1.0));
            m_wheel->editAtOnce(color);
        }
        QString text() const override
        {
            const Shown color = m_wheel->d->shown;
            return tr("Hue %1 degrees, saturation %2%, value %3%")
                .arg(qRound(360.0 * value()))
                .arg(qRound(100.0f * color.saturation))
                .arg(qRound(100.0f * color.value));
        }

        static AccessibleValue* create(QWidget* wheel)
        {
            return new HueValue(static_cast<ColorWheel*>(wheel));
        }

    private:
        ColorWheel* const m_wheel;
    };
    installAccessibleValue("Norvane::UI::ColorWheel", HueValue::create);
}

}} // namespace Norvane::UI
