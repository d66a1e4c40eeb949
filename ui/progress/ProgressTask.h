#pragma once

#include <NorvaneCoreExport.h>

#include <QExplicitlySharedDataPointer>

class QString;

namespace Norvane { namespace UI {

class ProgressManager;
class TaskPrivate;

/// A long job, as the code that does it reports it: the user sees one row in the progress dialog and may
/// cancel or pause the job there. Nothing is forced on the job: it asks isCancelled() and isPaused() and does
/// what they say.
///
/// A task is made, used and destroyed on any thread, and its row goes when it is destroyed (but see
/// kKeepWhenFinished). Copies are handles of one and the same task; the task ends for the user with the first
/// of them that is destroyed.
///
/// A subclass learns of what the user does. Its callbacks run on the GUI thread, and a task that is destroyed
/// meanwhile on another thread waits for them; so a callback must not wait for that thread. Where a callback
/// uses members of the subclass, the destructor calls stopCallbacks() first. As the task is shown before the
/// subclass's constructor has run, make such a task on the GUI thread.
class NORVANE_CORE_EXPORT ProgressTask
{
public:
    /// How a task is shown, and what the user may do.
    enum Flag {
        kDelayedPopup = 1,         ///< no row before the task is 2 seconds old, for jobs that are often short
        kUserCanCancel = 2,        ///< the row has a "Cancel" button
        kShowTimeToGo = 4,         ///< the row estimates how long the rest takes
        kKeepWhenFinished = 8,     ///< the row stays after the task is destroyed
        kDisable = 16,             ///< the row is shown disabled and does not make the dialog appear
        kModal = 32,               ///< the dialog blocks the other windows
        kUserCanPause = 64,        ///< the row has a "Pause" button
        kCallbackOnProgress = 0x80 ///< setProgress() calls doProgressCallback(); set with setFlag()
    };

    /// \a maximum is the progress at which the job is complete; \a flags are of Flag. A task with a \a parent
    /// is shown as its sub-task and cancelled with it; the parent may be destroyed first. Without a \a
    /// manager it is ProgressManager::instance()'s, and if there is none, the task is never shown but works
    /// as any.
    ProgressTask(const QString& name, int maximum, int flags, ProgressTask* parent = nullptr,
                 ProgressManager* manager = nullptr);

    /// Another handle of the same task. What the user does is told to the first handle only.
    ProgressTask(const ProgressTask& other);

    /// Makes this a handle of the other task. The former one is not ended, only left without this handle.
    ProgressTask& operator=(const ProgressTask& other);

    virtual ~ProgressTask();

    /// The user pressed Cancel; isCancelled() says so when this has returned. May destroy the task. All
    /// callbacks do nothing by default.
    virtual void taskCancelled();
    /// The user pressed Pause. May destroy the task.
    virtual void taskPaused();
    /// The user pressed Resume. May destroy the task.
    virtual void taskResumed();
    /// Whether the row is to be hidden now; asked again whenever the dialog is brought up to date. Only
    /// answers: the manager's mutex is held, so it may neither make nor destroy nor update tasks.
    virtual bool taskHide();
    /// Called by setProgress() on its thread, with kCallbackOnProgress.
    virtual void doProgressCallback();

    /// \a progress is -1 before the job has started, 0 when it has, then the units done.
    void setProgress(int progress);
    /// The progress at which the job is complete.
    void setMaximum(int maximum);
    /// Cancels the task as the user would, but without a call to taskCancelled(). Sub-tasks follow soon.
    void setCancelled(bool cancelled);
    /// \a flag may be several of Flag together.
    void setFlag(int flag, bool on);
    /// The text after the name.
    void setMessage(const QString& message);
    /// Says that the job failed and why. The row stays until the user clears it. Unlike setMessage() this
    /// does not wait for the dialog, which may be busy with all the tasks.
    void setErrorState(const QString& text);

    /// What was last set, by whichever handle or by the user.
    int progress() const;
    bool isCancelled() const;
    bool isPaused() const;

    /// How many tasks the manager lists, ended ones that the dialog has not yet taken off included. There
    /// must be a manager.
    int tasksCount() const;

protected:
    /// When this returns, no callback runs on another thread, and none will begin.
    void stopCallbacks();

private:
    void wake();

    QExplicitlySharedDataPointer<TaskPrivate> d;
    ProgressManager* m_manager;
};

}} // namespace Norvane::UI
