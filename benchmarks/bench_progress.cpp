// What it costs a job to report its progress, and whether the GUI thread stays free while many jobs do.

#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressTask.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>

#include <malloc.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <thread>
#include <vector>

namespace Norvane { namespace Benchmarks { namespace {

using UI::ProgressTask;
using Change = void (*)(ProgressTask&, int);

const int kTasks = 100;
const int kFlags = ProgressTask::kUserCanCancel | ProgressTask::kShowTimeToGo;
const int kLongestGap = 50;     // ms
const int kLongestDrain = 1000; // ms

void setProgress(ProgressTask& task, int step)
{
    task.setProgress(step);
}

void setMessage(ProgressTask& task, int step)
{
    static const QString messages[] = {QString::fromLatin1("even frame"), QString::fromLatin1("odd frame")};
    task.setMessage(messages[step % 2]);
}

/// Threads that change all tasks so many times, each thread its share of them.
class Flood
{
public:
    Flood(int threads, int changes, Change change)
        : m_running(threads)
    {
        for (int i = 0; i < kTasks; ++i)
            m_tasks.emplace_back(new ProgressTask(QString::number(i), changes, kFlags));
        QCoreApplication::processEvents();
        for (int first = 0; first < threads; ++first) {
            m_threads.emplace_back([=] {
                for (int step = 1; step <= changes; ++step) {
                    for (int i = first; i < kTasks; i += threads)
                        change(*m_tasks[i], step);
                }
                --m_running;
            });
        }
    }
    ~Flood()
    {
        for (std::thread& thread : m_threads)
            thread.join();
    }

    /// Runs the event loop to the end of the threads; the longest time between two of its turns, in ms.
    qint64 waitAndMeasureGap()
    {
        QElapsedTimer timer;
        timer.start();
        qint64 longest = 0;
        while (m_running > 0) {
            QCoreApplication::processEvents();
            longest = qMax(longest, timer.restart());
        }
        return longest;
    }

private:
    std::vector<std::unique_ptr<ProgressTask>> m_tasks;
    std::atomic<int> m_running;
    std::vector<std::thread> m_threads;
};

void flood(benchmark::State& state, Change change)
{
    const int threads = int(state.range(0));
    const int changes = int(state.range(1));
    qint64 gap = 0;
    for (auto unused : state) {
        (void)unused;
        QElapsedTimer timer;
        timer.start();
        Flood running(threads, changes, change);
        gap = qMax(gap, running.waitAndMeasureGap());
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        timer.restart();
        QCoreApplication::processEvents();
        if (gap > kLongestGap)
            state.SkipWithError("the GUI thread was busy for too long");
        else if (timer.elapsed() > kLongestDrain)
            state.SkipWithError("too much was left in the queue");
    }
    state.SetItemsProcessed(state.iterations() * kTasks * changes);
    state.counters["longest gap, ms"] = double(gap);
}

/// Makes tasks in turn on another thread and waits for the GUI thread to forget them. One task more keeps the
/// dialog open.
void comeAndGo(int tasks)
{
    const ProgressTask whole(QString::fromLatin1("whole"), 1, kFlags);
    std::atomic<bool> isOver(false);
    std::thread worker([tasks, &isOver] {
        for (int i = 0; i < tasks; ++i) {
            ProgressTask task(QString::number(i), 10, kFlags);
            task.setMessage(QString::number(i));
            task.setProgress(5);
        }
        isOver = true;
    });
    while (!isOver)
        QCoreApplication::processEvents();
    worker.join();
    QCoreApplication::processEvents();
}

/// What is left on the heap by so many tasks, once as many have made it warm.
void memoryLeft(benchmark::State& state)
{
    const int tasks = int(state.range(0));
    comeAndGo(tasks);
    const std::size_t before = mallinfo2().uordblks;
    for (auto unused : state) {
        (void)unused;
        comeAndGo(tasks);
    }
    const double left = double(mallinfo2().uordblks) - double(before);
    state.SetItemsProcessed(state.iterations() * tasks);
    state.counters["left, bytes a task"] = left / double(state.iterations() * tasks);
}

// Threads and changes of each of 100 tasks.
BENCHMARK_CAPTURE(flood, setProgress, setProgress)->Args({1, 10000})->Args({8, 100000})->UseManualTime();
BENCHMARK_CAPTURE(flood, setMessage, setMessage)->Args({1, 10000})->Args({8, 10000})->UseManualTime();
BENCHMARK(memoryLeft)->Arg(10000)->Unit(benchmark::kMillisecond);

}}} // namespace Norvane::Benchmarks

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Norvane::UI::DialogProgressManager manager;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
