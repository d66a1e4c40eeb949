#include "Waveform.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Host {

Waveform::Waveform(const QSize& size)
    : m_size(size)
    , m_counts(size.width() * size.height())
{
}

void Waveform::addRow(const QImage& picture, int y)
{
    const QRgb* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
        const int column = int(qint64(x) * m_size.width() / picture.width());
        const int row = (255 - qGray(pixels[x])) * (m_size.height() - 1) / 255;
        ++m_counts[row * m_size.width() + column];
    }
}

QImage Waveform::image() const
{
    QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    const int most = std::max(1, *std::max_element(m_counts.begin(), m_counts.end()));
    for (int y = 0; y < m_size.height(); ++y) {
        QRgb* const pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < m_size.width(); ++x) {
            // The root lets rare pixels be seen beside plain grounds.
            const int light = int(255 * std::sqrt(double(m_counts[y * m_size.width() + x]) / most));
            pixels[x] = qRgba(light / 2, light, light / 2, light);
        }
    }
    return image;
}

}} // namespace Norvane::Host
