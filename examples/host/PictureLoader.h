#pragma once

#include "PictureLevels.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>

namespace Norvane { namespace Host {

class PictureReading;

/// Reads pictures on a thread, one at a time: the last one that was asked for. A reading that takes long is a
/// task in the progress dialog, which the user may cancel. When the loader is deleted nothing comes any more.
class PictureLoader : public QObject
{
    Q_OBJECT
public:
    explicit PictureLoader(QObject* parent = nullptr);
    ~PictureLoader() override;

    /// Begins to read the picture at \a path, a FrameAddress too, and gives the one before up. Shrunk to \a
    /// largest, if that is valid; such pictures wait for the whole ones.
    void load(const QString& path, const QSize& largest = QSize());
    /// Gives up what is being read: it will not be reported.
    void cancel();
    bool isLoading() const;
    /// The whole picture that was reported last, made ready for painting. Gone with the next load() or
    /// cancel().
    const PictureLevels& levels() const;

Q_SIGNALS:
    /// The picture that was asked for last. It is null, with a sentence in \a problem, if it could not be
    /// read or the user has cancelled that.
    void loaded(const QImage& picture, const QString& problem);

private Q_SLOTS:
    void report();

private:
    QPointer<PictureReading> m_reading;
    PictureLevels m_levels;
};

}} // namespace Norvane::Host
