#include "Pictures.h"

#include "FrameFormat.h"
#include "VideoFrames.h"

#include <ui/toolkit/Images.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QList>
#include <QMimeData>
#include <QUrl>

namespace Norvane { namespace Host { namespace Pictures {

QString nameOf(const QString& path)
{
    return QFileInfo(filePath(path)).fileName();
}

QString filePath(const QString& path)
{
    const FrameAddress address = FrameAddress::fromString(path);
    return address.path.isNull() ? path : address.path;
}

QString canonicalPath(const QString& path)
{
    FrameAddress address = FrameAddress::fromString(path);
    if (address.path.isNull())
        return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    address.path = canonicalPath(address.path);
    return address.toString();
}

namespace {

/// Tells its reader's progress, and comes to an end where the reader is to stop.
class WatchedFile : public QFile
{
public:
    WatchedFile(const QString& path, const WorkProgress& progress)
        : QFile(path)
        , m_progress(progress)
    {
    }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        return m_progress(pos(), size()) ? QFile::readData(data, most) : -1;
    }

private:
    const WorkProgress& m_progress;
};

QImage readFrame(const FrameAddress& address, const QSize& largest, QString* problem,
                 const WorkProgress& progress)
{
    const QImage frame = VideoFrames::read(address, problem, progress);
    const bool fits = frame.width() <= largest.width() && frame.height() <= largest.height();
    return !largest.isValid() || fits ? frame
                                      : frame.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QImage read(const QString& path, const QSize& largest, QString* problem, const WorkProgress& progress)
{
    const FrameAddress address = FrameAddress::fromString(path);
    if (!QFileInfo(filePath(path)).isFile()) {
        *problem = QCoreApplication::translate("Pictures", "There is no such file.");
        return QImage();
    }
    if (!address.path.isNull())
        return readFrame(address, largest, problem, progress);
    WatchedFile file(path, progress);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem =
            QCoreApplication::translate("Pictures", "The file cannot be read: %1.").arg(file.errorString());
        return QImage();
    }
    QImageReader reader(&file);
    UI::setAutoTransform(&reader);
    // Files are what they hold, not what they are called.
    reader.setDecideFormatFromContent(true);
    QSize size = reader.size();
    if (largest.isValid() && (size.width() > largest.width() || size.height() > largest.height())) {
        size.scale(largest, Qt::KeepAspectRatio);
        reader.setScaledSize(size.expandedTo(QSize(1, 1)));
    }
    const QImage picture = reader.read();
    if (picture.isNull())
        *problem = QCoreApplication::translate("Pictures", "The file is no picture that can be read.");
    return picture;
}

QStringList namePatterns()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray& format : formats)
        patterns.append(QLatin1String("*.") + QString::fromLatin1(format));
    return patterns;
}

QString fileFilter()
{
    return QCoreApplication::translate("Pictures", "Pictures (%1);;All files (*)")
        .arg(namePatterns().join(QLatin1String(" ")));
}

QStringList draggedFiles(const QMimeData* data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        const QString path = url.toLocalFile();
        if (QFileInfo(path).isFile())
            paths.append(canonicalPath(path));
    }
    return paths;
}

}}} // namespace Norvane::Host::Pictures
