#pragma once

#include <NorvaneCoreExport.h>
#include <ui/progress/Relaxed.h>

#include <QExplicitlySharedDataPointer>
#include <QSharedData>
#include <QString>
#include <QTime>

#include <mutex>

namespace Norvane { namespace UI {

class ProgressTask;
class ProgressWidget;

/// What is known of a task: written by its handles (ProgressTask) on any thread, shown by the GUI thread.
///
/// Handles, the manager's list, the row on screen and sub-tasks each hold a reference, and the last one frees
/// the record; so whoever has a record may use it, whatever has become of the others. Only the manager's list
/// says whether the task is still listed.
class NORVANE_CORE_EXPORT TaskPrivate : public QSharedData
{
public:
    /// Bits of flags beside those of ProgressTask::Flag, for the messages from handles to the row.
    enum InternalFlag {
        kMessageChanged = 0x8000, ///< the message changed since the row last showed it
        kErrorPending = 0x80000   ///< the row has yet to show that the task failed
    };

    /// As given to the constructor of \a owner; \a parent may be null.
    TaskPrivate(ProgressTask* owner, const QString& name, int maximum, int flags, TaskPrivate* parent);
    ~TaskPrivate();

    /// Calls the owner, or does nothing once it is gone. A handle that is being destroyed on another thread
    /// waits until the call returns. The call may destroy the owner and whatever else refers to the record:
    /// who calls this holds a reference. GUI thread only.
    void notify(void (ProgressTask::*callback)());
    /// ProgressTask::taskHide() of the owner, in the same way; false without one.
    bool isHidden();

    /// After this returns, no call to the owner is running on another thread, and none will begin.
    void forgetOwner();
    /// The same if \a handle is the owner; else nothing.
    void forgetOwner(const ProgressTask* handle);

    /// Takes the record's own lock, never the manager's.
    QString message() const;
    void setMessage(const QString& message);

    /// The handle that made the record; null once it, or a copy of it, is destroyed.
    Relaxed<ProgressTask*> owner;
    /// Not changed once the task is listed.
    QTime startTime;
    const QString name;
    /// The progress at which the job is complete.
    Relaxed<int> maximum;
    /// Null for a task that is nobody's sub-task.
    const QExplicitlySharedDataPointer<TaskPrivate> parent;
    /// -1: not started; 0: started, nothing done yet; above: units done.
    Relaxed<int> progress;
    /// Bits of ProgressTask::Flag and InternalFlag.
    Relaxed<int> flags;
    /// What the user or a handle wants; the job looks at it.
    Relaxed<bool> cancelled;
    Relaxed<bool> paused;
    /// The record may leave the manager's list.
    Relaxed<bool> finished;
    /// The job failed.
    Relaxed<bool> error;
    /// The row that shows the task, or null. GUI thread only.
    ProgressWidget* widget = nullptr;

private:
    Q_DISABLE_COPY(TaskPrivate)

    /// Held while the owner is called. Recursive, as the call may destroy the owner.
    mutable std::recursive_mutex m_ownerMutex;
    mutable std::mutex m_messageMutex;
    QString m_message;
};

}} // namespace Norvane::UI
