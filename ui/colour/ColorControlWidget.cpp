#include <ui/colour/ColorControlWidget.h>

#include <colour/Color4.h>
#include <ui/colour/ColorControl.h>

#include <QWidget>

namespace Norvane { namespace UI {

ColorControlWidget::ColorControlWidget(QWidget* view)
    : m_view(view)
{
}

ColorControlWidget::ColorControlWidget(const ColorControlWidget& other)
    : m_view(other.m_view)
{
}

ColorControlWidget& ColorControlWidget::operator=(const ColorControlWidget& other)
{
    if (this != &other) {
        deregisterWithControl();
        m_view = other.m_view;
    }
    return *this;
}

ColorControlWidget::~ColorControlWidget()
{
    deregisterWithControl();
}

void ColorControlWidget::defaultColorChanged() {}

void ColorControlWidget::setControl(ColorControl* control)
{
    if (control == m_control)
        return;
    deregisterWithControl();
    m_control = control;
    if (control)
        control->addWidget(this);
}

void ColorControlWidget::deregisterWithControl()
{
    if (!m_control)
        return;
    ColorControl* const control = m_control;
    // First, because the control in turn tells its former views to let it go.
    m_control = nullptr;
    QObject::disconnect(m_view, nullptr, control, nullptr);
    QObject::disconnect(control, nullptr, m_view, nullptr);
    control->removeWidget(this);
}

Colour::Color4 ColorControlWidget::getColorFromControl() const
{
    return m_control ? m_control->getColor() : Colour::Color4();
}

Colour::Color4 ColorControlWidget::getDefaultFromControl() const
{
    return m_control ? m_control->getDefaultColor() : Colour::Color4();
}

}} // namespace Norvane::UI
