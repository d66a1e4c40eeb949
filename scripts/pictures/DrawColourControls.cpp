// Draws the pictures of docs/colour-controls.md.
//
//   draw_colour_controls FOLDER     writes FOLDER/colour-wheels-light.png, -dark.png and the same of sliders

#include <scripts/pictures/Sheets.h>
#include <ui/colour/ColorControl.h>
#include <ui/colour/ColorSlider.h>
#include <ui/colour/ColorWheel.h>

#include <QGridLayout>
#include <QLabel>

using namespace Norvane;
using UI::ColorControl;
using UI::ColorSlider;
using UI::ColorWheel;

namespace {

struct Mode {
    ColorWheel::DisplayMode mode;
    const char* name;
};

const Mode kModes[] = {
    {ColorWheel::kDisc, "kDisc"},
    {ColorWheel::kInnerSquare, "kInnerSquare"},
    {ColorWheel::kValueRing, "kValueRing"},
    {ColorWheel::kEmbedded, "kEmbedded"},
};

/// A wheel of each mode, with its name.
QWidget* createWheels()
{
    QWidget* const sheet = new QWidget;
    QGridLayout* const grid = new QGridLayout(sheet);
    int column = 0;
    for (const Mode& mode : kModes) {
        ColorWheel* const wheel = new ColorWheel(nullptr, mode.mode);
        wheel->setHSV(0.08f, 0.6f, 0.85f);
        wheel->setRingValue(0.85f);
        wheel->setFixedSize(wheel->sizeHint());
        grid->addWidget(wheel, 0, column, Qt::AlignCenter);
        grid->addWidget(new QLabel(QLatin1String(mode.name)), 1, column, Qt::AlignCenter);
        ++column;
    }
    return sheet;
}

/// All sliders that a control makes: lying red, green, blue and alpha, standing the others.
QWidget* createSliders()
{
    QWidget* const sheet = new QWidget;
    ColorControl* const control = new ColorControl(nullptr);
    control->setParent(sheet);
    control->setColorRange(0, 1);
    control->setColorRGBA(0.75f, 0.45f, 0.3f, 1);
    ColorSlider* const lying[] = {
        control->createRedSlider(Qt::Horizontal), control->createGreenSlider(Qt::Horizontal),
        control->createBlueSlider(Qt::Horizontal), control->createAlphaSlider(Qt::Horizontal)};
    ColorSlider* const standing[] = {
        control->createVerticalValueSlider(), control->createVerticalTemperatureSlider(),
        control->createVerticalMagentaGreenSlider(), control->createVerticalIntensitySlider()};
    QGridLayout* const grid = new QGridLayout(sheet);
    for (int i = 0; i < 4; ++i) {
        lying[i]->setFixedSize(320, 24);
        grid->addWidget(new QLabel(lying[i]->accessibleName()), i, 0);
        grid->addWidget(lying[i], i, 1);
        standing[i]->setFixedSize(44, 150);
        grid->addWidget(standing[i], 0, 2 + i, 4, 1, Qt::AlignCenter);
        grid->addWidget(new QLabel(standing[i]->accessibleName()), 4, 2 + i, Qt::AlignCenter);
    }
    return sheet;
}

} // namespace

int main(int argc, char* argv[])
{
    return Pictures::drawSheets(argc, argv,
                                {{"colour-wheels", createWheels}, {"colour-sliders", createSliders}});
}
