#pragma once

#include <QImage>
#include <QSize>
#include <QVector>

namespace Norvane { namespace Host {

/// What of a pixel a scope measures. Luma is that of Rec 709.
enum ScopeComponent { kLumaComponent, kRedComponent, kGreenComponent, kBlueComponent };

/// 0 to 255.
int levelOf(QRgb pixel, ScopeComponent component);

/// A waveform monitor: for each column of a picture, how many of its pixels have which level, white at the
/// top.
class Waveform
{
public:
    /// \a size is that of the image, whatever pictures measure.
    explicit Waveform(const QSize& size, ScopeComponent component = kLumaComponent);

    /// Counts the pixels of row \a y; \a picture is in QImage::Format_RGB32, and the same one in all calls.
    void addRow(const QImage& picture, int y);

    /// What was counted, light on a transparent ground, in a colour that tells the component.
    QImage image() const;

private:
    QSize m_size;
    ScopeComponent m_component;
    QVector<int> m_counts;
    /// Where the counts of a level and of a picture's column begin and lie.
    QVector<int> m_rows;
    QVector<int> m_columns;
};

}} // namespace Norvane::Host
