#include "FrameWriting.h"

#include "Pictures.h"
#include "VideoFrames.h"

namespace Norvane { namespace Host {

FrameWriting::FrameWriting(const QImage& picture, const PictureGrade& grade, const FrameFormat& format,
                           const QString& path)
    : BackgroundJob(tr("Saving %1").arg(Pictures::nameOf(path)))
    , m_picture(picture)
    , m_grade(grade)
    , m_format(format)
    , m_path(path)
{
}

QString FrameWriting::path() const
{
    return m_path;
}

QString FrameWriting::problem() const
{
    return m_problem;
}

void FrameWriting::work()
{
    const QImage pixels = m_picture.convertToFormat(QImage::Format_ARGB32);
    VideoFrames::write(m_grade.isNeutral() ? pixels : gradedImage(pixels, m_grade), m_format, m_path,
                       &m_problem, [this](qint64 done, qint64 all) { return goOn(done, all); });
}

}} // namespace Norvane::Host
