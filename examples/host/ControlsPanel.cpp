#include "ControlsPanel.h"

#include "PictureList.h"
#include "PictureView.h"
#include "ViewerPanel.h"

#include <ui/sliders/LogSlider.h>
#include <ui/sliders/Slider.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

using UI::LogSlider;
using UI::Slider;

namespace {

/// Stops up and down. Around 0, where one works most, the slider moves in small steps.
const double kMostExposure = 8;
const double kExposureStep = 0.1;

/// From 1 % to 10000 %.
const int kZoomDecades = 2;
const int kZoomPrecision = 100;

Slider* createSlider(Slider::ValueType type, Slider::SliderMode mode, QWidget* parent)
{
    Slider* const slider = new Slider(type, mode, Qt::Horizontal, parent);
    slider->setFocusPolicy(Qt::StrongFocus);
    return slider;
}

} // namespace

ControlsPanel::ControlsPanel(PictureList* pictures, int number, QWidget* parent)
    : QWidget(parent)
    , m_pictures(pictures)
    , m_exposure(createSlider(Slider::RealValue, Slider::LogMode, this))
    , m_exposureText(new QLabel(this))
    , m_frame(createSlider(Slider::IntegerValue, Slider::LinearMode, this))
    , m_frameText(new QLabel(this))
    , m_zoom(new LogSlider(Qt::Horizontal, this))
    , m_zoomText(new QLabel(this))
{
    setWindowTitle(number > 1 ? tr("Controls %1").arg(number) : tr("Controls"));
    m_exposure->setRange(-kMostExposure, kMostExposure);
    m_exposure->setStep(kExposureStep);
    m_exposure->setValue(0);
    m_zoom->setRealRange(-kZoomDecades, kZoomDecades, kZoomPrecision);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    QToolButton* const reset = new QToolButton(this);
    reset->setText(tr("Reset"));
    reset->setToolTip(tr("Show the picture as it is"));
    reset->setAutoRaise(true);
    addSlider(tr("&Exposure"), m_exposure, m_exposureText)->addWidget(reset);
    addSlider(tr("&Frame"), m_frame, m_frameText);
    addSlider(tr("&Zoom"), m_zoom, m_zoomText);
    layout->addStretch(1);
    setFocusProxy(m_exposure);
    takeColours();

    connect(m_exposure, SIGNAL(valueChanged(double)), this, SLOT(expose(double)));
    connect(reset, SIGNAL(clicked()), this, SLOT(resetExposure()));
    connect(m_frame, SIGNAL(valueChanged(double)), this, SLOT(showPictureNumber(double)));
    connect(m_zoom, SIGNAL(valueChanged(int)), this, SLOT(zoomView()));
    connect(pictures, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(showViewer()));
    connect(pictures, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(showViewer()));
    showViewer();
}

// Name and value go above the slider: it needs all the width that the panel has.
QHBoxLayout* ControlsPanel::addSlider(const QString& name, QWidget* slider, QLabel* value)
{
    QLabel* const label = new QLabel(name, this);
    label->setBuddy(slider);
    QHBoxLayout* const line = new QHBoxLayout;
    line->addWidget(label);
    line->addStretch(1);
    line->addWidget(value);
    QVBoxLayout* const column = static_cast<QVBoxLayout*>(layout());
    column->addLayout(line);
    column->addWidget(slider);
    return line;
}

PictureView* ControlsPanel::view() const
{
    return m_viewer ? m_viewer->view() : nullptr;
}

void ControlsPanel::setViewer(ViewerPanel* viewer)
{
    if (viewer != m_viewer) {
        if (m_viewer)
            disconnect(m_viewer->view(), nullptr, this, nullptr);
        m_viewer = viewer;
        if (m_viewer)
            connect(m_viewer->view(), SIGNAL(viewChanged()), this, SLOT(showZoom()));
    }
    showViewer();
}

void ControlsPanel::showViewer()
{
    const double exposure = view() ? view()->grade().exposure : 0;
    m_exposure->setEnabled(view());
    m_exposure->setValue(exposure);
    m_exposureText->setText(tr("%1").arg(exposure, 0, 'f', 2));

    const QStringList paths = m_pictures->paths();
    const int number = m_viewer ? int(paths.indexOf(m_viewer->picturePath())) + 1 : 0;
    m_frame->setEnabled(view() && paths.size() > 1);
    m_frame->setRange(1, qMax(1, int(paths.size())));
    m_frame->setValue(qMax(1, number));
    m_frameText->setText(number > 0 ? tr("%1 of %2").arg(number).arg(paths.size()) : QString());
    showZoom();
}

void ControlsPanel::showZoom()
{
    const bool hasPicture = view() && !view()->picture().isNull();
    m_zoom->setEnabled(hasPicture);
    m_zoomText->setText(hasPicture ? tr("%1%").arg(view()->zoom() * 100, 0, 'f', 0) : QString());
    // The slider knows whole positions only: told what it has just set, it would move under the hand.
    if (!hasPicture || qFuzzyCompare(view()->zoom(), m_zoom->realValue()))
        return;
    const bool wasBlocked = m_zoom->blockSignals(true);
    m_zoom->setRealValue(view()->zoom());
    m_zoom->blockSignals(wasBlocked);
}

void ControlsPanel::expose(double stops)
{
    if (!view())
        return;
    PictureGrade grade = view()->grade();
    grade.exposure = stops;
    view()->setGrade(grade);
    showViewer();
}

void ControlsPanel::resetExposure()
{
    expose(0);
}

void ControlsPanel::showPictureNumber(double number)
{
    const QStringList paths = m_pictures->paths();
    const int index = qRound(number) - 1;
    if (m_viewer && index >= 0 && index < paths.size())
        m_viewer->openPicture(paths[index]);
}

void ControlsPanel::zoomView()
{
    if (view())
        view()->zoomTo(m_zoom->realValue());
}

void ControlsPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColours();
}

// Sliders keep the colours of the palette that they were made with.
void ControlsPanel::takeColours()
{
    m_exposure->setColor(palette().color(QPalette::Light));
    m_frame->setColor(palette().color(QPalette::Light));
    m_zoom->setExpTickColor(palette().color(QPalette::WindowText));
    m_zoom->setTickColor(palette().color(QPalette::Disabled, QPalette::WindowText));
}

}} // namespace Norvane::Host
