#include <ui/progress/ProgressManager.h>

#include <ui/progress/ProgressTask.h>
#include <ui/progress/TaskPrivate.h>

#include <QMutexLocker>
#include <QString>
#include <QThread>
#include <QWidget>

namespace Norvane { namespace UI {

namespace {

void release(TaskPrivate* task)
{
    if (!task->ref.deref())
        delete task;
}

} // namespace

std::atomic<ProgressManager*> ProgressManager::_instance(nullptr);

ProgressManager::ProgressManager()
    : m_count(0)
    , m_wakeCount(0)
    , m_isLookWanted(false)
{
    ProgressManager* none = nullptr;
    _instance.compare_exchange_strong(none, this);
    // The first connection, so that whoever is woken finds the wake counted. On the emitting thread.
    connect(this, SIGNAL(wake()), this, SLOT(passOnWake()), Qt::DirectConnection);
}

ProgressManager::~ProgressManager()
{
    for (TaskPrivate* const task : m_tasks)
        release(task);
}

ProgressManager* ProgressManager::instance()
{
    return _instance;
}

QList<TaskPrivate*>& ProgressManager::tasks()
{
    return m_tasks;
}

QMutex* ProgressManager::lock()
{
    return &m_mutex;
}

int ProgressManager::tasksCount() const
{
    return m_count;
}

void ProgressManager::addTask(TaskPrivate* task)
{
    task->ref.ref();
    {
        const QMutexLocker locker(&m_mutex);
        m_tasks.append(task);
        ++m_count;
    }
    wakeUp();
}

void ProgressManager::removeTask(TaskPrivate* task)
{
    task->forgetOwner();
    if (!(task->flags & ProgressTask::kKeepWhenFinished))
        task->finished = true;
    wakeUp();
    // The window is the GUI thread's, also to ask for.
    if (m_count == 0)
        QMetaObject::invokeMethod(this, "releaseWindow", Qt::AutoConnection);
}

void ProgressManager::takeTask(int index)
{
    TaskPrivate* const task = m_tasks.takeAt(index);
    --m_count;
    release(task);
}

void ProgressManager::wakeUp()
{
    Q_EMIT wake();
}

unsigned ProgressManager::wakeCount() const
{
    return m_wakeCount.load(std::memory_order_acquire);
}

// Makes what was changed before the wake visible to a thread that reads the count.
void ProgressManager::passOnWake()
{
    m_wakeCount.fetch_add(1, std::memory_order_release);
    if (QThread::currentThread() == thread() || !m_isLookWanted.exchange(true))
        Q_EMIT lookWanted();
}

void ProgressManager::beginLook()
{
    m_isLookWanted.exchange(false);
}

void ProgressManager::releaseWindow()
{
    QWidget* const window = progressWidget();
    if (m_count == 0 && window && window->isWindow())
        window->setAttribute(Qt::WA_MacAlwaysShowToolWindow, false);
}

bool ProgressManager::progressVisible()
{
    const QWidget* const widget = progressWidget();
    return widget && widget->isVisible();
}

QWidget* ProgressManager::progressWidget()
{
    return nullptr;
}

void ProgressManager::saveState() {}

bool ProgressManager::restoreState()
{
    return false;
}

bool ProgressManager::createProgressWidget(QWidget*, const QString&, const QString&)
{
    return false;
}

bool ProgressManager::createProgressWidget(QWidget*)
{
    return false;
}

bool ProgressManager::deleteProgressWidget()
{
    return false;
}

}} // namespace Norvane::UI
