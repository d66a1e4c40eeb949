#pragma once

#include <NorvaneCoreExport.h>

#include <QList>
#include <QMutex>
#include <QObject>

#include <atomic>

class QString;
class QWidget;

namespace Norvane { namespace UI {

class TaskPrivate;

/// The list of tasks (ProgressTask) of the application, and the bell that calls the GUI thread to look at it.
/// This class shows nothing; DialogProgressManager does. Make managers on the GUI thread, and let the first
/// one outlive all tasks: it stays instance() for ever.
class NORVANE_CORE_EXPORT ProgressManager : public QObject
{
    Q_OBJECT
public:
    ProgressManager();
    ~ProgressManager() override;

    /// The first manager that was made, or null. Any thread.
    static ProgressManager* instance();

    /// The tasks in the order in which they were made. Whoever walks the list holds lock(); it is changed
    /// with addTask() and takeTask() only, so that tasksCount() is right.
    QList<TaskPrivate*>& tasks();
    /// Guards tasks(). Not recursive: whoever holds it makes no task and sets no message.
    QMutex* lock();
    /// The length of the list, without the lock. Any thread.
    int tasksCount() const;

    /// Lists a task; its handle does so by itself. Any thread, without the lock.
    void addTask(TaskPrivate* task);
    /// Marks a task as ended, unless it is to be kept, and forgets its handle; the handle does so by itself.
    /// The GUI thread takes it off the list later. Any thread; a second call changes nothing.
    void removeTask(TaskPrivate* task);
    /// Takes the task at \a index off the list, which may free it. GUI thread, under the lock.
    void takeTask(int index);

    /// Emits wake(). Any thread.
    void wakeUp();
    /// How often wake() was emitted. A value read before a look at the tasks tells later whether another look
    /// would find anything. Any thread.
    unsigned wakeCount() const;
    /// Says that the GUI side is about to look at the tasks: lookWanted() may come from other threads again.
    /// GUI thread only.
    void beginLook();

    /// Whether there is a window with the tasks and it is shown. GUI thread only.
    bool progressVisible();

    /// \name What a subclass with a window offers. GUI thread only; here they do nothing.
    /// @{

    /// The window, or null.
    virtual QWidget* progressWidget();
    /// Keeps the window's place for restoreState().
    virtual void saveState();
    /// False if nothing was kept.
    virtual bool restoreState();
    /// Makes the window, with \a title and \a name unless they are empty.
    virtual bool createProgressWidget(QWidget* parent, const QString& title, const QString& name);
    /// The same with the usual title and name.
    virtual bool createProgressWidget(QWidget* parent);
    /// False if there is none.
    virtual bool deleteProgressWidget();
    /// @}

Q_SIGNALS:
    /// Something about the tasks changed. Emitted on the thread that changed it.
    void wake();
    /// A subclass has made its window.
    void windowCreated(QWidget* widget);
    /// For the GUI side: wake(), but from other threads only one until beginLook(). A queue that is filled
    /// faster than it is emptied would keep the GUI thread from all its other events.
    void lookWanted();

private Q_SLOTS:
    void passOnWake();
    void releaseWindow();

private:
    static std::atomic<ProgressManager*> _instance;

    QMutex m_mutex;
    QList<TaskPrivate*> m_tasks;
    /// The length of m_tasks.
    std::atomic<int> m_count;
    std::atomic<unsigned> m_wakeCount;
    /// Another thread has emitted lookWanted() since the last beginLook().
    std::atomic<bool> m_isLookWanted;
};

}} // namespace Norvane::UI
