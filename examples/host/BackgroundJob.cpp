#include "BackgroundJob.h"

#include <ui/progress/ProgressTask.h>

#include <QCoreApplication>
#include <QThreadPool>

namespace Norvane { namespace Host {

using UI::ProgressTask;

namespace {

const int kShortWork = 500; // ms
const int kProgressSteps = 1000;

/// Not QThreadPool::globalInstance(): painting waits for a thread of that one.
QThreadPool& threads()
{
    static QThreadPool pool;
    return pool;
}

} // namespace

BackgroundJob::BackgroundJob(const QString& name)
    : QObject(QCoreApplication::instance())
    , m_name(name)
{
    // A thread of the pool may not delete what belongs to the GUI thread.
    setAutoDelete(false);
}

BackgroundJob::~BackgroundJob() = default;

void BackgroundJob::start(int priority)
{
    m_sinceStart.start();
    threads().start(this, priority);
}

void BackgroundJob::cancel()
{
    m_isCancelled = true;
}

bool BackgroundJob::isCancelled() const
{
    return m_isCancelled;
}

void BackgroundJob::waitForAll()
{
    threads().waitForDone();
}

void BackgroundJob::run()
{
    if (!isCancelled())
        work();
    m_task.reset();
    // From here on the GUI thread may delete it.
    QMetaObject::invokeMethod(this, "finish", Qt::QueuedConnection);
}

void BackgroundJob::finish()
{
    Q_EMIT finished();
    deleteLater();
}

bool BackgroundJob::goOn(qint64 done, qint64 all)
{
    // Short work comes to its end even if nobody wants it: decoders of pictures complain on the console when
    // they are stopped.
    if (m_sinceStart.elapsed() < kShortWork)
        return true;
    if (!m_task)
        m_task.reset(new ProgressTask(m_name, kProgressSteps,
                                      ProgressTask::kUserCanCancel | ProgressTask::kShowTimeToGo));
    const int progress = all > 0 ? int(kProgressSteps * done / all) : 0;
    if (progress != m_task->progress())
        m_task->setProgress(progress);
    if (m_task->isCancelled())
        cancel();
    return !isCancelled();
}

}} // namespace Norvane::Host
