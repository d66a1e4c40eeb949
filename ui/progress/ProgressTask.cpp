#include <ui/progress/ProgressTask.h>

#include <ui/progress/ProgressManager.h>
#include <ui/progress/TaskPrivate.h>

#include <QMutex>
#include <QMutexLocker>
#include <QString>

namespace Norvane { namespace UI {

ProgressTask::ProgressTask(const QString& name, int maximum, int flags, ProgressTask* parent,
                           ProgressManager* manager)
    : d(new TaskPrivate(this, name, maximum, flags, parent ? parent->d.data() : nullptr))
    , m_manager(manager ? manager : ProgressManager::instance())
{
    if (m_manager)
        m_manager->addTask(d.data());
}

ProgressTask::ProgressTask(const ProgressTask& other) = default;

ProgressTask& ProgressTask::operator=(const ProgressTask& other)
{
    if (d != other.d)
        d->forgetOwner(this);
    d = other.d;
    m_manager = other.m_manager;
    return *this;
}

ProgressTask::~ProgressTask()
{
    if (m_manager)
        m_manager->removeTask(d.data());
}

void ProgressTask::taskCancelled() {}

void ProgressTask::taskPaused() {}

void ProgressTask::taskResumed() {}

bool ProgressTask::taskHide()
{
    return false;
}

void ProgressTask::doProgressCallback() {}

void ProgressTask::setProgress(int progress)
{
    d->progress = progress;
    wake();
    if (d->flags & kCallbackOnProgress)
        doProgressCallback();
}

void ProgressTask::setMaximum(int maximum)
{
    d->maximum = maximum;
    wake();
}

void ProgressTask::setCancelled(bool cancelled)
{
    d->cancelled = cancelled;
    wake();
}

void ProgressTask::setFlag(int flag, bool on)
{
    d->flags.setBits(flag, on);
    wake();
}

void ProgressTask::setMessage(const QString& message)
{
    {
        const QMutexLocker locker(m_manager ? m_manager->lock() : nullptr);
        d->setMessage(message);
        d->flags.setBits(TaskPrivate::kMessageChanged, true);
    }
    wake();
}

void ProgressTask::setErrorState(const QString& text)
{
    d->setMessage(text);
    d->flags.setBits(TaskPrivate::kErrorPending | TaskPrivate::kMessageChanged | kKeepWhenFinished, true);
    d->error = true;
    wake();
}

int ProgressTask::progress() const
{
    return d->progress;
}

bool ProgressTask::isCancelled() const
{
    return d->cancelled;
}

bool ProgressTask::isPaused() const
{
    return d->paused;
}

int ProgressTask::tasksCount() const
{
    return m_manager->tasksCount();
}

void ProgressTask::stopCallbacks()
{
    d->forgetOwner(this);
}

void ProgressTask::wake()
{
    if (m_manager)
        m_manager->wakeUp();
}

}} // namespace Norvane::UI
