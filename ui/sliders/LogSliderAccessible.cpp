// What the logarithmic slider tells assistive technology.

#include <ui/sliders/LogSlider.h>

#include <ui/sliders/LogSliderPrivate.h>
#include <ui/toolkit/AccessibleValue.h>

#include <QLocale>

namespace Norvane { namespace UI {

void LogSlider::Private::installAccessible()
{
    /// Real values, or the positions of a plain slider as long as there is no range.
    class LogSliderValue : public AccessibleValue
    {
    public:
        explicit LogSliderValue(LogSlider* slider)
            : m_slider(slider)
        {
        }

        double value() const override { return at(m_slider->value()); }
        double minimum() const override { return at(m_slider->minimum()); }
        double maximum() const override { return at(m_slider->maximum()); }
        double step() const override
        {
            const int step = m_slider->singleStep();
            return hasRange() ? value() * (at(step) - 1) : step;
        }
        void setValue(double value) override
        {
            if (hasRange())
                m_slider->setRealValue(value);
            else
                m_slider->setValue(qRound(value));
        }
        QString text() const override { return m_slider->locale().toString(value(), 'g', 6); }

        static AccessibleValue* create(QWidget* slider)
        {
            return new LogSliderValue(static_cast<LogSlider*>(slider));
        }

    private:
        bool hasRange() const { return m_slider->d->precision > 0; }
        double at(int position) const
        {
            return hasRange() ? m_slider->calculateRealValue(position) : position;
        }

        LogSlider* const m_slider;
    };
    installAccessibleValue("Norvane::UI::LogSlider", LogSliderValue::create);
}

}} // namespace Norvane::UI
