#include <designer/WidgetTable.h>

#include <designer/WidgetIcons.h>
#include <ui/colour/ColorWheel.h>
#include <ui/sliders/LogSlider.h>
#include <ui/sliders/Slider.h>
#include <ui/widgets/DisclosureButton.h>
#include <ui/widgets/DropAcceptingListWidget.h>
#include <ui/widgets/FilenameField.h>
#include <ui/widgets/FlatButton.h>
#include <ui/widgets/SearchField.h>

#include <QtGlobal>

namespace Norvane { namespace Designer {

namespace {

template <class Widget>
QWidget* create(QWidget* parent)
{
    return new Widget(parent);
}

/// Without a range it has no value, which Designer asks for at once.
QWidget* createLogSlider(QWidget* parent)
{
    UI::LogSlider* const slider = new UI::LogSlider(parent);
    slider->setRealRange(-2, 2, 100);
    return slider;
}

// In the form itself too: the code that is made of it knows nothing of createLogSlider().
const char* const kLogSliderRange = "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>"
                                    "<property name=\"minimumExponent\"><number>-2</number></property>"
                                    "<property name=\"maximumExponent\"><number>2</number></property>"
                                    "<property name=\"precision\"><number>100</number></property>";

const char* const kNothing = "";

const std::array<WidgetEntry, 8> kWidgets = {{
    {"Slider", "ui/sliders", QT_TRANSLATE_NOOP("WidgetTable", "A slider over a range of numbers, with ticks"),
     kNothing, create<UI::Slider>, drawSlider},
    {"LogSlider", "ui/sliders", QT_TRANSLATE_NOOP("WidgetTable", "A slider over powers of ten"),
     kLogSliderRange, createLogSlider, drawLogSlider},
    {"ColorWheel", "ui/colour",
     QT_TRANSLATE_NOOP("WidgetTable", "A wheel to choose a hue and a saturation, with the value"), kNothing,
     create<UI::ColorWheel>, drawColorWheel},
    {"SearchField", "ui/widgets",
     QT_TRANSLATE_NOOP("WidgetTable", "A line edit for search terms, with a prompt and a button to clear it"),
     kNothing, create<UI::SearchField>, drawSearchField},
    {"FilenameField", "ui/widgets",
     QT_TRANSLATE_NOOP("WidgetTable", "A line edit for the name of a file, with a button to choose one"),
     kNothing, create<UI::FilenameField>, drawFilenameField},
    {"FlatButton", "ui/widgets", QT_TRANSLATE_NOOP("WidgetTable", "A button that is nothing but its icon"),
     kNothing, create<UI::FlatButton>, drawFlatButton},
    {"DisclosureButton", "ui/widgets",
     QT_TRANSLATE_NOOP("WidgetTable", "A triangle that shows and hides other widgets"), kNothing,
     create<UI::DisclosureButton>, drawDisclosureButton},
    {"DropAcceptingListWidget", "ui/widgets",
     QT_TRANSLATE_NOOP("WidgetTable", "A list onto which files can be dropped"),
     "<property name=\"acceptsUrls\"><bool>true</bool></property>", create<UI::DropAcceptingListWidget>,
     drawDropAcceptingListWidget},
}};

} // namespace

const std::array<WidgetEntry, 8>& widgetTable()
{
    return kWidgets;
}

}} // namespace Norvane::Designer
