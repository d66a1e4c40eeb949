#include <ui/progress/ProgressManager.h>
#include <ui/progress/ProgressWidget.h>
#include <ui/progress/TaskPrivate.h>
#include <ui/toolkit/Painting.h>

#include <tests/support/TaskListener.h>
#include <tests/support/Waiting.h>

#include <QImage>
#include <QProgressBar>
#include <QPushButton>

#include <memory>

using namespace Norvane::UI;
using NorvaneTest::TaskListener;

namespace {

const int kBoth = ProgressTask::kUserCanCancel | ProgressTask::kUserCanPause;

/// A task with its row, in no dialog.
struct Scene {
    explicit Scene(int flags = kBoth)
        : task(new TaskListener(flags, &manager))
        , record(manager.tasks().last())
        , row(new ProgressWidget(record.data(), &manager, nullptr))
    {
        record->widget = row;
        row->resize(650, 80);
    }
    ~Scene() { delete row; }

    /// The button that reads \a text.
    QPushButton* button(const char* text) const
    {
        const QList<QPushButton*> buttons = row->findChildren<QPushButton*>();
        for (QPushButton* const found : buttons) {
            if (found->text() == QString::fromLatin1(text))
                return found;
        }
        return nullptr;
    }

    QImage picture() const { return grabPixmap(row).toImage(); }

    ProgressManager manager;
    std::unique_ptr<TaskListener> task;
    const QExplicitlySharedDataPointer<TaskPrivate> record;
    const QPointer<ProgressWidget> row;
};

bool hasRed(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width() / 2; ++x) {
            const QColor colour = image.pixel(x, y);
            if (colour.red() > 200 && colour.green() < 80 && colour.blue() < 80)
                return true;
        }
    }
    return false;
}

} // namespace

class tst_ProgressWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void refreshShowsTask();
    void pausesAndResumes();
    void pausesNobody();
    void cancels();
    void failedTaskIsCleared_data();
    void failedTaskIsCleared();
    void outlivesTask();
    void ownerMayDeleteRow();
};

void tst_ProgressWidget::refreshShowsTask()
{
    const Scene scene(ProgressTask::kShowTimeToGo);
    QProgressBar* const bar = scene.row->findChild<QProgressBar*>();
    scene.row->refresh();
    QCOMPARE(bar->value(), 0);
    const QImage before = scene.picture();
    scene.task->setMessage(QString::fromLatin1("frame 7"));
    QCOMPARE(int(scene.record->flags) & 0x8000, 0x8000);
    scene.row->refresh();
    QCOMPARE(int(scene.record->flags) & 0x8000, 0);
    const QImage withMessage = scene.picture();
    QVERIFY(before != withMessage);
    scene.task->setMaximum(20);
    scene.task->setProgress(7);
    scene.row->refresh();
    QCOMPARE(bar->value(), 7);
    QCOMPARE(bar->maximum(), 20);
    QVERIFY(withMessage != scene.picture());
}

void tst_ProgressWidget::pausesAndResumes()
{
    const Scene scene;
    scene.button("Pause")->click();
    QVERIFY(scene.task->isPaused());
    scene.button("Resume ")->click();
    QVERIFY(!scene.task->isPaused());
    QVERIFY(scene.button("Pause "));
    QCOMPARE(scene.task->told, QString::fromLatin1("pr"));
}

void tst_ProgressWidget::pausesNobody()
{
    Scene scene;
    scene.task.reset();
    scene.button("Pause")->click();
    QVERIFY(!scene.record->paused);
    QVERIFY(scene.button("Pause"));
}

void tst_ProgressWidget::cancels()
{
    const Scene scene;
    bool wasCancelledBefore = true;
    scene.task->whenCancelled = [&] { wasCancelledBefore = scene.task->isCancelled(); };
    scene.button("Cancel")->click();
    QCOMPARE(scene.task->told, QString::fromLatin1("c"));
    QVERIFY(!wasCancelledBefore && scene.task->isCancelled());
    QVERIFY(!scene.button("Cancel")->isEnabled());
    scene.task->setCancelled(false);
    scene.row->refresh();
    QVERIFY(scene.button("Cancel")->isEnabled());
}

void tst_ProgressWidget::failedTaskIsCleared_data()
{
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("failed") << false;
    QTest::newRow("cancelled, then failed") << true;
}

void tst_ProgressWidget::failedTaskIsCleared()
{
    QFETCH(bool, cancelled);
    Scene scene;
    if (cancelled)
        scene.button("Cancel")->click();
    QVERIFY(!hasRed(scene.picture()));
    scene.task->setErrorState(QString::fromLatin1("WWWWWW"));
    scene.row->refresh();
    scene.row->refresh();
    QVERIFY(hasRed(scene.picture()));
    QCOMPARE(int(scene.record->flags) & 0x80000, 0);
    const unsigned wakes = scene.manager.wakeCount();
    const QString told = scene.task->told;
    QVERIFY(scene.button("Clear")->isEnabled());
    scene.button("Clear")->click();
    QCOMPARE(scene.task->told, told);
    QVERIFY(scene.record->finished && !scene.record->widget);
    QVERIFY(scene.record->flags & ProgressTask::kDisable);
    QCOMPARE(scene.manager.wakeCount(), wakes + 1);
    WAIT_FOR(!scene.row);
}

void tst_ProgressWidget::outlivesTask()
{
    Scene scene;
    scene.task->setMessage(QString::fromLatin1("frame 7"));
    scene.task->setCancelled(true);
    scene.task.reset();
    scene.row->refresh();
    scene.row->keepWithoutRecord();
    QVERIFY(!scene.record->widget && !scene.row->record());
    QPushButton* const hide = scene.button("Hide");
    hide->setText(QString());
    const QImage kept = scene.picture();
    scene.manager.takeTask(0);
    QCOMPARE(scene.picture(), kept);
    scene.row->refresh();
    QVERIFY(scene.picture() != kept);
    hide->click();
    WAIT_FOR(!scene.row);
}

void tst_ProgressWidget::ownerMayDeleteRow()
{
    Scene scene;
    scene.task->whenCancelled = [&] {
        delete scene.row;
        scene.task.reset();
    };
    QMetaObject::invokeMethod(scene.row, "cancel");
    QVERIFY(!scene.row && scene.record->cancelled);
}

QTEST_MAIN(tst_ProgressWidget)
#include "tst_ProgressWidget.moc"
