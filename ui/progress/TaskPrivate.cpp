#include <ui/progress/TaskPrivate.h>

#include <ui/progress/ProgressTask.h>

namespace Norvane { namespace UI {

TaskPrivate::TaskPrivate(ProgressTask* owningHandle, const QString& taskName, int maximumProgress,
                         int flagBits, TaskPrivate* parentRecord)
    : owner(owningHandle)
    , startTime(QTime::currentTime())
    , name(taskName)
    , maximum(maximumProgress)
    , parent(parentRecord)
    , progress(-1)
    , flags(flagBits)
    , cancelled(false)
    , paused(false)
    , finished(false)
    , error(false)
{
}

TaskPrivate::~TaskPrivate() = default;

void TaskPrivate::notify(void (ProgressTask::*callback)())
{
    const std::lock_guard<std::recursive_mutex> guard(m_ownerMutex);
    if (ProgressTask* const handle = owner)
        (handle->*callback)();
}

bool TaskPrivate::isHidden()
{
    const std::lock_guard<std::recursive_mutex> guard(m_ownerMutex);
    ProgressTask* const handle = owner;
    return handle && handle->taskHide();
}

void TaskPrivate::forgetOwner()
{
    const std::lock_guard<std::recursive_mutex> guard(m_ownerMutex);
    owner = nullptr;
}

void TaskPrivate::forgetOwner(const ProgressTask* handle)
{
    const std::lock_guard<std::recursive_mutex> guard(m_ownerMutex);
    if (owner == handle)
        owner = nullptr;
}

QString TaskPrivate::message() const
{
    const std::lock_guard<std::mutex> guard(m_messageMutex);
    return m_message;
}

// The former text is freed without the lock.
void TaskPrivate::setMessage(const QString& message)
{
    QString text = message;
    const std::lock_guard<std::mutex> guard(m_messageMutex);
    m_message.swap(text);
}

}} // namespace Norvane::UI
