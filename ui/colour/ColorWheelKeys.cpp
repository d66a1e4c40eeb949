// Editing a wheel without a mouse: by keys, and through assistive technology.

#include <ui/colour/ColorWheel.h>

#include <ui/colour/ColorWheelPrivate.h>
#include <ui/toolkit/AccessibleValue.h>

#include <QKeyEvent>
#include <QPointer>

#include <algorithm>

namespace Norvane { namespace UI {

namespace {

/// Of hue and saturation.
const float kStep = 0.01f;
/// Of the value.
const float kPageStep = 0.1f;

} // namespace

void ColorWheel::keyPressEvent(QKeyEvent* event)
{
    Shown color = d->shown;
    switch (event->key()) {
    case Qt::Key_Left:
        color.hue = float(wrappedTurn(color.hue - kStep));
        break;
    case Qt::Key_Right:
        color.hue = float(wrappedTurn(color.hue + kStep));
        break;
    case Qt::Key_Up:
        color.saturation = std::max(color.saturation, std::min(color.saturation + kStep, 1.0f));
        break;
    case Qt::Key_Down:
        color.saturation = std::max(color.saturation - kStep, 0.0f);
        break;
    case Qt::Key_PageUp:
        color.value += kPageStep;
        break;
    case Qt::Key_PageDown:
        color.value -= kPageStep;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    editAtOnce(color);
}

void ColorWheel::focusInEvent(QFocusEvent* event)
{
    switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        d->showsFocus = true;
        break;
    default:
        break;
    }
    QWidget::focusInEvent(event);
}

void ColorWheel::focusOutEvent(QFocusEvent* event)
{
    // With a window or a menu, focus comes back as it was.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        d->showsFocus = false;
    QWidget::focusOutEvent(event);
}

void ColorWheel::editAtOnce(const Shown& color)
{
    if (color == d->shown)
        return;
    // In the order of a drag, so that a client need not know where an edit came from.
    const QPointer<ColorWheel> self(this);
    Q_EMIT startDragSignal();
    if (self)
        editColor(color);
    if (self)
        Q_EMIT stopDragSignal();
}

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
        double step() const override { return double(kStep); }
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
