#pragma once

#include <NorvaneCoreExport.h>
#include <ui/colour/ColorUIConstants.h>

#include <QObject>

#include <memory>

namespace Norvane {

namespace Colour {
class Color4;
}

namespace UI {

class ColorControlWidget;
class ColorSlider;
class ColorWheel;
class IColorControlClient;

/// One edited colour, kept the same in all its views: it makes the views, and tells a client of each edit by
/// the user. Components are nominally 0..1, but not limited to that; a colour with a component that is not a
/// finite single-precision number is ignored.
///
/// Views have no parent; the application lays them out and owns them. Views, control and client calls may end
/// each other in any order. The client, not owned, has to outlive the control.
class NORVANE_CORE_EXPORT ColorControl : public QObject
{
    Q_OBJECT
public:
    /// Opaque black, also as the default colour, in a range of 0..4. \a client may be null.
    explicit ColorControl(IColorControlClient* client);
    ~ColorControl() override;

    /// The colour as it is now, and the one to return to.
    Colour::Color4 getColor() const;
    Colour::Color4 getDefaultColor() const;
    void getColorRGBA(float& red, float& green, float& blue, float& alpha) const;

    /// Shown by all views; the client is not told. Alpha is left as it is while it may not be edited.
    void setColorRGBA(float red, float green, float blue, float alpha);
    /// The colour that views show as the one to return to. Alpha as with setColorRGBA().
    void setDefaultColorRGBA(double red, double green, double blue, double alpha);
    /// The range of all sliders, but for temperature and magenta-green: theirs is -maximum..maximum.
    void setColorRange(double minimum, double maximum);
    /// Whether alpha may be edited; it may at first.
    void setAlphaEnabled(bool enabled);

    /// New views without a parent, connected with this control.
    ColorWheel* createColorWheel();
    ColorSlider* createRedSlider(Qt::Orientation orientation);
    ColorSlider* createGreenSlider(Qt::Orientation orientation);
    ColorSlider* createBlueSlider(Qt::Orientation orientation);
    /// Disabled while alpha may not be edited.
    ColorSlider* createAlphaSlider(Qt::Orientation orientation);

    /// New views as above, of components that are shown vertically.
    ColorSlider* createVerticalValueSlider();
    ColorSlider* createVerticalIntensitySlider();
    ColorSlider* createVerticalTemperatureSlider();
    ColorSlider* createVerticalMagentaGreenSlider();

    /// Lets \a widget go, as ColorControlWidget::deregisterWithControl() does. A view of another control is
    /// left alone.
    void removeWidget(ColorControlWidget* widget);

public Q_SLOTS:
    /// Edits by the user: all views are brought up to date, then the client is told. Whether alpha may be
    /// edited is for the view to respect.
    void hsvChanged(float hue, float saturation, float value);
    void rgbaChanged(double red, double green, double blue, double alpha);
    void redChanged(double value);
    void greenChanged(double value);
    void blueChanged(double value);
    void alphaChanged(double value);
    /// Hue and saturation stay.
    void valueChanged(double value);
    /// Of temperature, magenta-green and intensity, the other two stay.
    void intensityChanged(double intensity);
    void temperatureChanged(double temperature);
    void magentaGreenChanged(double value);
    /// The user begins to drag: told to the client.
    void dragStarted();

private:
    friend class ColorControlWidget;
    void addWidget(ColorControlWidget* widget);
    ColorSlider* createSlider(ColorUIConstants::Component component, Qt::Orientation orientation);
    /// False if the control died of it, as views may bring about.
    bool update();
    void edit(const Colour::Color4& color);
    void updateAndNotifyClient();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace UI

} // namespace Norvane
