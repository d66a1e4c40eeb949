#pragma once

#include "FrameFormat.h"

namespace Norvane { namespace Host {

/// What the suffix and the size of the file at \a path suggest. Without a layout if neither says anything;
/// with a size of 0 if no usual size makes such a file.
FrameFormat suggestedFormat(const QString& path);

/// Gives \a format the usual size that makes a file of \a fileSize bytes in its layout. False, and nothing
/// done, if there is none.
bool suggestSize(FrameFormat* format, qint64 fileSize);

}} // namespace Norvane::Host
