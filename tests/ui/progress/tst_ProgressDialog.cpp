#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressDialog.h>
#include <ui/progress/ProgressWidget.h>
#include <ui/progress/TaskPrivate.h>

#include <tests/support/TaskListener.h>
#include <tests/support/Waiting.h>

#include <QPushButton>
#include <QSignalSpy>

#include <memory>
#include <thread>

using namespace Norvane::UI;
using NorvaneTest::TaskListener;

namespace {

using Record = QExplicitlySharedDataPointer<TaskPrivate>;

/// Makes a task as soon as something is shown, as a program may that follows the keyboard focus.
struct TaskMaker : QObject {
    explicit TaskMaker(ProgressManager* tasksManager)
        : manager(tasksManager)
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show && !task)
            task.reset(new ProgressTask(QString(), 10, 0, nullptr, manager));
        return false;
    }

    ProgressManager* const manager;
    std::unique_ptr<ProgressTask> task;
};

} // namespace

class tst_ProgressDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The first manager is the one that is asked where windows were.
    void initTestCase() { static ProgressManager first; }
    void init() { manager.reset(new DialogProgressManager); }
    void cleanup();
    void appearsAndHides();
    void modalWhileEnabledTaskIs();
    void hiddenRowsCount();
    void heldBackUntilOld();
    void cancellingReachesSubTasks();
    void closingCancelsTasks();
    void closingDropsRowsWithoutTask();
    void leavesItsWindowWhenClosed();
    void rowsComeBackInNextDialog();
    void queuedWakesShareOneLook();
    void showingMayMakeTask();

private:
    Record addTask(int flags, TaskListener* parent = nullptr);
    QWidget* dialog() const { return manager->progressWidget(); }
    int rowCount() const { return int(dialog()->findChildren<ProgressWidget*>().size()); }

    std::unique_ptr<DialogProgressManager> manager;
    std::vector<std::unique_ptr<TaskListener>> tasks;
};

Record tst_ProgressDialog::addTask(int flags, TaskListener* parent)
{
    tasks.emplace_back(new TaskListener(flags, manager.get(), parent));
    return Record(manager->tasks().last());
}

void tst_ProgressDialog::cleanup()
{
    tasks.clear();
    manager.reset();
}

void tst_ProgressDialog::appearsAndHides()
{
    QVERIFY(dialog()->isHidden() && !manager->progressVisible());
    const Record record = addTask(0);
    QVERIFY(manager->progressVisible());
    QCOMPARE(dialog()->windowType(), Qt::Tool);
    QCOMPARE(dialog()->size(), QSize(650, 120));
    const QPointer<ProgressWidget> row = record->widget;
    QVERIFY(row && row->isVisible());
    tasks.clear();
    QCOMPARE(manager->tasksCount(), 0);
    QVERIFY(dialog()->isHidden());
    QVERIFY(row && row->isHidden() && !row->record());
    WAIT_FOR(!row);
}

void tst_ProgressDialog::modalWhileEnabledTaskIs()
{
    const Record record = addTask(ProgressTask::kDisable | ProgressTask::kModal);
    QVERIFY(record->widget && dialog()->isHidden());
    tasks[0]->setFlag(ProgressTask::kDisable, false);
    QCOMPARE(QApplication::activeModalWidget(), dialog());
    addTask(0);
    tasks.erase(tasks.begin());
    QVERIFY(dialog()->isVisible() && !dialog()->isModal());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_ProgressDialog::hiddenRowsCount()
{
    const Record record = addTask(0);
    tasks[0]->hides = true;
    manager->wakeUp();
    QVERIFY(record->widget->isHidden() && dialog()->isVisible());
    tasks[0]->hides = false;
    manager->wakeUp();
    QVERIFY(record->widget->isVisible());
}

void tst_ProgressDialog::heldBackUntilOld()
{
    const Record record = addTask(ProgressTask::kDelayedPopup);
    tasks[0]->setProgress(1);
    QVERIFY(!record->widget && dialog()->isHidden());
    record->startTime = QTime::currentTime().addMSecs(-2001);
    manager->wakeUp();
    QVERIFY(record->widget && dialog()->isVisible());
}

void tst_ProgressDialog::cancellingReachesSubTasks()
{
    const Record parent = addTask(0);
    const Record child = addTask(0, tasks[0].get());
    tasks[0]->setCancelled(true);
    QVERIFY(child->cancelled);
    QCOMPARE(tasks[1]->told, QString());
}

void tst_ProgressDialog::closingCancelsTasks()
{
    addTask(ProgressTask::kUserCanCancel);
    addTask(0);
    QSignalSpy closing(dialog(), SIGNAL(closing()));
    dialog()->close();
    QCOMPARE(closing.count(), 1);
    QVERIFY(tasks[0]->isCancelled() && tasks[1]->isCancelled());
    QCOMPARE(tasks[1]->told, QString::fromLatin1("c"));
    QVERIFY(dialog()->testAttribute(Qt::WA_Moved));
    manager->wakeUp();
    QVERIFY(dialog()->isVisible());
}

void tst_ProgressDialog::closingDropsRowsWithoutTask()
{
    const Record record = addTask(ProgressTask::kKeepWhenFinished | ProgressTask::kUserCanCancel);
    const QPointer<ProgressWidget> row = record->widget;
    tasks.clear();
    QVERIFY(row->record() && dialog()->isVisible());
    record->finished = true;
    manager->wakeUp();
    QCOMPARE(row->findChild<QPushButton*>()->text(), QString::fromLatin1("Hide"));
    QVERIFY(!record->widget && dialog()->isHidden());
    QCOMPARE(manager->tasksCount(), 1);
    dialog()->close();
    WAIT_FOR(!row);
}

void tst_ProgressDialog::leavesItsWindowWhenClosed()
{
    QWidget window;
    dialog()->setParent(&window);
    dialog()->resize(300, 200);
    addTask(0);
    QVERIFY(!dialog()->isWindow());
    dialog()->close();
    QVERIFY(dialog()->isWindow() && !dialog()->parentWidget());
    QCOMPARE(dialog()->size(), QSize(650, 120));
    QVERIFY(!dialog()->testAttribute(Qt::WA_Moved));
    QVERIFY(tasks[0]->isCancelled());
}

void tst_ProgressDialog::rowsComeBackInNextDialog()
{
    const Record record = addTask(0);
    QVERIFY(manager->deleteProgressWidget());
    QVERIFY(!record->widget);
    QVERIFY(manager->createProgressWidget(nullptr));
    tasks[0]->setProgress(1);
    QVERIFY(record->widget && dialog()->isVisible());
    QCOMPARE(rowCount(), 1);
}

void tst_ProgressDialog::queuedWakesShareOneLook()
{
    const Record record = addTask(0);
    tasks[0]->looks = 0;
    std::thread([this] {
        for (int i = 0; i < 1000; ++i)
            tasks[0]->setProgress(i);
    }).join();
    QCOMPARE(tasks[0]->looks, 0);
    QCoreApplication::processEvents();
    QCOMPARE(tasks[0]->looks, 1);
    manager->wakeUp();
    QCOMPARE(tasks[0]->looks, 2);
}

void tst_ProgressDialog::showingMayMakeTask()
{
    TaskMaker maker(manager.get());
    dialog()->installEventFilter(&maker);
    addTask(0);
    QVERIFY(maker.task);
    WAIT_FOR(rowCount() == 2);
}

QTEST_MAIN(tst_ProgressDialog)
#include "tst_ProgressDialog.moc"
