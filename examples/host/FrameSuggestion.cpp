#include "FrameSuggestion.h"

#include <QFileInfo>
#include <QSize>

namespace Norvane { namespace Host {

namespace {

/// In the order in which they are tried: the most usual ones first.
const QSize kUsualSizes[] = {QSize(1920, 1080), QSize(1280, 720),  QSize(3840, 2160), QSize(720, 576),
                             QSize(720, 486),   QSize(720, 480),   QSize(2048, 1080), QSize(4096, 2160),
                             QSize(1440, 1080), QSize(1998, 1080), QSize(2048, 1556), QSize(7680, 4320)};

/// What other programs call files in our layouts. Ours are called by the names of the layouts.
struct Suffix {
    const char* suffix;
    const char* layout;
};
const Suffix kSuffixes[] = {{"uyvy", "CbYCrY8"}, {"2vuy", "CbYCrY8"}, {"yuv", "CbYCrY8"},
                            {"yuyv", "YCbYCr8"}, {"yuy2", "YCbYCr8"}, {"yuvs", "YCbYCr8"},
                            {"v216", "CbYCrY16"}};

QString layoutOfSuffix(const QString& suffix)
{
    for (const Suffix& known : kSuffixes) {
        if (suffix.compare(QLatin1String(known.suffix), Qt::CaseInsensitive) == 0)
            return QLatin1String(known.layout);
    }
    return suffix;
}

} // namespace

FrameFormat suggestedFormat(const QString& path)
{
    const QFileInfo file(path);
    const QString name = layoutOfSuffix(file.suffix());
    FrameFormat bySize;
    for (const FrameLayout& layout : frameLayouts()) {
        if (!layout.hasDecoder())
            continue;
        FrameFormat format;
        format.layout = &layout;
        const bool isUsual = suggestSize(&format, file.size());
        if (layout.name().compare(name, Qt::CaseInsensitive) == 0)
            return format;
        if (isUsual && !bySize.layout)
            bySize = format;
    }
    return bySize;
}

bool suggestSize(FrameFormat* format, qint64 fileSize)
{
    for (const QSize& size : kUsualSizes) {
        FrameFormat usual = *format;
        usual.width = size.width();
        usual.height = size.height();
        if (usual.rowDistance(fileSize) == 0)
            continue;
        *format = usual;
        return true;
    }
    return false;
}

}} // namespace Norvane::Host
