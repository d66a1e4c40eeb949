#pragma once

#include <NorvaneCoreExport.h>

class QWidget;

namespace Norvane {

namespace Colour {
class Color4;
}

namespace UI {

class ColorControl;

/// What every view of a ColorControl carries besides its widget, so that the control can drive it. View and
/// control may die in any order; each lets the other go.
class NORVANE_CORE_EXPORT ColorControlWidget
{
public:
    /// \a view, not owned, is the widget whose signals are connected with the control; it lives at least as
    /// long as this.
    explicit ColorControlWidget(QWidget* view);
    /// For the same widget, but without a control: a control drives only the original.
    ColorControlWidget(const ColorControlWidget& other);
    /// Leaves the control first.
    ColorControlWidget& operator=(const ColorControlWidget& other);
    /// Leaves the control.
    virtual ~ColorControlWidget();

    /// The default colour changed.
    virtual void defaultColorChanged();
    /// The colour changed, by an edit in any view or by the application.
    virtual void updateFromControl() = 0;
    /// There is another range for the components.
    virtual void rangeChanged(double minimum, double maximum) = 0;
    /// Alpha may be edited from now on, or no longer.
    virtual void alphaEnabledChanged(bool enabled) = 0;

    /// Leaves the control so far and joins \a control, which may be null. What the view's own signals are to
    /// do is for the caller to connect.
    void setControl(ColorControl* control);
    /// Leaves the control: it no longer drives this view, and all connections between the two end.
    void deregisterWithControl();

    /// Copies; opaque black without a control.
    Colour::Color4 getColorFromControl() const;
    Colour::Color4 getDefaultFromControl() const;

private:
    ColorControl* m_control = nullptr;
    QWidget* m_view;
};

} // namespace UI

} // namespace Norvane
