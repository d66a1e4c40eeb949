#include "FrameFormat.h"

#include <QCoreApplication>
#include <QStringList>

namespace Norvane { namespace Host {

using namespace Colour;

namespace {

const int kPaddedTo = 128;
const char* const kAddressPrefix = "frame:";

/// What high definition was made with, and what came before it.
YCbCrMatrix matrixOfHeight(int height)
{
    return height > 576 ? kRec709 : kRec601;
}

YCbCrMatrix mpegMatrix(int)
{
    return kMoskLegacyMPEG;
}

YCbCrMatrix yuvsMatrix(int)
{
    return kMoskLegacyYUVS;
}

std::size_t fourWords(int pixels)
{
    return std::size_t(pixels) * 4 * sizeof(quint16);
}

void encodeIn16(const float* alpha, const float* red, const float* green, const float* blue,
                std::ptrdiff_t stride, void* destination, int count, const ForwardMatrix& matrix)
{
    encodeAYCbCr8In16(alpha, red, green, blue, stride, static_cast<quint16*>(destination), count, matrix);
}

QList<FrameLayout> createLayouts()
{
    // In the order of rowLayouts().
    const SampleRange ranges[] = {
        kVideoRange8,  kVideoRange8,  kVideoRange8,  kNoOffsetRange8, kVideoRange8, kNoOffsetRange8Normalised,
        kVideoRange10, kVideoRange16, kVideoRange16, kVideoRange16};
    QList<FrameLayout> layouts;
    for (const RowLayout& rows : rowLayouts()) {
        const FrameLayout layout = {rows, ranges[layouts.size()], matrixOfHeight};
        layouts.append(layout);
    }
    // Their chroma is coded over more codes than it has, which these matrices make good.
    layouts[1].usualMatrix = mpegMatrix;
    layouts[2].usualMatrix = yuvsMatrix;
    const RowLayout in16 = {"AYCbCr8In16", kSample16, false, fourWords, nullptr, nullptr, encodeIn16};
    const FrameLayout writable = {in16, kVideoRange8In16, matrixOfHeight};
    layouts.append(writable);
    return layouts;
}

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FrameFormat)
};

const FrameLayout* findLayout(const QString& name)
{
    for (const FrameLayout& layout : frameLayouts()) {
        if (layout.name().compare(name, Qt::CaseInsensitive) == 0)
            return &layout;
    }
    return nullptr;
}

bool findMatrix(const QString& name, YCbCrMatrix* matrix)
{
    for (int i = kRec709; i <= kMoskLegacyYUVS; ++i) {
        *matrix = YCbCrMatrix(i);
        if (name.compare(QLatin1String(matrixName(*matrix)), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

bool readSize(const QString& text, int* width, int* height)
{
    const QStringList sides = text.toLower().split(QLatin1Char('x'));
    if (sides.size() != 2)
        return false;
    *width = sides[0].toInt();
    *height = sides[1].toInt();
    const int most = FrameFormat::kLongestSide;
    return *width > 0 && *height > 0 && *width <= most && *height <= most;
}

QString readableLayouts()
{
    QStringList names;
    for (const FrameLayout& layout : frameLayouts()) {
        if (layout.hasDecoder())
            names.append(layout.name());
    }
    return names.join(QLatin1String(", "));
}

} // namespace

QString FrameLayout::name() const
{
    return QLatin1String(rows.name);
}

bool FrameLayout::hasDecoder() const
{
    return rows.decode;
}

bool FrameLayout::hasAlpha() const
{
    return name().contains(QLatin1Char('A'));
}

float FrameLayout::lumaCodes() const
{
    switch (rows.sampleType) {
    case kSample8:
        return 255;
    case kSample10:
        return 1023;
    case kSample16:
    case kSample32:
        return 65535;
    case kSampleFloat:
        break;
    }
    return 1;
}

float FrameLayout::chromaCodes() const
{
    return rows.sampleType == kSampleFloat ? 1 : lumaCodes() + 1;
}

const QList<FrameLayout>& frameLayouts()
{
    static const QList<FrameLayout> layouts = createLayouts();
    return layouts;
}

bool FrameFormat::parse(const QString& text, FrameFormat* format, QString* problem)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() < 2 || parts.size() > 3 || !readSize(parts[1], &format->width, &format->height)) {
        *problem = Texts::tr("\"%1\" is not a layout and a size, such as v210:1920x1080.").arg(text);
        return false;
    }
    format->layout = findLayout(parts[0]);
    if (!format->layout) {
        *problem = Texts::tr("There is no layout \"%1\". There are %2.").arg(parts[0], readableLayouts());
        return false;
    }
    if (!format->layout->hasDecoder()) {
        *problem = Texts::tr("Frames in %1 can be written, but not read.").arg(format->layout->name());
        return false;
    }
    format->matrix = format->layout->usualMatrix(format->height);
    if (parts.size() == 3 && !findMatrix(parts[2], &format->matrix)) {
        *problem = Texts::tr("There is no matrix \"%1\".").arg(parts[2]);
        return false;
    }
    return true;
}

QString FrameFormat::toString() const
{
    return QString::fromLatin1("%1:%2x%3:%4")
        .arg(layout->name())
        .arg(width)
        .arg(height)
        .arg(QLatin1String(matrixName(matrix)));
}

qint64 FrameFormat::rowBytes() const
{
    return qint64(layout->rows.bytes(width));
}

qint64 FrameFormat::paddedRowBytes() const
{
    if (layout->rows.sampleType != kSample10)
        return rowBytes();
    return (rowBytes() + kPaddedTo - 1) / kPaddedTo * kPaddedTo;
}

qint64 FrameFormat::rowDistance(qint64 fileSize) const
{
    for (const qint64 distance : {paddedRowBytes(), rowBytes()}) {
        if (fileSize == height * distance)
            return distance;
    }
    return 0;
}

FrameAddress FrameAddress::fromString(const QString& text)
{
    FrameAddress address;
    const QString prefix = QLatin1String(kAddressPrefix);
    const int bar = int(text.indexOf(QLatin1Char('|')));
    if (text.startsWith(prefix) && bar >= 0) {
        address.format = text.mid(prefix.size(), bar - int(prefix.size()));
        address.path = text.mid(bar + 1);
    }
    return address;
}

QString FrameAddress::toString() const
{
    return QLatin1String(kAddressPrefix) + format + QLatin1Char('|') + path;
}

}} // namespace Norvane::Host
