#pragma once

#include "BackgroundJob.h"
#include "FrameFormat.h"
#include "PictureGrade.h"

#include <QImage>

namespace Norvane { namespace Host {

/// Writes a picture as a frame of video into a file. If that fails or is cancelled, a file that was there is
/// left as it was.
class FrameWriting : public BackgroundJob
{
    Q_OBJECT
public:
    /// The size of \a format is that of the picture.
    FrameWriting(const QImage& picture, const PictureGrade& grade, const FrameFormat& format,
                 const QString& path);

    QString path() const;
    /// Why it failed; empty if it did not, or was cancelled. For the time after finished().
    QString problem() const;

protected:
    void work() override;

private:
    const QImage m_picture;
    const PictureGrade m_grade;
    const FrameFormat m_format;
    const QString m_path;
    QString m_problem;
};

}} // namespace Norvane::Host
