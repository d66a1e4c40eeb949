#include <ui/progress/ProgressManager.h>
#include <ui/progress/ProgressWidget.h>
#include <ui/progress/RowGeometry.h>
#include <ui/progress/TaskPrivate.h>
#include <ui/progress/TimeToGo.h>
#include <ui/toolkit/Painting.h>

#include <tests/support/TaskListener.h>
#include <tests/support/Waiting.h>

#include <QImage>
#include <QProgressBar>
#include <QPushButton>

#include <climits>
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
    void parts_data();
    void parts();
    void timeToGoIsEstimated();
    void timeToGoIsTold();
    void stateIsTold();
    void refreshShowsTask();
    void pausesAndResumes();
    void cancels();
    void failedTaskIsCleared();
    void outlivesTask();
    void ownerMayDeleteRow();
};

void tst_ProgressWidget::parts_data()
{
    QTest::addColumn<QSize>("cancel");
    QTest::addColumn<QSize>("pause");
    QTest::addColumn<QRect>("cancelRect");
    QTest::addColumn<QRect>("pauseRect");
    QTest::addColumn<int>("barLeft");
    QTest::addColumn<int>("textRight");
    const QSize none;
    const QRect nowhere;
    QTest::newRow("no buttons") << none << none << nowhere << nowhere << 305 << 306;
    QTest::newRow("Cancel") << QSize(80, 24) << none << QRect(415, 6, 80, 24) << nowhere << 300 << 302;
    QTest::newRow("Pause") << none << QSize(90, 22) << nowhere << QRect(405, 6, 90, 22) << 290 << 292;
    QTest::newRow("both") << QSize(80, 24) << QSize(90, 22) << QRect(415, 6, 80, 24) << QRect(405, 35, 90, 22)
                          << 290 << 302;
}

void tst_ProgressWidget::parts()
{
    QFETCH(QSize, cancel);
    QFETCH(QSize, pause);
    QFETCH(int, barLeft);
    QFETCH(int, textRight);
    const RowParts sizes = {cancel, pause, QSize(100, 20)};
    const RowGeometry geometry = layOutRow(500, sizes);
    QTEST(geometry.cancelButton, "cancelRect");
    QTEST(geometry.pauseButton, "pauseRect");
    QCOMPARE(geometry.progressBar, QRect(barLeft, 6, 100, 20));
    const QRect row(0, 0, 500, 80);
    QCOMPARE(rowTextArea(row, sizes, false), QRect(QPoint(8, 6), QPoint(textRight, 72)));
    QCOMPARE(rowTextArea(row, sizes, true), QRect(QPoint(32, 6), QPoint(textRight, 72)));
}

void tst_ProgressWidget::timeToGoIsEstimated()
{
    QCOMPARE(secondsToGo(10, 5, 10), 10);
    QCOMPARE(secondsToGo(1, 3, 4), 0);
    // More than all is done.
    QCOMPARE(secondsToGo(4, 10, 5), -1);
    QCOMPARE(secondsToGo(2, 10, 5), 0);
    // Past midnight.
    QCOMPARE(secondsToGo(-86000, 5, 10), -85999);
    // No int holds the seconds, nor the difference.
    QCOMPARE(secondsToGo(86399, 1, INT_MAX), -1);
    QCOMPARE(secondsToGo(1, 1, INT_MIN), -1);
}

void tst_ProgressWidget::timeToGoIsTold()
{
    const struct {
        int seconds;
        const char* text;
    } rows[] = {{-1, "?"},
                {0, "0 seconds."},
                {60, "1 minute 0 seconds."},
                {179, "2 minutes 59 seconds."},
                {180, "3 minutes."},
                {3599, "59 minutes."},
                {3600, "1 hour 0 minutes."},
                {3660, "1 hour 1 minute."},
                {7260, "2 hours 1 minute."}};
    for (const auto& row : rows)
        QCOMPARE(timeToGoText(row.seconds), QString::fromLatin1("Time to go: ") + QLatin1String(row.text));
}

void tst_ProgressWidget::stateIsTold()
{
    const auto textOf = [](int progress, bool isCancelled, bool hasFailed) {
        TaskPrivate task(nullptr, QString(), 10, 0, nullptr);
        task.progress = progress;
        task.cancelled = isCancelled;
        task.error = hasFailed;
        return timeToGoText(task);
    };
    QCOMPARE(textOf(-1, false, false), QString::fromLatin1("Time to go: Awaiting Task"));
    QCOMPARE(textOf(0, false, false), QString::fromLatin1("Time to go: Calculating"));
    QCOMPARE(textOf(10, false, false), QString::fromLatin1("Time to go: 0 seconds."));
    QCOMPARE(textOf(-1, true, false), QString::fromLatin1("Cancelling"));
    QCOMPARE(textOf(10, true, true), QString());
}

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
    Scene scene;
    scene.button("Pause")->click();
    QVERIFY(scene.task->isPaused());
    scene.button("Resume ")->click();
    QVERIFY(!scene.task->isPaused());
    QVERIFY(scene.button("Pause "));
    QCOMPARE(scene.task->told, QString::fromLatin1("pr"));
    scene.task.reset();
    scene.button("Pause ")->click();
    QVERIFY(!scene.record->paused && scene.button("Pause "));
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

void tst_ProgressWidget::failedTaskIsCleared()
{
    Scene scene;
    // A failure is more than that.
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
