#pragma once

#include <ui/progress/ProgressTask.h>

#include <QString>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace NorvaneTest {

/// Threads that make, update, copy, cancel and end tasks as fast as they can: every turn a task with a
/// sub-task that outlives it and a copy.
class TaskStorm
{
public:
    TaskStorm(int threads, int turns)
        : m_running(threads)
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
    using Task = Norvane::UI::ProgressTask;

    void run(int turns)
    {
        for (int turn = 0; turn < turns; ++turn)
            doTurn(turn);
        --m_running;
    }

    static void doTurn(int turn)
    {
        const QString name = QString::fromLatin1("task %1").arg(turn);
        const int flags = Task::kUserCanCancel | Task::kUserCanPause | Task::kShowTimeToGo;
        std::unique_ptr<Task> task(new Task(name, 10, turn % 3 ? flags : flags | Task::kDelayedPopup));
        Task child(name, 10, flags, task.get());
        const Task copy(child);
        for (int step = 0; step <= 10; ++step) {
            task->setProgress(step);
            child.setMessage(message(turn + step));
        }
        child.setFlag(Task::kModal, turn % 50 == 0);
        if (turn % 5 == 0)
            task->setCancelled(true);
        task.reset();
        if (turn % 7 == 0) {
            child.setErrorState(message(turn));
            child.setFlag(Task::kKeepWhenFinished, false);
        }
        child.setProgress(copy.isCancelled() || copy.isPaused() ? 0 : copy.progress());
    }

    std::atomic<int> m_running;
    std::vector<std::thread> m_threads;
};

} // namespace NorvaneTest
