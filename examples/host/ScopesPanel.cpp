#include "ScopesPanel.h"

#include "PictureView.h"
#include "ScopeView.h"
#include "ViewerPanel.h"

#include <QHBoxLayout>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

namespace {

/// Pixels that are measured at most: a grid all over the picture.
const QSize kLargestSample(640, 256);

} // namespace

ScopesPanel::ScopesPanel(int number, QWidget* parent)
    : QWidget(parent)
    , m_scopes(new QBoxLayout(QBoxLayout::TopToBottom))
    , m_waveform(new WaveformView(this))
    , m_histogram(new HistogramView(this))
    , m_rgbButton(new QToolButton(this))
{
    setWindowTitle(number > 1 ? tr("Scopes %1").arg(number) : tr("Scopes"));
    m_rgbButton->setText(tr("RGB"));
    m_rgbButton->setToolTip(tr("Measure red, green and blue instead of the luma"));
    m_rgbButton->setWhatsThis(tr("Measures red, green and blue, each in its colour, instead of the luma."));
    m_rgbButton->setCheckable(true);
    m_rgbButton->setAutoRaise(true);
    m_scopes->addWidget(m_waveform, 1);
    m_scopes->addWidget(m_histogram, 1);

    QHBoxLayout* const bar = new QHBoxLayout;
    bar->addStretch(1);
    bar->addWidget(m_rgbButton);
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 2);
    layout->setSpacing(2);
    layout->addLayout(m_scopes, 1);
    layout->addLayout(bar);
    setFocusProxy(m_rgbButton);
    connect(m_rgbButton, SIGNAL(toggled(bool)), this, SLOT(chooseComponents()));
}

QString ScopesPanel::layoutState() const
{
    return QLatin1String(m_rgbButton->isChecked() ? "rgb" : "luma");
}

void ScopesPanel::setLayoutState(const QString& text)
{
    m_rgbButton->setChecked(text == QLatin1String("rgb"));
}

void ScopesPanel::chooseComponents()
{
    QList<ScopeComponent> components;
    if (m_rgbButton->isChecked())
        components << kRedComponent << kGreenComponent << kBlueComponent;
    else
        components << kLumaComponent;
    m_waveform->setComponents(components);
    m_histogram->setComponents(components);
}

void ScopesPanel::setViewer(ViewerPanel* viewer)
{
    // One that was deleted left a null pointer and its traces.
    if (viewer && viewer == m_viewer)
        return;
    if (m_viewer)
        disconnect(m_viewer->view(), nullptr, this, nullptr);
    m_viewer = viewer;
    if (m_viewer)
        connect(m_viewer->view(), SIGNAL(colorsChanged()), this, SLOT(measureSoon()));
    measureSoon();
}

// Once for all the changes that the mouse makes between two paintings.
void ScopesPanel::measureSoon()
{
    if (m_isStale)
        return;
    m_isStale = true;
    QTimer::singleShot(0, this, SLOT(measure()));
}

void ScopesPanel::measure()
{
    if (!m_isStale || !isVisible())
        return;
    m_isStale = false;
    const QImage seen = seenPicture();
    m_waveform->setPicture(seen);
    m_histogram->setPicture(seen);
}

QImage ScopesPanel::seenPicture() const
{
    if (!m_viewer || m_viewer->picture().isNull())
        return QImage();
    const QImage& picture = m_viewer->picture();
    // Without smoothing: the levels shall be those of pixels.
    const QImage sample = picture.scaled(picture.size().boundedTo(kLargestSample));
    return gradedImage(sample.convertToFormat(QImage::Format_RGB32), m_viewer->view()->grade());
}

void ScopesPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    measure();
}

void ScopesPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_scopes->setDirection(width() > 2 * height() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

}} // namespace Norvane::Host
