// Draws the pictures of docs/sliders.md.
//
//   draw_sliders FOLDER     writes FOLDER/sliders-light.png and FOLDER/sliders-dark.png

#include <scripts/pictures/Sheets.h>
#include <ui/sliders/LogSlider.h>
#include <ui/sliders/Slider.h>

#include <QGridLayout>
#include <QLabel>

using namespace Norvane;
using UI::Slider;

namespace {

struct Example {
    const char* name;
    Slider::ValueType type;
    Slider::SliderMode mode;
    double minimum;
    double maximum;
    double value;
};

const Slider::ValueType kInteger = Slider::IntegerValue;
const Slider::ValueType kReal = Slider::RealValue;
const Slider::SliderMode kLinear = Slider::LinearMode;
const Slider::SliderMode kLog = Slider::LogMode;

const Example kExamples[] = {
    {"Linear, 0 to 1", kReal, kLinear, 0, 1, 0.4},
    {"Linear, -1 to 1", kReal, kLinear, -1, 1, 0.25},
    {"Integer, 0 to 100", kInteger, kLinear, 0, 100, 42},
    {"Integer, 1 to 7", kInteger, kLinear, 1, 7, 3},
    {"Logarithmic, 0.01 to 100", kReal, kLog, 0.01, 100, 5},
    {"Logarithmic, 20 to 20000", kReal, kLog, 20, 20000, 440},
    {"Logarithmic, -100 to -1", kReal, kLog, -100, -1, -10},
    {"Square root, 0 to 4", kReal, kLog, 0, 4, 1},
    {"Square root, -4 to 9", kReal, kLog, -4, 9, 1},
    {"Square root, -9 to 0", kReal, kLog, -9, 0, -2},
    {"Value below the range", kReal, kLinear, 0, 1, -3},
    {"Value above the range", kReal, kLinear, 0, 1, 3},
};

Slider* createSlider(const Example& example, Qt::Orientation orientation, QWidget* parent)
{
    Slider* const slider = new Slider(example.type, example.mode, orientation, parent);
    slider->setRange(example.minimum, example.maximum);
    slider->setValue(example.value);
    return slider;
}

UI::LogSlider* createLogSlider(Qt::Orientation orientation, QWidget* parent)
{
    UI::LogSlider* const slider = new UI::LogSlider(orientation, parent);
    slider->setRealRange(-2, 3, 100);
    slider->setRealValue(30);
    const QPalette palette = slider->palette();
    slider->setExpTickColor(palette.color(QPalette::WindowText));
    slider->setTickColor(palette.color(QPalette::Disabled, QPalette::WindowText));
    return slider;
}

/// Every example lying, with its name, and some standing.
QWidget* createSheet()
{
    QWidget* const sheet = new QWidget;
    QGridLayout* const grid = new QGridLayout(sheet);
    int row = 0;
    for (const Example& example : kExamples) {
        grid->addWidget(new QLabel(QLatin1String(example.name)), row, 0);
        grid->addWidget(createSlider(example, Qt::Horizontal, sheet), row, 1);
        ++row;
    }
    grid->addWidget(new QLabel(QLatin1String("LogSlider, 0.01 to 1000")), row, 0);
    grid->addWidget(createLogSlider(Qt::Horizontal, sheet), row, 1);
    grid->setColumnMinimumWidth(1, 420);

    int column = 2;
    for (const int standing : {0, 4, 8}) {
        Slider* const slider = createSlider(kExamples[standing], Qt::Vertical, sheet);
        slider->setFixedWidth(44);
        grid->addWidget(slider, 0, column++, row + 1, 1);
    }
    grid->addWidget(createLogSlider(Qt::Vertical, sheet), 0, column, row + 1, 1);
    return sheet;
}

} // namespace

int main(int argc, char* argv[])
{
    return Pictures::drawSheets(argc, argv, {{"sliders", createSheet}});
}
