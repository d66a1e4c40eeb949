#pragma once

#include <NorvaneCoreExport.h>

#include <QExplicitlySharedDataPointer>
#include <QString>
#include <QWidget>

class QFont;
class QPainter;
class QProgressBar;
class QPushButton;

namespace Norvane { namespace UI {

class ProgressManager;
class TaskPrivate;
struct RowParts;

/// A row of the progress dialog: a task's name, message, time to go, progress bar and buttons. It shows what
/// the task was like at the last refresh(), and outlives the task.
class NORVANE_CORE_EXPORT ProgressWidget : public QWidget
{
    Q_OBJECT
public:
    /// \a manager is woken when the row is cleared; it is not owned.
    ProgressWidget(TaskPrivate* record, ProgressManager* manager, QWidget* parent);
    ~ProgressWidget() override;

    /// The task that the row shows; null once forgotten.
    TaskPrivate* record() const;

    /// Shows the task as it is now. What changes without the record's own lock is read under the manager's,
    /// which the caller holds.
    void refresh();
    /// Stays as it is, for the user to hide: the task has gone.
    void keepWithoutRecord();
    /// Lets go of the task and of the dialog: whoever calls this is about to delete the row.
    void retire();

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Tells the task's owner; nothing happens once it is gone.
    void togglePause();
    /// Cancels the task; a row without a task deletes itself.
    void cancel();
    /// Ends the task for the manager and deletes the row.
    void clear();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* addButton(const QString& text, const char* slot);
    void showError();
    void forgetRecord();
    RowParts partSizes() const;
    void drawLine(QPainter* painter, const QPoint& baseline, const QFont& font, const QString& text) const;

    QString m_status;
    QProgressBar* const m_progressBar;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_pauseButton = nullptr;
    QExplicitlySharedDataPointer<TaskPrivate> m_record;
    ProgressManager* const m_manager;
    bool m_errorLook = false;
    /// Copies, for painting.
    const QString m_name;
    const bool m_isSubTask;
    QString m_message;
};

}} // namespace Norvane::UI
