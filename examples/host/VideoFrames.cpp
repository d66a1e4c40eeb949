#include "VideoFrames.h"

#include "FileReplacement.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <limits>
#include <vector>

namespace Norvane { namespace Host { namespace VideoFrames {

using namespace Colour;

namespace {

const int kRowsForFacts = 256;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(VideoFrames)
};

/// The samples of a file, row by row.
class Samples
{
public:
    bool open(const FrameAddress& address, QString* problem);
    /// The row \a y without its padding, until the next call. Null if the file has become shorter meanwhile.
    /// Aligned for every layout: QByteArray's memory is.
    const void* row(int y);
    /// For the row converters.
    int count() const { return format.layout->rows.countsBytes ? int(format.rowBytes()) : format.width; }

    FrameFormat format;

private:
    QFile m_file;
    QByteArray m_row;
    qint64 m_distance = 0;
};

bool Samples::open(const FrameAddress& address, QString* problem)
{
    if (!FrameFormat::parse(address.format, &format, problem))
        return false;
    m_file.setFileName(address.path);
    if (!m_file.open(QIODevice::ReadOnly)) {
        *problem = Texts::tr("The file cannot be read: %1.").arg(m_file.errorString());
        return false;
    }
    m_distance = format.rowDistance(m_file.size());
    if (m_distance > 0)
        return true;
    *problem = Texts::tr("The file has %1 bytes; a frame of %2 x %3 pixels in %4 has %5.")
                   .arg(m_file.size())
                   .arg(format.width)
                   .arg(format.height)
                   .arg(format.layout->name())
                   .arg(format.height * format.rowBytes());
    return false;
}

const void* Samples::row(int y)
{
    m_file.seek(y * m_distance);
    m_row = m_file.read(format.rowBytes());
    return m_row.size() == format.rowBytes() ? m_row.constData() : nullptr;
}

int codeOf(float value)
{
    return int(255 * qBound(0.0f, value, 1.0f) + 0.5f);
}

QString codes(float value, const FrameFormat& format)
{
    return format.layout->rows.sampleType == kSampleFloat ? QString::number(double(value), 'f', 3)
                                                          : QString::number(qRound(value));
}

QString span(float least, float most, const FrameFormat& format)
{
    return Texts::tr("%1 to %2").arg(codes(least, format), codes(most, format));
}

/// The extremes of one kind of sample.
struct Extremes {
    float least = std::numeric_limits<float>::max();
    float most = std::numeric_limits<float>::lowest();

    void add(const std::vector<float>& samples)
    {
        const auto ends = std::minmax_element(samples.begin(), samples.end());
        least = std::min(least, *ends.first);
        most = std::max(most, *ends.second);
    }
};

} // namespace

bool canRead(const FrameAddress& address, QString* problem)
{
    return Samples().open(address, problem);
}

QImage read(const FrameAddress& address, QString* problem, const WorkProgress& progress)
{
    Samples samples;
    if (!samples.open(address, problem))
        return QImage();
    const FrameFormat& format = samples.format;
    const QImage::Format pixels = format.layout->hasAlpha() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    QImage picture(format.width, format.height, pixels);
    if (picture.isNull()) {
        *problem = Texts::tr("There is not enough memory for the frame.");
        return picture;
    }
    std::vector<float> rgba(std::size_t(format.width + 1) * 4);
    for (int y = 0; y < format.height; ++y) {
        const void* const row = samples.row(y);
        if (!row) {
            *problem = Texts::tr("The file ends too early.");
            return QImage();
        }
        format.layout->rows.decode(row, &rgba[3], &rgba[0], &rgba[1], &rgba[2], 4, samples.count(),
                                   inverseCoefficients(format.matrix));
        QRgb* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < format.width; ++x) {
            const float* const pixel = &rgba[std::size_t(x) * 4];
            line[x] = qRgba(codeOf(pixel[0]), codeOf(pixel[1]), codeOf(pixel[2]), codeOf(pixel[3]));
        }
        if (!progress(y + 1, format.height))
            return QImage();
    }
    return picture;
}

bool write(const QImage& picture, FrameFormat format, const QString& path, QString* problem,
           const WorkProgress& progress)
{
    format.width = picture.width();
    format.height = picture.height();
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    std::vector<float> rgba(std::size_t(format.width) * 4);
    QByteArray row(int(format.paddedRowBytes()), '\0');
    FileReplacement file(path);
    bool written = file.open();
    for (int y = 0; written && y < format.height; ++y) {
        const QRgb* const line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < format.width; ++x) {
            const int codes[] = {qRed(line[x]), qGreen(line[x]), qBlue(line[x]), qAlpha(line[x])};
            std::transform(codes, codes + 4, &rgba[std::size_t(x) * 4],
                           [](int code) { return float(code) / 255; });
        }
        format.layout->rows.encode(&rgba[3], &rgba[0], &rgba[1], &rgba[2], 4, row.data(), format.width,
                                   forwardMatrix(format.matrix));
        written = file.write(row) == row.size();
        if (!progress(y + 1, format.height))
            return false;
    }
    if (written && file.commit())
        return true;
    *problem = file.errorString();
    return false;
}

Facts rangeFacts(const FrameAddress& address)
{
    Samples samples;
    QString problem;
    if (!samples.open(address, &problem))
        return Facts();
    const FrameFormat& format = samples.format;
    const std::size_t width = std::size_t(format.width);
    // Decoders of pairs may give one pixel more.
    std::vector<float> luma(width + 1), cb(width + 1), cr(width + 1);
    Extremes lumaEnds, chromaEnds;
    const int rows = qMin(kRowsForFacts, format.height);
    for (int i = 0; i < rows; ++i) {
        const void* const row = samples.row(int(qint64(i) * format.height / rows));
        if (!row)
            return Facts();
        format.layout->rows.unpack(row, nullptr, luma.data(), cb.data(), cr.data(), 1, samples.count());
        for (std::vector<float>* const plane : {&luma, &cb, &cr})
            plane->back() = plane->front();
        lumaEnds.add(luma);
        chromaEnds.add(cb);
        chromaEnds.add(cr);
    }
    float legal[4];
    legalRange(format.layout->range, legal);
    const float lumaScale = format.layout->lumaCodes();
    const float chromaScale = format.layout->chromaCodes();
    return Facts() << qMakePair(Texts::tr("Layout"), format.layout->name())
                   << qMakePair(Texts::tr("Legal luma"), span(legal[0], legal[0] + legal[1], format))
                   << qMakePair(Texts::tr("Luma here"),
                                span(lumaEnds.least * lumaScale, lumaEnds.most * lumaScale, format))
                   << qMakePair(Texts::tr("Legal chroma"), span(legal[2], legal[2] + legal[3], format))
                   << qMakePair(Texts::tr("Chroma here"),
                                span(chromaEnds.least * chromaScale, chromaEnds.most * chromaScale, format));
}

}}} // namespace Norvane::Host::VideoFrames
