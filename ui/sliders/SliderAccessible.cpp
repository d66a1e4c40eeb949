// What the slider tells assistive technology.

#include <ui/sliders/Slider.h>

#include <ui/sliders/SliderPrivate.h>
#include <ui/toolkit/AccessibleValue.h>

namespace Norvane { namespace UI {

void Slider::Private::installAccessible()
{
    class SliderValue : public AccessibleValue
    {
    public:
        explicit SliderValue(Slider* slider)
            : m_slider(slider)
        {
        }

        double value() const override { return m_slider->value(); }
        double minimum() const override { return m_slider->minimum(); }
        double maximum() const override { return m_slider->maximum(); }
        double step() const override { return m_slider->step(); }
        void setValue(double value) override { m_slider->d->dragTo(value); }
        QString text() const override { return SliderNumbers::textOf(value()); }

        static AccessibleValue* create(QWidget* slider)
        {
            return new SliderValue(static_cast<Slider*>(slider));
        }

    private:
        Slider* const m_slider;
    };
    installAccessibleValue("Norvane::UI::Slider", SliderValue::create);
}

}} // namespace Norvane::UI
