#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThread>

#include <memory>

namespace Norvane { namespace Host {

struct AnalysisBatch;

/// Makes thumbnails and waveforms of pictures on threads of its own. The user follows it in the progress
/// dialog, a task with a sub-task for each picture, and pauses or cancels all of it or single pictures there.
class PictureAnalysis : public QObject
{
    Q_OBJECT
public:
    /// \a thumbnailSize is in physical pixels.
    explicit PictureAnalysis(const QSize& thumbnailSize, QObject* parent = nullptr);
    /// Cancels what is running and waits for it.
    ~PictureAnalysis() override;

    /// Does nothing while the last call's pictures are being analysed.
    void start(const QStringList& paths);
    bool isRunning() const;

Q_SIGNALS:
    /// A picture is done. On this object's thread.
    void analysed(const QString& path, const QImage& thumbnail, const QImage& waveform);

private:
    void forgetThreads();

    const QSize m_thumbnailSize;
    /// Alive while threads work on it.
    std::weak_ptr<AnalysisBatch> m_batch;
    QList<QThread*> m_threads;
};

/// Analyses pictures of a batch until none is left.
class AnalysisThread : public QThread
{
    Q_OBJECT
public:
    explicit AnalysisThread(const std::shared_ptr<AnalysisBatch>& batch, QObject* parent = nullptr);

Q_SIGNALS:
    void analysed(const QString& path, const QImage& thumbnail, const QImage& waveform);

protected:
    void run() override;

private:
    void analyse(int index);
    bool mayGoOn(int index) const;

    std::shared_ptr<AnalysisBatch> m_batch;
};

}} // namespace Norvane::Host
