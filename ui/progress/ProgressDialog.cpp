#include <ui/progress/ProgressDialog.h>

#include <ui/progress/ProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/progress/ProgressWidget.h>
#include <ui/progress/TaskPrivate.h>
#include <ui/widgets/VerticalLayout.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QList>
#include <QMutexLocker>
#include <QPair>
#include <QPointer>
#include <QScrollArea>
#include <QStackedLayout>

#include <climits>

namespace Norvane { namespace UI {

namespace {

const QEvent::Type kDeleteRow = QEvent::Type(3718);
const int kDelay = 2000; // ms

/// Lets the dialog delete a row when nothing else is left to do for it.
class ProgressWidgetDelete : public QEvent
{
public:
    explicit ProgressWidgetDelete(ProgressWidget* doomed)
        : QEvent(kDeleteRow)
        , row(doomed)
    {
    }

    const QPointer<ProgressWidget> row;
};

bool isDue(const QTime& start, const QTime& now)
{
    return start.msecsTo(now) > kDelay;
}

} // namespace

/// What a walk over the tasks found. Widgets are changed after it, when the mutex is free again: showing and
/// hiding runs code of the host's, which may make tasks.
struct ProgressDialog::Changes {
    using Row = QPointer<ProgressWidget>;

    /// Counts a task that has a row, and asks whether that is hidden.
    void count(TaskPrivate* task)
    {
        visibleRows.append(qMakePair(Row(task->widget), !task->isHidden()));
        if (task->flags & ProgressTask::kDisable)
            return;
        ++shownCount;
        if (task->flags & ProgressTask::kModal)
            ++modalCount;
    }

    QList<Row> newRows;
    QList<Row> oldRows;
    QList<QPair<Row, bool>> visibleRows;
    int shownCount = 0;
    int modalCount = 0;
};

ProgressDialog::ProgressDialog(ProgressManager* manager, QWidget* parentWidget)
    : QDialog(parentWidget)
    , m_manager(manager)
    , m_rows(new VerticalLayout(-1))
    , m_scrollArea(new QScrollArea)
    , m_seenWakes(manager->wakeCount())
{
    setWindowTitle(tr("Progress"));
    QWidget* const container = new QWidget;
    m_rows->setSpacing(0);
    container->setLayout(m_rows);
    m_scrollArea->setFrameStyle(0);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_scrollArea->setWidget(container);
    QStackedLayout* const pages = new QStackedLayout;
    pages->addWidget(m_scrollArea);
    setLayout(pages);
    adjustSize();
    // What was wanted of a former dialog is never answered.
    manager->beginLook();
}

ProgressDialog::~ProgressDialog() = default;

QSize ProgressDialog::sizeHint() const
{
    return QSize(650, 120);
}

bool ProgressDialog::event(QEvent* event)
{
    if (event->type() != kDeleteRow)
        return QDialog::event(event);
    delete static_cast<ProgressWidgetDelete*>(event)->row.data();
    return true;
}

void ProgressDialog::closeEvent(QCloseEvent* event)
{
    if (isWindow()) {
        setAttribute(Qt::WA_Moved);
    } else {
        resize(sizeHint());
        setAttribute(Qt::WA_Moved, false);
        setParent(nullptr);
    }
    QDialog::closeEvent(event);
    Q_EMIT closing();
}

void ProgressDialog::wake()
{
    m_manager->beginLook();
    if (sender() == m_manager && isUpToDate())
        return;
    if (m_isUpdating) {
        QMetaObject::invokeMethod(this, "wake", Qt::QueuedConnection);
        return;
    }
    const QPointer<ProgressDialog> self(this);
    m_isUpdating = true;
    Changes changes;
    readTasks(&changes);
    apply(changes);
    if (self)
        m_isUpdating = false;
}

bool ProgressDialog::isUpToDate() const
{
    return m_manager->wakeCount() == m_seenWakes &&
           (m_heldBackSince.isNull() || !isDue(m_heldBackSince, QTime::currentTime()));
}

void ProgressDialog::readTasks(Changes* changes)
{
    const QMutexLocker locker(m_manager->lock());
    const QTime now = QTime::currentTime();
    m_seenWakes = m_manager->wakeCount();
    m_heldBackSince = QTime();
    QList<TaskPrivate*>& tasks = m_manager->tasks();
    for (int i = 0; i < tasks.size();) {
        if (readTask(tasks.at(i), now, changes))
            ++i;
        else
            m_manager->takeTask(i);
    }
    for (TaskPrivate* const task : tasks) {
        if (task->widget)
            changes->count(task);
    }
}

/// False if the task leaves the list.
bool ProgressDialog::readTask(TaskPrivate* task, const QTime& now, Changes* changes)
{
    if (task->parent && task->parent->cancelled)
        task->cancelled = true;
    // Read once: a thread may end the task at any moment.
    if (!task->finished) {
        readRunningTask(task, now, changes);
        return true;
    }
    const bool kept = task->flags & ProgressTask::kKeepWhenFinished;
    if (ProgressWidget* const row = task->widget) {
        if (kept) {
            row->keepWithoutRecord();
        } else {
            row->retire();
            changes->oldRows.append(row);
        }
    }
    return kept;
}

void ProgressDialog::readRunningTask(TaskPrivate* task, const QTime& now, Changes* changes)
{
    if (task->widget) {
        task->widget->refresh();
    } else if (!holdBack(*task, now)) {
        task->widget = new ProgressWidget(task, m_manager, nullptr);
        changes->newRows.append(task->widget);
    }
}

/// Whether \a task is too young to be shown. Remembers the oldest of those.
bool ProgressDialog::holdBack(const TaskPrivate& task, const QTime& now)
{
    if (!(task.flags & ProgressTask::kDelayedPopup) || isDue(task.startTime, now))
        return false;
    if (m_heldBackSince.isNull() || task.startTime.msecsTo(now) > m_heldBackSince.msecsTo(now))
        m_heldBackSince = task.startTime;
    return true;
}

void ProgressDialog::apply(const Changes& changes)
{
    const QPointer<ProgressDialog> self(this);
    for (const Changes::Row& row : changes.newRows)
        addRow(row);
    for (const Changes::Row& row : changes.oldRows) {
        if (self && row)
            removeRow(row);
    }
    if (self)
        prepareWindow();
    for (const QPair<Changes::Row, bool>& row : changes.visibleRows) {
        if (row.first)
            row.first->setVisible(row.second);
    }
    if (self)
        setModality(changes.modalCount != 0);
    if (self && isWindow())
        setVisible(changes.shownCount != 0);
}

void ProgressDialog::addRow(ProgressWidget* row)
{
    connect(this, SIGNAL(closing()), row, SLOT(cancel()));
    m_rows->addWidget(row);
}

void ProgressDialog::removeRow(ProgressWidget* row)
{
    m_rows->removeWidget(row);
    row->hide();
    QCoreApplication::postEvent(this, new ProgressWidgetDelete(row), INT_MIN);
}

void ProgressDialog::prepareWindow()
{
    if (!isHidden() || !isWindow() || m_rows->count() == 0)
        return;
    setWindowFlags(Qt::Tool);
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    if (!ProgressManager::instance()->restoreState())
        resize(sizeHint().expandedTo(QSize(650, 120)));
}

/// A window that changes its modality while it is visible leaves other windows blocked.
void ProgressDialog::setModality(bool modal)
{
    if (modal == isModal())
        return;
    if (isWindow() && isVisible()) {
        move(pos());
        hide();
    }
    setModal(modal);
}

}} // namespace Norvane::UI
