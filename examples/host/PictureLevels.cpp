#include "PictureLevels.h"

namespace Norvane { namespace Host {

PictureLevels::PictureLevels(const QImage& picture)
    : m_picture(picture)
{
    if (picture.isNull())
        return;
    m_levels.append(picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                      : QImage::Format_RGB32));
    while (m_levels.last().width() > 1 && m_levels.last().height() > 1) {
        const QImage& last = m_levels.last();
        m_levels.append(last.scaled((last.width() + 1) / 2, (last.height() + 1) / 2, Qt::IgnoreAspectRatio,
                                    Qt::SmoothTransformation));
    }
}

QImage PictureLevels::levelFor(qreal zoom) const
{
    // A painter looks at four pixels for each that it paints, so it must not shrink below a half.
    int level = 0;
    for (qreal remaining = zoom; remaining <= 0.5 && level + 1 < m_levels.size(); remaining *= 2)
        ++level;
    return m_levels.value(level);
}

}} // namespace Norvane::Host
