#pragma once

#include <NorvaneCoreExport.h>
#include <ui/colour/ColorControlWidget.h>
#include <ui/colour/ColorUIConstants.h>
#include <ui/sliders/Slider.h>

#include <memory>

namespace Norvane { namespace UI {

/// A slider for one component of a ColorControl's colour, which makes it (ColorControl::createRedSlider() and
/// so on). Its track shows what the component does to a colour. Pressed or dragged with Control held, it goes
/// to that component of the default colour.
class NORVANE_CORE_EXPORT ColorSlider : public Slider, public ColorControlWidget
{
    Q_OBJECT
public:
    /// From 0 to 1, temperature and magenta-green from -1 to 1; at 0. Without a parent.
    ColorSlider(ColorUIConstants::Component component, Qt::Orientation orientation);
    ~ColorSlider() override;

    /// The component that the slider was made for.
    ColorUIConstants::Component getCompenent() const;
    /// Whether ticks and numbers are painted; they are at first.
    void setTicksEnabled(bool enabled);

    void updateFromControl() override;
    void defaultColorChanged() override;
    /// Temperature and magenta-green range from -\a maximum to \a maximum.
    void rangeChanged(double minimum, double maximum) override;
    /// Disables a slider for alpha, and no other, while alpha may not be edited.
    void alphaEnabledChanged(bool enabled) override;

protected:
    void paintBackground(QPainter& painter) override;
    void paintTicks(QPainter& painter) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void setDefaultValue(float value);
    QGradient createGradient() const;

    struct Private;
    const std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
