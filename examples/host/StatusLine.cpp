#include "StatusLine.h"

#include <ui/toolkit/Painting.h>

#include <QPainter>
#include <QStyle>

namespace Norvane { namespace Host {

namespace {

/// In characters; less of a name tells nothing.
const int kShortestName = 5;

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(tr("Picture information"));
}

void StatusLine::setName(const QString& name)
{
    m_name = name;
    m_pixelWidth = 0;
    setToolTip(name);
    textHasChanged();
}

void StatusLine::setPixel(const QString& pixel)
{
    if (pixel == m_pixel)
        return;
    m_pixel = pixel;
    textHasChanged();
}

void StatusLine::setZoom(const QString& zoom)
{
    m_zoom = zoom;
    textHasChanged();
}

void StatusLine::textHasChanged()
{
    setAccessibleDescription(tr("%1; %2; %3").arg(m_name, m_pixel, m_zoom));
    update();
}

QSize StatusLine::sizeHint() const
{
    return QSize(320, fontMetrics().height() + 8);
}

QSize StatusLine::minimumSizeHint() const
{
    return QSize(0, sizeHint().height());
}

void StatusLine::paintEvent(QPaintEvent*)
{
    const QFontMetrics metrics = fontMetrics();
    const int gap = metrics.lineSpacing();
    const int zoomWidth = UI::textWidth(metrics, m_zoom);
    // Never narrower than before, so that the text does not jump about under a moving mouse.
    m_pixelWidth = qMax(m_pixelWidth, UI::textWidth(metrics, m_pixel) + gap);
    const bool showsPixel = !m_pixel.isEmpty() && zoomWidth + m_pixelWidth <= width();
    const int pixelWidth = showsPixel ? m_pixelWidth : 0;

    const QRect zoomRect(qMax(0, width() - zoomWidth), 0, zoomWidth, height());
    const QRect pixelRect(zoomRect.left() - pixelWidth, 0, pixelWidth, height());
    const QRect nameRect(0, 0, pixelRect.left() - gap, height());

    QPainter painter(this);
    const auto drawText = [&](const QRect& rect, const QString& text) {
        const QRect visual = QStyle::visualRect(layoutDirection(), this->rect(), rect);
        painter.drawText(visual, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
    };
    painter.setPen(palette().color(QPalette::WindowText));
    if (nameRect.width() >= kShortestName * metrics.averageCharWidth())
        drawText(nameRect, metrics.elidedText(m_name, Qt::ElideRight, nameRect.width()));
    if (showsPixel)
        drawText(pixelRect, m_pixel);
    drawText(zoomRect, m_zoom);
}

}} // namespace Norvane::Host
