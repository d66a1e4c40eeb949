#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/progress/ProgressWidget.h>
#include <ui/progress/TaskPrivate.h>

#include <tests/support/Waiting.h>

#include <QMutexLocker>
#include <QPushButton>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using namespace Norvane::UI;

namespace {

/// Threads that make, update, copy, cancel and end tasks as fast as they can: every turn a task with a
/// sub-task that outlives it and a copy.
class TaskStorm
{
public:
    TaskStorm(ProgressManager* manager, int threads, int turns)
        : m_manager(manager)
        , m_running(threads)
    {
        for (int number = 0; number < threads; ++number)
            m_threads.emplace_back(&TaskStorm::run, this, turns);
    }

    ~TaskStorm()
    {
        for (std::thread& thread : m_threads)
            thread.join();
    }

    bool isOver() const { return m_running == 0; }

    /// A message of one letter, so that a half-written one shows.
    static QString message(int turn) { return QString(10 + turn % 50, QChar('a' + turn % 26)); }

    static bool isWhole(const QString& message)
    {
        return message.isEmpty() || message == QString(message.size(), message.at(0));
    }

private:
    void run(int turns)
    {
        for (int turn = 0; turn < turns; ++turn)
            doTurn(turn);
        --m_running;
    }

    void doTurn(int turn)
    {
        const QString name = QString::fromLatin1("task %1").arg(turn);
        const int flags =
            ProgressTask::kUserCanCancel | ProgressTask::kUserCanPause | ProgressTask::kShowTimeToGo;
        std::unique_ptr<ProgressTask> task(new ProgressTask(
            name, 10, turn % 3 ? flags : flags | ProgressTask::kDelayedPopup, nullptr, m_manager));
        ProgressTask child(name, 10, flags, task.get(), m_manager);
        const ProgressTask copy(child);
        for (int step = 0; step <= 10; ++step) {
            task->setProgress(step);
            child.setMessage(message(turn + step));
        }
        child.setFlag(ProgressTask::kModal, turn % 50 == 0);
        if (turn % 5 == 0)
            task->setCancelled(true);
        task.reset();
        if (turn % 7 == 0) {
            child.setErrorState(message(turn));
            child.setFlag(ProgressTask::kKeepWhenFinished, false);
        }
        child.setProgress(copy.isCancelled() || copy.isPaused() ? 0 : copy.progress());
    }

    ProgressManager* const m_manager;
    std::atomic<int> m_running;
    std::vector<std::thread> m_threads;
};

} // namespace

class tst_ProgressThreads : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The first manager is the one that is asked where windows were.
    void initTestCase() { static ProgressManager first; }
    void failsWhileRead();
    void stormPassesDialog();
};

// Failing does not take the mutex that the reader holds.
void tst_ProgressThreads::failsWhileRead()
{
    ProgressManager manager;
    ProgressTask task(QString(), 10, ProgressTask::kModal, nullptr, &manager);
    const QExplicitlySharedDataPointer<TaskPrivate> record(manager.tasks().first());
    std::atomic<bool> isOver(false);
    std::thread worker([&] {
        for (int i = 0; i < 20000; ++i)
            task.setErrorState(TaskStorm::message(i));
        isOver = true;
    });
    bool isWhole = true;
    const QMutexLocker locker(manager.lock());
    while (!isOver)
        isWhole = TaskStorm::isWhole(record->message()) && isWhole;
    worker.join();
    QVERIFY(isWhole);
    QCOMPARE(record->message(), TaskStorm::message(19999));
    QCOMPARE(int(record->flags), 0x88008 | 32);
    QVERIFY(record->error);
}

// With a user who pauses, cancels and closes, and a host that takes the dialog away in the middle.
void tst_ProgressThreads::stormPassesDialog()
{
    DialogProgressManager manager;
    int round = 0;
    {
        const TaskStorm storm(&manager, 8, 100);
        while (!storm.isOver()) {
            QCoreApplication::processEvents();
            const QList<QPushButton*> buttons = manager.progressWidget()->findChildren<QPushButton*>();
            if (!buttons.isEmpty())
                buttons.at(++round % buttons.size())->click();
            if (round % 50 == 10)
                manager.progressWidget()->close();
            if (round % 50 == 30) {
                manager.deleteProgressWidget();
                manager.createProgressWidget(nullptr);
            }
        }
    }
    // A dialog that was made after the last wake has not looked yet.
    std::thread([&manager] { manager.wakeUp(); }).join();
    QCoreApplication::processEvents();
    WAIT_FOR(manager.progressWidget()->findChildren<ProgressWidget*>().isEmpty());
    QVERIFY(manager.progressWidget()->isHidden());
    // Those that failed and were cleared stay listed.
    for (const TaskPrivate* const task : manager.tasks())
        QVERIFY(task->error);
}

QTEST_MAIN(tst_ProgressThreads)
#include "tst_ProgressThreads.moc"
