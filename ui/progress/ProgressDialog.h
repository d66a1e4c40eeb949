#pragma once

#include <NorvaneCoreExport.h>

#include <QDialog>
#include <QTime>

class QScrollArea;

namespace Norvane { namespace UI {

class ProgressManager;
class ProgressWidget;
class TaskPrivate;
class VerticalLayout;

/// The window that shows the tasks of a manager, a row each. As a top-level window it appears with the first
/// task that counts and hides with the last one; a host may put it into another window, where it stays.
/// Closing it cancels all tasks. DialogProgressManager makes one and connects it.
class NORVANE_CORE_EXPORT ProgressDialog : public QDialog
{
    Q_OBJECT
public:
    /// \a manager is not owned and outlives the dialog.
    ProgressDialog(ProgressManager* manager, QWidget* parent);
    ~ProgressDialog() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user closes the dialog.
    void closing();

public Q_SLOTS:
    /// Brings the rows up to date with the manager's tasks, whose mutex is held while they are walked. A wake
    /// that comes through the event queue and finds that an earlier one did its work costs next to nothing.
    void wake();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct Changes;

    bool isUpToDate() const;
    void readTasks(Changes* changes);
    bool readTask(TaskPrivate* task, const QTime& now, Changes* changes);
    void readRunningTask(TaskPrivate* task, const QTime& now, Changes* changes);
    bool holdBack(const TaskPrivate& task, const QTime& now);
    void apply(const Changes& changes);
    void addRow(ProgressWidget* row);
    void removeRow(ProgressWidget* row);
    void prepareWindow();
    void setModality(bool modal);

    ProgressManager* const m_manager;
    VerticalLayout* const m_rows;
    QScrollArea* const m_scrollArea;
    /// The manager's wakeCount() at the last look.
    unsigned m_seenWakes = 0;
    /// Start of the oldest task whose row is held back; null if there is none.
    QTime m_heldBackSince;
    bool m_isUpdating = false;
};

}} // namespace Norvane::UI
