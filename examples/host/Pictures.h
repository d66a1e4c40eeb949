#pragma once

#include "WorkProgress.h"

#include <QImage>
#include <QString>
#include <QStringList>

class QMimeData;
class QSize;

/// Picture files. Whatever is called a path here may be a FrameAddress too.
namespace Norvane { namespace Host { namespace Pictures {

/// The part of \a path that people know a picture by.
QString nameOf(const QString& path);

/// The file of the picture.
QString filePath(const QString& path);

/// The one spelling of \a path that pictures are compared by: absolute and without detours.
QString canonicalPath(const QString& path);

/// Reads the picture, turned as its camera was held; null, with a sentence in \a problem, if that fails. With
/// a \a largest size the picture is shrunk to it while reading. Any thread may read.
QImage read(const QString& path, const QSize& largest, QString* problem,
            const WorkProgress& progress = workToTheEnd);

/// What files with pictures are called: "*.png" and so on.
QStringList namePatterns();

/// For a file dialog.
QString fileFilter();

/// The files that are dragged with \a data.
QStringList draggedFiles(const QMimeData* data);

}}} // namespace Norvane::Host::Pictures
