#include "ScopeView.h"

#include <ui/toolkit/Painting.h>

#include <QPainter>
#include <QStyle>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Host {

namespace {

const int kLevels = 256;
const int kGap = 4;
const int kQuarters = 4;

// An instrument is read best on black, in a light palette as well: traces are light that adds up.
const QColor kGround(0x10, 0x10, 0x12);
const QColor kLine(0xff, 0xff, 0xff, 0x30);

/// Together less than white.
QColor fillColour(ScopeComponent component)
{
    switch (component) {
    case kRedComponent:
        return QColor(0xa8, 0x1c, 0x1c);
    case kGreenComponent:
        return QColor(0x14, 0x98, 0x14);
    case kBlueComponent:
        return QColor(0x28, 0x30, 0xb8);
    case kLumaComponent:
        break;
    }
    return QColor(0xa8, 0xac, 0xb0);
}

QVector<int> histogramOf(const QImage& picture, ScopeComponent component)
{
    QVector<int> counts(kLevels);
    int* const count = counts.data();
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            ++count[levelOf(line[x], component)];
    }
    return counts;
}

} // namespace

ScopeView::ScopeView(QWidget* parent)
    : QWidget(parent)
{
    m_components.append(kLumaComponent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

const QImage& ScopeView::picture() const
{
    return m_picture;
}

void ScopeView::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

void ScopeView::setComponents(const QList<ScopeComponent>& components)
{
    m_components = components;
    update();
}

QSize ScopeView::sizeHint() const
{
    return QSize(220, 140);
}

QSize ScopeView::minimumSizeHint() const
{
    return QSize(90, 60);
}

QRect ScopeView::field() const
{
    const int text = fontMetrics().height();
    // Numbers stand beside a scale that goes up, on both sides of their lines, and below the other one.
    if (!levelsGoUp())
        return rect().adjusted(kGap, kGap, -kGap, -text - kGap);
    const int numbers = UI::textWidth(fontMetrics(), tr("%1%").arg(100)) + 2 * kGap;
    return QStyle::visualRect(layoutDirection(), rect(),
                              rect().adjusted(numbers, text / 2, -kGap, -text / 2 - 1));
}

void ScopeView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect field = this->field();
    if (field.width() < 2 || field.height() < 2)
        return;
    painter.fillRect(field, kGround);
    paintScale(painter, field);
    if (m_picture.isNull())
        return;
    painter.setClipRect(field);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (const ScopeComponent component : m_components)
        paintTrace(painter, field, component);
}

void ScopeView::paintScale(QPainter& painter, const QRect& field) const
{
    const int text = fontMetrics().height();
    for (int quarter = 0; quarter <= kQuarters; ++quarter) {
        const QString number = tr("%1%").arg(100 * quarter / kQuarters);
        QRect place;
        QRect line;
        if (levelsGoUp()) {
            line = QRect(field.left(), field.bottom() - quarter * (field.height() - 1) / kQuarters,
                         field.width(), 1);
            const bool mirrored = field.right() < width() - 1 - kGap;
            place = QRect(mirrored ? field.right() + kGap : 0, line.top() - text / 2,
                          mirrored ? width() - field.right() - kGap : field.left() - kGap, text);
        } else {
            line = QRect(field.left() + quarter * (field.width() - 1) / kQuarters, field.top(), 1,
                         field.height());
            const int size = UI::textWidth(fontMetrics(), number);
            // The outermost numbers stay inside.
            const int left = qBound(0, line.left() - size / 2, width() - size);
            place = QRect(left, field.bottom() + 1, size, text);
        }
        painter.fillRect(line, kLine);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(place, Qt::AlignVCenter | (levelsGoUp() ? Qt::AlignRight : Qt::AlignHCenter),
                         number);
    }
}

WaveformView::WaveformView(QWidget* parent)
    : ScopeView(parent)
{
    setAccessibleName(tr("Waveform"));
    setWhatsThis(tr(
        "The waveform of the picture: for each of its columns, the levels of its pixels, white at the top."));
}

bool WaveformView::levelsGoUp() const
{
    return true;
}

void WaveformView::paintTrace(QPainter& painter, const QRect& field, ScopeComponent component) const
{
    // As many columns and levels as there are pixels on the screen, so that no thin line is lost, but not
    // more than the picture has, which would leave gaps.
    const QSize pixels = field.size() * UI::devicePixelRatio(this);
    Waveform waveform(pixels.boundedTo(QSize(picture().width(), kLevels)), component);
    for (int y = 0; y < picture().height(); ++y)
        waveform.addRow(picture(), y);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(field, waveform.image());
}

HistogramView::HistogramView(QWidget* parent)
    : ScopeView(parent)
{
    setAccessibleName(tr("Histogram"));
    setWhatsThis(tr("The histogram of the picture: how many of its pixels have which level, black on the "
                    "left. The two ends "
                    "may rise above the field."));
}

bool HistogramView::levelsGoUp() const
{
    return false;
}

void HistogramView::paintTrace(QPainter& painter, const QRect& field, ScopeComponent component) const
{
    const QVector<int> counts = histogramOf(picture(), component);
    // Black borders and clipped lights would flatten all the rest.
    const int most = std::max(1, *std::max_element(counts.begin() + 1, counts.end() - 1));
    const double step = double(field.width()) / kLevels;
    // Rectangles, not one path: the path would have so many edges that filling it takes most of the time.
    for (int level = 0; level < kLevels; ++level) {
        const double height = std::min(1.0, std::sqrt(double(counts[level]) / most)) * field.height();
        painter.fillRect(QRectF(field.left() + level * step, field.bottom() + 1 - height, step, height),
                         fillColour(component));
    }
}

}} // namespace Norvane::Host
