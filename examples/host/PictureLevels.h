#pragma once

#include <QImage>
#include <QList>

namespace Norvane { namespace Host {

/// A picture, and the same halved and halved again, for painting it small. Cheap to copy; any thread may make
/// one, which takes a fraction of a second for a large picture.
class PictureLevels
{
public:
    PictureLevels() = default;
    /// Implicit: every picture has its levels.
    PictureLevels(const QImage& picture);

    /// As it came, whatever its format.
    const QImage& picture() const { return m_picture; }
    /// The smallest level that is not enlarged to show the picture at \a zoom, in a format that is painted
    /// fast. Of no picture it is null.
    QImage levelFor(qreal zoom) const;

private:
    QImage m_picture;
    QList<QImage> m_levels;
};

}} // namespace Norvane::Host
