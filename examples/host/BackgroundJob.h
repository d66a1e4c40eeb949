#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QRunnable>
#include <QString>

#include <atomic>
#include <memory>

namespace Norvane { namespace UI {
class ProgressTask;
}} // namespace Norvane::UI

namespace Norvane { namespace Host {

/// Work that a thread does while the program goes on. The user hears of it if it takes longer than half a
/// second: from then on it is a task in the progress dialog, and can be cancelled there.
///
/// Made with new on the GUI thread; it deletes itself after finished(), or with the application.
class BackgroundJob : public QObject, public QRunnable
{
    Q_OBJECT
public:
    /// \a name is what the task is called.
    explicit BackgroundJob(const QString& name);
    ~BackgroundJob() override;

    /// Has a thread do the work as soon as one is free; of the jobs that wait, one with the highest \a
    /// priority comes first.
    void start(int priority = 0);
    /// Nobody wants the work any more. It is left out, or ends soon, and finished() comes all the same.
    void cancel();
    /// Whether somebody did that, the user for example. Any thread.
    bool isCancelled() const;

    /// Waits until no job is left. The manager of the tasks must live until then.
    static void waitForAll();

Q_SIGNALS:
    /// On the GUI thread.
    void finished();

protected:
    /// What there is to do. Called on another thread.
    virtual void work() = 0;
    /// Called by work() now and then: \a done of \a all is done. False if it shall end now.
    bool goOn(qint64 done, qint64 all);

private Q_SLOTS:
    void finish();

private:
    void run() override;

    const QString m_name;
    std::atomic<bool> m_isCancelled{false};
    QElapsedTimer m_sinceStart;
    /// Of the thread that does the work.
    std::unique_ptr<UI::ProgressTask> m_task;
};

}} // namespace Norvane::Host
