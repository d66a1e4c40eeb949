#include "Waveform.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Norvane { namespace Host {

namespace {

/// Times the mean of the counts there are.
const double kFullAbove = 3;

/// In parts of 255, by component. Red, green and blue on top of one another give white.
const QRgb kTraceColours[] = {qRgb(128, 255, 128), qRgb(255, 40, 40), qRgb(0, 215, 0), qRgb(40, 60, 255)};

QRgb traceColour(ScopeComponent component, int light)
{
    const QRgb colour = kTraceColours[component];
    return qRgba(qRed(colour) * light / 255, qGreen(colour) * light / 255, qBlue(colour) * light / 255,
                 light);
}

/// The count that is shown as full light: a plain area, with its many pixels of one level, may not leave all
/// the rest dark.
double fullLight(const QVector<int>& counts)
{
    const double all = std::accumulate(counts.begin(), counts.end(), 0.0);
    const double used = double(counts.size() - std::count(counts.begin(), counts.end(), 0));
    return used > 0 ? kFullAbove * all / used : 1;
}

} // namespace

int levelOf(QRgb pixel, ScopeComponent component)
{
    switch (component) {
    case kRedComponent:
        return qRed(pixel);
    case kGreenComponent:
        return qGreen(pixel);
    case kBlueComponent:
        return qBlue(pixel);
    case kLumaComponent:
        break;
    }
    return (54 * qRed(pixel) + 183 * qGreen(pixel) + 19 * qBlue(pixel)) / 256;
}

Waveform::Waveform(const QSize& size, ScopeComponent component)
    : m_size(size)
    , m_component(component)
    , m_counts(size.width() * size.height())
{
    for (int level = 0; level < 256; ++level)
        m_rows.append((255 - level) * (size.height() - 1) / 255 * size.width());
}

void Waveform::addRow(const QImage& picture, int y)
{
    const QRgb* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    const int width = picture.width();
    while (m_columns.size() < width)
        m_columns.append(int(qint64(m_columns.size()) * m_size.width() / width));
    const int* const rows = m_rows.constData();
    const int* const columns = m_columns.constData();
    int* const counts = m_counts.data();
    for (int x = 0; x < width; ++x)
        ++counts[rows[levelOf(pixels[x], m_component)] + columns[x]];
}

QImage Waveform::image() const
{
    QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    const double full = fullLight(m_counts);
    for (int y = 0; y < m_size.height(); ++y) {
        QRgb* const pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < m_size.width(); ++x) {
            const int count = m_counts[y * m_size.width() + x];
            if (count == 0)
                continue;
            // The root lets rare pixels be seen beside plain grounds.
            const int light = int(255 * std::sqrt(std::min(1.0, count / full)));
            pixels[x] = traceColour(m_component, light);
        }
    }
    return image;
}

}} // namespace Norvane::Host
