#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressWidget.h>
#include <ui/progress/TaskPrivate.h>

#include <tests/support/TaskStorm.h>
#include <tests/support/Waiting.h>

#include <QMutexLocker>
#include <QPushButton>

using namespace Norvane::UI;
using NorvaneTest::TaskStorm;

namespace {

/// Looks at the tasks as a dialog does, without one.
class Watcher : public QObject
{
    Q_OBJECT
public:
    explicit Watcher(ProgressManager* manager)
        : m_manager(manager)
    {
        connect(manager, SIGNAL(wake()), this, SLOT(look()));
    }

    bool tornMessage = false;

private Q_SLOTS:
    void look()
    {
        const unsigned wakes = m_manager->wakeCount();
        if (wakes == m_seen)
            return;
        m_seen = wakes;
        const QMutexLocker locker(m_manager->lock());
        for (int i = m_manager->tasksCount() - 1; i >= 0; --i) {
            TaskPrivate* const task = m_manager->tasks().at(i);
            if (task->parent && task->parent->cancelled)
                task->cancelled = true;
            tornMessage = tornMessage || !TaskStorm::isWhole(task->message());
            task->paused = !task->paused && !task->isHidden();
            if (task->finished)
                m_manager->takeTask(i);
        }
    }

private:
    ProgressManager* const m_manager;
    unsigned m_seen = 0;
};

} // namespace

class tst_ProgressThreads : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void failsWhileRead();
    void stormPasses();
    void stormPassesDialog();
};

void tst_ProgressThreads::initTestCase()
{
    // The one that is asked where windows were.
    static ProgressManager first;
}

// Failing does not take the mutex that the reader holds.
void tst_ProgressThreads::failsWhileRead()
{
    ProgressManager manager;
    ProgressTask task(QString(), 10, 0, nullptr, &manager);
    const QExplicitlySharedDataPointer<TaskPrivate> record(manager.tasks().first());
    std::atomic<bool> isOver(false);
    std::thread worker([&] {
        for (int i = 0; i < 2000; ++i)
            task.setErrorState(TaskStorm::message(i));
        isOver = true;
    });
    bool isWhole = true;
    const QMutexLocker locker(manager.lock());
    while (!isOver)
        isWhole = TaskStorm::isWhole(record->message()) && isWhole;
    worker.join();
    QVERIFY(isWhole);
}

void tst_ProgressThreads::stormPasses()
{
    ProgressManager manager;
    Watcher watcher(&manager);
    const TaskStorm storm(8, 500);
    while (!storm.isOver())
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(manager.tasksCount(), 0);
    QVERIFY(!watcher.tornMessage);
}

// With a user who pauses, cancels and closes, and a host that takes the dialog away in the middle.
void tst_ProgressThreads::stormPassesDialog()
{
    DialogProgressManager manager;
    int round = 0;
    {
        const TaskStorm storm(8, 100);
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
    WAIT_FOR(manager.progressWidget()->findChildren<ProgressWidget*>().isEmpty());
    QVERIFY(manager.progressWidget()->isHidden());
    // Those that failed and were cleared stay listed.
    for (const TaskPrivate* const task : manager.tasks())
        QVERIFY(task->error);
}

QTEST_MAIN(tst_ProgressThreads)
#include "tst_ProgressThreads.moc"
