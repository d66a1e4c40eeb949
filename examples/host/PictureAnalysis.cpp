#include "PictureAnalysis.h"

#include "Pictures.h"
#include "Waveform.h"

#include <ui/progress/ProgressTask.h>

#include <atomic>
#include <vector>

namespace Norvane { namespace Host {

using UI::ProgressTask;

namespace {

const int kFlags = ProgressTask::kUserCanCancel | ProgressTask::kUserCanPause | ProgressTask::kShowTimeToGo;
const int kPauseStep = 20; // ms

} // namespace

/// What the threads share: each takes the next picture. The tasks end with their pictures.
struct AnalysisBatch {
    AnalysisBatch(const QStringList& all, const QSize& size)
        : paths(all)
        , thumbnailSize(size)
        , whole(PictureAnalysis::tr("Analysing pictures"), int(all.size()), kFlags)
    {
        for (const QString& path : paths)
            tasks.emplace_back(new ProgressTask(Pictures::nameOf(path), 100, kFlags, &whole));
    }

    const QStringList paths;
    const QSize thumbnailSize;
    ProgressTask whole;
    std::vector<std::unique_ptr<ProgressTask>> tasks;
    std::atomic<int> next{0};
    std::atomic<int> done{0};
};

PictureAnalysis::PictureAnalysis(const QSize& thumbnailSize, QObject* parent)
    : QObject(parent)
    , m_thumbnailSize(thumbnailSize)
{
}

PictureAnalysis::~PictureAnalysis()
{
    if (const std::shared_ptr<AnalysisBatch> batch = m_batch.lock())
        batch->whole.setCancelled(true);
    forgetThreads();
}

bool PictureAnalysis::isRunning() const
{
    return !m_batch.expired();
}

void PictureAnalysis::forgetThreads()
{
    for (QThread* const thread : m_threads) {
        thread->wait();
        delete thread;
    }
    m_threads.clear();
}

void PictureAnalysis::start(const QStringList& paths)
{
    if (isRunning() || paths.isEmpty())
        return;
    forgetThreads();
    const std::shared_ptr<AnalysisBatch> batch = std::make_shared<AnalysisBatch>(paths, m_thumbnailSize);
    m_batch = batch;
    const int threads = qBound(1, QThread::idealThreadCount(), int(paths.size()));
    for (int i = 0; i < threads; ++i) {
        m_threads.append(new AnalysisThread(batch, this));
        connect(m_threads.last(), SIGNAL(analysed(QString, QImage, QImage)), this,
                SIGNAL(analysed(QString, QImage, QImage)));
        m_threads.last()->start(QThread::LowPriority);
    }
}

AnalysisThread::AnalysisThread(const std::shared_ptr<AnalysisBatch>& batch, QObject* parent)
    : QThread(parent)
    , m_batch(batch)
{
}

void AnalysisThread::run()
{
    const int count = int(m_batch->paths.size());
    m_batch->whole.setProgress(m_batch->done);
    for (int index = m_batch->next++; index < count; index = m_batch->next++) {
        analyse(index);
        m_batch->tasks[index].reset();
        m_batch->whole.setProgress(++m_batch->done);
    }
    // The last thread ends the whole task.
    m_batch.reset();
}

void AnalysisThread::analyse(int index)
{
    ProgressTask& task = *m_batch->tasks[index];
    if (!mayGoOn(index))
        return;
    task.setProgress(0);
    task.setMessage(PictureAnalysis::tr("Reading"));
    QString problem;
    const QImage picture = Pictures::read(m_batch->paths[index], QSize(), &problem,
                                          [&](qint64, qint64) { return mayGoOn(index); });
    if (!mayGoOn(index))
        return;
    if (picture.isNull()) {
        task.setErrorState(problem);
        return;
    }
    task.setMaximum(picture.height());
    task.setMessage(
        PictureAnalysis::tr("Waveform of %1 x %2 pixels").arg(picture.width()).arg(picture.height()));
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    Waveform waveform(m_batch->thumbnailSize);
    for (int y = 0; y < pixels.height(); ++y) {
        if (!mayGoOn(index))
            return;
        waveform.addRow(pixels, y);
        task.setProgress(y + 1);
    }
    const QImage thumbnail =
        picture.scaled(m_batch->thumbnailSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    Q_EMIT analysed(m_batch->paths[index], thumbnail, waveform.image());
}

/// False once the picture, or all of it, is cancelled. Holds the thread while the user pauses either.
bool AnalysisThread::mayGoOn(int index) const
{
    const ProgressTask& whole = m_batch->whole;
    const ProgressTask& task = *m_batch->tasks[index];
    const auto isCancelled = [&] { return whole.isCancelled() || task.isCancelled(); };
    while ((whole.isPaused() || task.isPaused()) && !isCancelled())
        msleep(kPauseStep);
    return !isCancelled();
}

}} // namespace Norvane::Host
