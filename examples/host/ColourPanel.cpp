#include "ColourPanel.h"

#include "PictureView.h"
#include "ViewerPanel.h"

#include <colour/Color4.h>
#include <ui/colour/ColorSlider.h>
#include <ui/colour/ColorWheel.h>

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Norvane { namespace Host {

using UI::ColorSlider;
using UI::ColorWheel;

namespace {

const double kMaxGain = 4;
const int kSmallestWheel = 120;
const QSize kStandingSlider(40, 100);
const char kRing[] = "ring";

/// Sliders take no keyboard focus by themselves.
void prepare(ColorSlider* slider)
{
    slider->setFocusPolicy(Qt::TabFocus);
    slider->setToolTip(
        ColourPanel::tr("%1. With Control: back to the default.").arg(slider->accessibleName()));
}

} // namespace

ColourPanel::ColourPanel(int number, QWidget* parent)
    : QWidget(parent)
    , m_control(this)
    , m_wheel(createWheel())
    , m_look(new QComboBox(this))
{
    setWindowTitle(number > 1 ? tr("Colour %1").arg(number) : tr("Colour"));
    m_control.setColorRange(0, kMaxGain);
    m_control.setColorRGBA(1, 1, 1, 1);
    m_control.setDefaultColorRGBA(1, 1, 1, 1);

    QHBoxLayout* const standing = new QHBoxLayout;
    addStanding(standing, m_control.createVerticalValueSlider(), tr("V", "value"));
    addStanding(standing, m_control.createVerticalTemperatureSlider(), tr("T", "temperature"));
    addStanding(standing, m_control.createVerticalMagentaGreenSlider(), tr("M", "magenta-green"));
    addStanding(standing, m_control.createVerticalIntensitySlider(), tr("I", "intensity"));

    QGridLayout* const lying = new QGridLayout;
    addLying(lying, m_control.createRedSlider(Qt::Horizontal));
    addLying(lying, m_control.createGreenSlider(Qt::Horizontal));
    addLying(lying, m_control.createBlueSlider(Qt::Horizontal));
    addLying(lying, m_control.createAlphaSlider(Qt::Horizontal));

    m_look->addItem(tr("Disc"));
    m_look->addItem(tr("Value ring"));
    m_look->setToolTip(tr("What the wheel looks like"));
    m_look->setAccessibleName(m_look->toolTip());
    connect(m_look, SIGNAL(currentIndexChanged(int)), this, SLOT(showWheel(int)));
    QPushButton* const reset = new QPushButton(tr("&Reset"), this);
    connect(reset, SIGNAL(clicked()), this, SLOT(resetToDefault()));

    QHBoxLayout* const bottom = new QHBoxLayout;
    bottom->addWidget(m_look);
    bottom->addStretch();
    bottom->addWidget(reset);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->addWidget(m_wheel, 3);
    layout->addLayout(standing, 2);
    layout->addLayout(lying);
    layout->addLayout(bottom);
    setViewer(nullptr);
}

ColorWheel* ColourPanel::createWheel()
{
    ColorWheel* const wheel = m_control.createColorWheel();
    // The control makes it for a small place.
    wheel->setDisplayMode(ColorWheel::kDisc);
    wheel->setInteractionMode(ColorWheel::kAbsolute);
    wheel->setZoomEnabled(true);
    wheel->setMinimumSize(kSmallestWheel, kSmallestWheel);
    wheel->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    wheel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return wheel;
}

QString ColourPanel::layoutState() const
{
    return m_look->currentIndex() == 0 ? QString() : QLatin1String(kRing);
}

void ColourPanel::setLayoutState(const QString& text)
{
    m_look->setCurrentIndex(text == QLatin1String(kRing) ? 1 : 0);
}

void ColourPanel::showWheel(int look)
{
    m_wheel->setDisplayMode(look == 0 ? ColorWheel::kDisc : ColorWheel::kValueRing);
}

void ColourPanel::addLying(QGridLayout* grid, ColorSlider* slider)
{
    prepare(slider);
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(slider->accessibleName(), this), row, 0);
    grid->addWidget(slider, row, 1);
}

void ColourPanel::addStanding(QBoxLayout* row, ColorSlider* slider, const QString& letter)
{
    prepare(slider);
    slider->setMinimumSize(kStandingSlider);
    QLabel* const label = new QLabel(letter, this);
    label->setToolTip(slider->toolTip());
    QVBoxLayout* const column = new QVBoxLayout;
    column->addWidget(slider, 1, Qt::AlignHCenter);
    column->addWidget(label, 0, Qt::AlignHCenter);
    row->addLayout(column);
}

void ColourPanel::setViewer(ViewerPanel* viewer)
{
    setEnabled(viewer != nullptr);
    const PictureGrade grade = viewer ? viewer->view()->grade() : PictureGrade();
    const bool isShown = viewer == m_viewer && std::equal(grade.gain, grade.gain + 3, m_grade.gain);
    m_viewer = viewer;
    m_grade = grade;
    if (viewer && !isShown)
        m_control.setColorRGBA(float(grade.gain[0]), float(grade.gain[1]), float(grade.gain[2]), 1);
}

void ColourPanel::resetToDefault()
{
    const Colour::Color4 color = m_control.getDefaultColor();
    m_control.rgbaChanged(double(color.r), double(color.g), double(color.b), double(color.a));
}

void ColourPanel::colorChanged(float red, float green, float blue, float alpha)
{
    if (!m_viewer)
        return;
    const float gain[] = {red, green, blue};
    m_grade = m_viewer->view()->grade();
    for (int i = 0; i < 3; ++i)
        m_grade.gain[i] = qMax(0.0, 1 + double(alpha) * (double(gain[i]) - 1));
    m_viewer->view()->setGrade(m_grade);
}

// Nothing here can be undone but by Reset.
void ColourPanel::dragStarted() {}

}} // namespace Norvane::Host
