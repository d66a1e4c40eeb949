#include <ui/progress/ProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/progress/TaskPrivate.h>

#include <tests/support/GuilessMain.h>
#include <tests/support/TaskListener.h>

#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

using namespace Norvane::UI;
using NorvaneTest::TaskListener;

namespace {

/// A reference to the record of the task that \a manager lists last.
QExplicitlySharedDataPointer<TaskPrivate> lastRecord(ProgressManager& manager)
{
    return QExplicitlySharedDataPointer<TaskPrivate>(manager.tasks().last());
}

} // namespace

class tst_ProgressTask : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void worksWithoutManager();
    void firstManagerIsInstance();
    void everyChangeWakesOnce();
    void endOfTask();
    void copiesShareTask();
    void assignmentForgetsFormerOwner();
    void progressCallback();
    void endWaitsForCallback();
    void callbackMayEndTask();
};

// Has to be the first one: an instance stays.
void tst_ProgressTask::worksWithoutManager()
{
    QVERIFY(!ProgressManager::instance());
    ProgressTask task(QString(), 10, 0);
    task.setProgress(3);
    task.setMessage(QString::fromLatin1("text"));
    task.setErrorState(QString::fromLatin1("text"));
    QCOMPARE(ProgressTask(task).progress(), 3);
}

void tst_ProgressTask::firstManagerIsInstance()
{
    static ProgressManager first;
    ProgressManager second;
    QCOMPARE(ProgressManager::instance(), &first);
    const ProgressTask task(QString(), 10, 0);
    QCOMPARE(first.tasksCount(), 1);
    const ProgressTask other(QString(), 10, 0, nullptr, &second);
    QCOMPARE(first.tasksCount(), 1);
    QCOMPARE(other.tasksCount(), 1);
}

void tst_ProgressTask::everyChangeWakesOnce()
{
    ProgressManager manager;
    ProgressTask task(QString(), 10, 0, nullptr, &manager);
    const std::function<void()> changes[] = {[&] { task.setProgress(1); },
                                             [&] { task.setMaximum(20); },
                                             [&] { task.setCancelled(true); },
                                             [&] { task.setFlag(ProgressTask::kModal, true); },
                                             [&] { task.setMessage(QString()); },
                                             [&] { task.setErrorState(QString()); },
                                             [&] { manager.wakeUp(); }};
    for (const auto& change : changes) {
        const unsigned before = manager.wakeCount();
        QSignalSpy wakes(&manager, SIGNAL(wake()));
        change();
        change();
        QCOMPARE(wakes.count(), 2);
        QCOMPARE(manager.wakeCount(), before + 2);
    }
}

void tst_ProgressTask::endOfTask()
{
    const struct {
        int flags;
        bool fails;
        bool isFinished;
    } cases[] = {{0, false, true}, {ProgressTask::kKeepWhenFinished, false, false}, {0, true, false}};
    for (const auto& each : cases) {
        ProgressManager manager;
        std::unique_ptr<ProgressTask> task(new ProgressTask(QString(), 10, each.flags, nullptr, &manager));
        if (each.fails)
            task->setErrorState(QString());
        const auto record = lastRecord(manager);
        QSignalSpy wakes(&manager, SIGNAL(wake()));
        task.reset();
        QVERIFY(!record->owner);
        QCOMPARE(bool(record->finished), each.isFinished);
        QCOMPARE(wakes.count(), 1);
        QCOMPARE(manager.tasksCount(), 1);
    }
}

void tst_ProgressTask::copiesShareTask()
{
    ProgressManager manager;
    std::unique_ptr<ProgressTask> task(new ProgressTask(QString(), 10, 0, nullptr, &manager));
    std::unique_ptr<ProgressTask> copy(new ProgressTask(*task));
    task->setProgress(4);
    QCOMPARE(copy->progress(), 4);
    QCOMPARE(manager.tasksCount(), 1);
    const auto record = lastRecord(manager);
    task.reset();
    QVERIFY(record->finished);
    manager.takeTask(0);
    copy->setProgress(5);
    copy->setMessage(QString::fromLatin1("still here"));
    copy.reset();
    QCOMPARE(int(record->progress), 5);
    QCOMPARE(manager.tasksCount(), 0);
}

void tst_ProgressTask::assignmentForgetsFormerOwner()
{
    ProgressManager manager;
    const ProgressTask other(QString(), 10, 0, nullptr, &manager);
    ProgressTask task(QString(), 10, 0, nullptr, &manager);
    const auto record = lastRecord(manager);
    task = *&task;
    QVERIFY(record->owner);
    task = other;
    QVERIFY(!record->owner && !record->finished);
}

void tst_ProgressTask::progressCallback()
{
    ProgressManager manager;
    TaskListener task(ProgressTask::kCallbackOnProgress, &manager);
    task.setProgress(3);
    QCOMPARE(task.reported, 3);
    task.setFlag(ProgressTask::kCallbackOnProgress, false);
    task.setProgress(4);
    QCOMPARE(task.reported, 3);
}

void tst_ProgressTask::endWaitsForCallback()
{
    ProgressManager manager;
    TaskListener* const task = new TaskListener(0, &manager);
    const auto record = lastRecord(manager);
    std::atomic<bool> isEnding(false), hasReturned(false);
    bool waited = false;
    std::thread worker;
    task->whenCancelled = [&] {
        worker = std::thread([&] {
            isEnding = true;
            delete task;
            waited = hasReturned;
        });
        while (!isEnding)
            std::this_thread::yield();
        for (int i = 0; i < 1000; ++i)
            std::this_thread::yield();
        hasReturned = true;
    };
    record->notify(&ProgressTask::taskCancelled);
    worker.join();
    QVERIFY(waited);
    record->notify(&ProgressTask::taskCancelled);
}

void tst_ProgressTask::callbackMayEndTask()
{
    ProgressManager manager;
    TaskListener* const task = new TaskListener(0, &manager);
    task->whenCancelled = [task, &manager] {
        const ProgressTask next(QString(), 10, 0, nullptr, &manager);
        delete task;
    };
    const auto record = lastRecord(manager);
    record->notify(&ProgressTask::taskCancelled);
    QVERIFY(record->finished && !record->owner);
}

NORVANE_GUILESS_MAIN(tst_ProgressTask)
#include "tst_ProgressTask.moc"
