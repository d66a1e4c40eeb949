#pragma once

#include "FrameFormat.h"
#include "PictureFacts.h"
#include "WorkProgress.h"

#include <QImage>

/// Files that hold the Y'CbCr samples of one frame, as capture cards and converters of video write them.
namespace Norvane { namespace Host { namespace VideoFrames {

/// Whether the file at \a address is there and has the size of such a frame; if not, \a problem says so in a
/// sentence.
bool canRead(const FrameAddress& address, QString* problem);

/// The frame at \a address, decoded; null, with a sentence in \a problem, if that fails. Any thread may read.
QImage read(const FrameAddress& address, QString* problem, const WorkProgress& progress = workToTheEnd);

/// Writes \a picture as a frame of \a format, whose size is taken from the picture. A file that was there is
/// replaced when all is written. Any thread may write.
bool write(const QImage& picture, FrameFormat format, const QString& path, QString* problem,
           const WorkProgress& progress = workToTheEnd);

/// The legal codes of the format, and those that the file has, of up to 256 rows all over the frame.
Facts rangeFacts(const FrameAddress& address);

}}} // namespace Norvane::Host::VideoFrames
