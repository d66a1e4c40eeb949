#pragma once

#include <QImage>
#include <QSize>
#include <QVector>

namespace Norvane { namespace Host {

/// A waveform monitor: for each column of a picture, how many of its pixels have which brightness, white at
/// the top.
class Waveform
{
public:
    /// \a size is that of the image, whatever pictures measure.
    explicit Waveform(const QSize& size);

    /// Counts the pixels of row \a y; \a picture is in QImage::Format_RGB32.
    void addRow(const QImage& picture, int y);

    /// What was counted, light on a transparent ground.
    QImage image() const;

private:
    QSize m_size;
    QVector<int> m_counts;
};

}} // namespace Norvane::Host
